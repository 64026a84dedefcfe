#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include "core/exceptions.h"
#include "core/schema.h"
#include "core/schema_script.h"
#include "support/base_essai.h"
#include "support/refus.h"

namespace {

QStringList Schema(TBaseEssai& base) {
  return base.Rangees(
             u"SELECT TRIM(RDB$RELATION_NAME), TRIM(RDB$FIELD_NAME) FROM RDB$RELATION_FIELDS WHERE "
             "RDB$SYSTEM_FLAG = 0 ORDER BY 1, 2"_s) +
         base.Rangees(u"SELECT TABLE_NAME, VALEUR FROM COUNTERS ORDER BY 1"_s) +
         base.Rangees(u"SELECT PARAMETRE_ID, TRIM(VALEUR) FROM PARAMETRE ORDER BY 1"_s);
}

/// The message of a connection that must fail.
QString Refus(TBaseEssai& base, const QString& serveur) {
  base->ServerName = serveur;
  return ::Refus([&] { base->Connecter(); });
}

}  // namespace

TEST(Connexion, KeysAreGivenOnceFromTheCounters) {
  TBaseEssai base;
  EXPECT_EQ(base->GetNextId(u"ELEVES"_s), 1);
  EXPECT_EQ(NextId(*base, u"ELEVES"_s), 2);
  EXPECT_EQ(base->GetNextId(u"ACTIVITES"_s), 101);
  EXPECT_EQ(base->GetNextId(u"ELEVES_CLASSES"_s), 1) << "a counter brought to NULL starts at 0";
  base.Dialogues.Attend(u"Le compteur de table RIEN n'existe pas !"_s);
  EXPECT_EQ(base->GetNextId(u"RIEN"_s), -1);
  base->Deconnecter();
  base.Dialogues.Attend(u"n'est pas ouverte"_s);
  EXPECT_EQ(base->GetNextId(u"ELEVES"_s), -1);
}

TEST(Connexion, TheUpgradeScriptRunsAsOftenAsOneLikes) {
  TBaseEssai base;
  const QStringList avant = Schema(base);
  base->GetNextId(u"ELEVES"_s);
  base.Sql(u"UPDATE PARAMETRE SET VALEUR = '2020' WHERE PARAMETRE_ID = 27"_s);
  base->MettreAJour();
  base->MettreAJour();
  QStringList attendu = avant;
  attendu.replaceInStrings(QRegularExpression(u"^ELEVES;0$"_s), u"ELEVES;1"_s);
  attendu.replaceInStrings(u"27;2016"_s, u"27;2020"_s);
  EXPECT_EQ(Schema(base), attendu);
}

TEST(Connexion, TheOldestLayoutIsBroughtToThePresentOne) {
  TBaseEssai base;
  const QStringList present = Schema(base).filter(u"ELEVES_CLASSES"_s);
  // What stood before the script existed: the base tables, one class a pupil, and the year 2015.
  base->ServerName = base.Chemin(u"ancienne.fdb"_s);
  base->Connecter();
  for (const QString& table :
       base.Rangees(u"SELECT TRIM(RDB$RELATION_NAME) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG "
                    "= 0 ORDER BY RDB$RELATION_ID DESC"_s))
    base.Sql(u"DROP TABLE " + table);
  for (const QString& instruction : Instructions(ScriptTablesDeBase())) base.Sql(instruction);
  base.Sql(u"CREATE TABLE PARAMETRE (PARAMETRE_ID INTEGER NOT NULL PRIMARY KEY, VALEUR VARCHAR(100))"_s);
  base.Sql(u"INSERT INTO PARAMETRE VALUES (27, '2015')"_s);
  base.Sql(u"INSERT INTO ELEVES (ELEVE_ID, NOM, CLASSE, SOUS_CLASSE) VALUES (7, 'Noël', 'P2', 'B')"_s);
  base.Sql(u"INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID) VALUES (1, 7)"_s);
  for (int fois = 0; fois < 2; ++fois) {
    base->MettreAJour();
    EXPECT_EQ(base.Rangees(u"SELECT ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE "
                           "FROM ELEVES_CLASSES"_s),
              QStringList{"7;7;2015;P2;B"});
    EXPECT_EQ(base.Valeur(u"SELECT ANNEE_SCOLAIRE FROM PAIEMENTS"_s), u"2015");
    EXPECT_EQ(base.Valeur(u"SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 27"_s), u"2015");
  }
  EXPECT_EQ(base->GetNextId(u"ELEVES_CLASSES"_s), 8);
  EXPECT_EQ(Schema(base).filter(u"ELEVES_CLASSES;C"_s), present.filter(u"ELEVES_CLASSES;C"_s));
}

TEST(Connexion, FilesThatAreNoDatabaseSayWhatToDo) {
  TBaseEssai base;
  for (const auto& [contenu, attendu] :
       {std::pair(QByteArray(), u"est vide"_s),
        {QByteArray(20000, 'x'), u"n'est pas une base de données de Calpenne"_s}}) {
    const QString message = Refus(base, base.Fichier(u"autre.fdb"_s, contenu));
    EXPECT_TRUE(message.contains(attendu)) << message.toStdString();
    QFile::remove(base.Chemin(u"autre.fdb"_s));
  }
  QDir().mkpath(base.Chemin(u"dossier.fdb"_s));
  EXPECT_TRUE(Refus(base, base.Chemin(u"dossier.fdb"_s)).contains(u"est un dossier"));
  // Another on-disk structure: the version stands in the header page.
  QFile::copy(base.FichierDeDonnees(), base.Chemin(u"autre.fdb"_s));
  QFile autre(base.Chemin(u"autre.fdb"_s));
  ASSERT_TRUE(autre.open(QIODevice::ReadWrite));
  autre.seek(18);
  autre.write("\x0b\x80", 2);
  autre.close();
  const QString message = Refus(base, autre.fileName());
  EXPECT_TRUE(message.contains(u"autre version de Firebird")) << message.toStdString();
}

TEST(Connexion, WhereTheServersNameComesFrom) {
  TBaseEssai base;
  TReglagesPoste& reglages = base.Reglages;
  const QString a = base.Chemin(u"a.fdb"_s), b = base.Chemin(u"b.fdb"_s);
  // Nothing known: the user is asked; blanks are no answer, and without a name there is no connection.
  base.Dialogues.Saisit(u"Identification du Serveur de données"_s, u"   "_s);
  EXPECT_FALSE(base->ConnectToServer());
  const QString absente = u"Aucune école ne se trouve à cet endroit :\n"_s;
  base.Dialogues.Saisit(u"nom du serveur de données ou son adresse réseau :"_s, QString(u' ' + b))
      .Repond(absente + b, false);
  EXPECT_THROW(base->ConnectToServer(), Exception);
  EXPECT_FALSE(QFile::exists(b)) << "a school that was moved is not replaced by an empty one";
  base.Dialogues.Repond(absente + b, true);
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, QString(u' ' + b)) << "kept as typed";
  EXPECT_EQ(reglages.Lire(TRacine::Machine, u"Serveur"_s), QString(u' ' + b));
  // The user's own name serves when the machine has none; the machine's goes first.
  reglages.Ecrire(TRacine::Machine, u"Serveur"_s, {});
  reglages.Ecrire(TRacine::Utilisateur, u"Serveur"_s, a);
  base.Dialogues.Repond(absente + a, true);
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, a);
  reglages.Ecrire(TRacine::Machine, u"Serveur"_s, b);
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, b);
  EXPECT_FALSE(QFile::exists(b + u".nouveau"_s));
  // A file that was moved is shown by its place; what is no data file is not taken for a server.
  base.Dialogues.Saisit(u"Choisir le fichier de données"_s, {})
      .Saisit(u"Choisir le fichier de données"_s, base.Chemin(u"ecole.txt"_s))
      .Attend(u"« ecole.txt » n'est pas un fichier de données"_s);
  EXPECT_FALSE(base->AskDataFile());
  EXPECT_FALSE(base->AskDataFile());
  EXPECT_EQ(base->ServerName, b);
  base.Dialogues.Saisit(u"Choisir le fichier de données"_s, a);
  EXPECT_TRUE(base->AskDataFile());
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(reglages.Lire(TRacine::Machine, u"Serveur"_s), a);
}

TEST(Connexion, OnlyWhoMayNotWriteTheMachinesSettingsIsWarned) {
  struct TCheminMachine {
    static void Mettre(const QString& chemin) {
      QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, chemin);
    }
    ~TCheminMachine() { Mettre(Avant); }
    const QString Avant =
        QFileInfo(QSettings(QSettings::NativeFormat, QSettings::SystemScope, u"x"_s).fileName()).path();
  } const machine;
  const QString invite =
      u"Veuillez indiquer ci-dessous le nom du serveur de données ou son adresse réseau :"_s;
  const QString attention =
      u"\nAttention : Afin de ne plus afficher ce message, veuillez exécuter cette opération avec un compte "
      "administrateur"_s;
  for (const bool inscriptible : {true, false}) {
    TBaseEssai base;
    // Behind a file there is no folder, not even for an administrator.
    const QString racine =
        inscriptible ? base.Chemin(u"machine"_s) : QString(base.Fichier(u"fichier"_s, "x") + u"/machine");
    machine.Mettre(racine);
    EXPECT_EQ(base->CanWriteMachineKey(), inscriptible);
    base.Dialogues.Saisit(invite, u"poste1"_s);
    base->AskServerName();
    EXPECT_EQ(base.Dialogues.Invites.last(), inscriptible ? invite : QString(invite + attention));
    const TRacine ou = inscriptible ? TRacine::Machine : TRacine::Utilisateur;
    EXPECT_EQ(base.Reglages.Lire(ou, u"Serveur"_s), u"poste1");
  }
}
