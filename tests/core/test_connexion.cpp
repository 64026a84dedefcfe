#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include "core/exceptions.h"
#include "core/schema.h"
#include "core/schema_script.h"
#include "support/base_essai.h"

namespace {

QStringList Schema(TBaseEssai& base) {
  return base.Rangees(QStringLiteral(
             "SELECT TRIM(RDB$RELATION_NAME), TRIM(RDB$FIELD_NAME) FROM RDB$RELATION_FIELDS WHERE "
             "RDB$SYSTEM_FLAG = 0 ORDER BY 1, 2")) +
         base.Rangees(QStringLiteral("SELECT TABLE_NAME, VALEUR FROM COUNTERS ORDER BY 1")) +
         base.Rangees(QStringLiteral("SELECT PARAMETRE_ID, TRIM(VALEUR) FROM PARAMETRE ORDER BY 1"));
}

/// The message of a connection that must fail.
QString Refus(TBaseEssai& base, const QString& serveur) {
  base->ServerName = serveur;
  try {
    base->Connecter();
  } catch (const Exception& e) {
    return e.Message;
  }
  ADD_FAILURE() << "connexion inattendue : " << serveur.toStdString();
  return {};
}

}  // namespace

TEST(Connexion, KeysAreGivenOnceFromTheCounters) {
  TBaseEssai base;
  EXPECT_EQ(base->GetNextId(QStringLiteral("ELEVES")), 1);
  EXPECT_EQ(NextId(*base, QStringLiteral("ELEVES")), 2);
  EXPECT_EQ(base->GetNextId(QStringLiteral("ACTIVITES")), 101);
  EXPECT_EQ(base->GetNextId(QStringLiteral("ELEVES_CLASSES")), 1) << "a counter brought to NULL starts at 0";
  base.Dialogues.Attend(QStringLiteral("Le compteur de table RIEN n'existe pas !"));
  EXPECT_EQ(base->GetNextId(QStringLiteral("RIEN")), -1);
  base->Deconnecter();
  base.Dialogues.Attend(QStringLiteral("n'est pas ouverte"));
  EXPECT_EQ(base->GetNextId(QStringLiteral("ELEVES")), -1);
}

TEST(Connexion, TheUpgradeScriptRunsAsOftenAsOneLikes) {
  TBaseEssai base;
  const QStringList avant = Schema(base);
  EXPECT_EQ(base.Valeur(QStringLiteral("SELECT COUNT(*) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG = 0")),
            u"23");
  EXPECT_EQ(Instructions(ScriptMiseAJour()).size(), 85);
  base->GetNextId(QStringLiteral("ELEVES"));
  base.Sql(QStringLiteral("UPDATE PARAMETRE SET VALEUR = '2020' WHERE PARAMETRE_ID = 27"));
  base->MettreAJour();
  base->MettreAJour();
  QStringList attendu = avant;
  attendu.replaceInStrings(QRegularExpression(QStringLiteral("^ELEVES;0$")), QStringLiteral("ELEVES;1"));
  attendu.replaceInStrings(QStringLiteral("27;2016"), QStringLiteral("27;2020"));
  EXPECT_EQ(Schema(base), attendu);
}

TEST(Connexion, TheOldestLayoutIsBroughtToThePresentOne) {
  TBaseEssai base;
  const QStringList present = Schema(base).filter(QStringLiteral("ELEVES_CLASSES"));
  // What stood before the script existed: the base tables, one class a pupil, and the year 2015.
  base->ServerName = base.Chemin(QStringLiteral("ancienne.fdb"));
  base->Connecter();
  for (const QString& table :
       base.Rangees(QStringLiteral("SELECT TRIM(RDB$RELATION_NAME) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG "
                                   "= 0 ORDER BY RDB$RELATION_ID DESC")))
    base.Sql(u"DROP TABLE " + table);
  for (const QString& instruction : Instructions(ScriptTablesDeBase())) base.Sql(instruction);
  base.Sql(QStringLiteral(
      "CREATE TABLE PARAMETRE (PARAMETRE_ID INTEGER NOT NULL PRIMARY KEY, VALEUR VARCHAR(100))"));
  base.Sql(QStringLiteral("INSERT INTO PARAMETRE VALUES (27, '2015')"));
  base.Sql(QStringLiteral(
      "INSERT INTO ELEVES (ELEVE_ID, NOM, CLASSE, SOUS_CLASSE) VALUES (7, 'Noël', 'P2', 'B')"));
  base.Sql(QStringLiteral("INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID) VALUES (1, 7)"));
  for (int fois = 0; fois < 2; ++fois) {
    base->MettreAJour();
    EXPECT_EQ(
        base.Rangees(QStringLiteral("SELECT ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE "
                                    "FROM ELEVES_CLASSES")),
        QStringList{"7;7;2015;P2;B"});
    EXPECT_EQ(base.Valeur(QStringLiteral("SELECT ANNEE_SCOLAIRE FROM PAIEMENTS")), u"2015");
    EXPECT_EQ(base.Valeur(QStringLiteral("SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 27")),
              u"2015");
  }
  EXPECT_EQ(base->GetNextId(QStringLiteral("ELEVES_CLASSES")), 8);
  EXPECT_EQ(Schema(base).filter(QStringLiteral("ELEVES_CLASSES;C")),
            present.filter(QStringLiteral("ELEVES_CLASSES;C")));
}

TEST(Connexion, FilesThatAreNoDatabaseSayWhatToDo) {
  TBaseEssai base;
  struct {
    QString nom;
    QByteArray contenu;
    QString attendu;
  } const cas[] = {
      {QStringLiteral("vide.fdb"), "", QStringLiteral("est vide")},
      {QStringLiteral("hasard.fdb"), QByteArray(20000, 'x'),
       QStringLiteral("n'est pas une base de données de Calpenne")},
  };
  for (const auto& c : cas) {
    const QString message = Refus(base, base.Fichier(c.nom, c.contenu));
    EXPECT_TRUE(message.contains(c.attendu)) << message.toStdString();
  }
  QDir().mkpath(base.Chemin(QStringLiteral("dossier.fdb")));
  EXPECT_TRUE(Refus(base, base.Chemin(QStringLiteral("dossier.fdb"))).contains(u"est un dossier"));
  // Another on-disk structure: the version stands in the header page.
  QFile::copy(base.FichierDeDonnees(), base.Chemin(QStringLiteral("autre.fdb")));
  QFile autre(base.Chemin(QStringLiteral("autre.fdb")));
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
  const QString a = base.Chemin(QStringLiteral("a.fdb")), b = base.Chemin(QStringLiteral("b.fdb"));
  // Nothing known: the user is asked; blanks are no answer, and without a name there is no connection.
  base.Dialogues.Saisit(QStringLiteral("Identification du Serveur de données"), QStringLiteral("   "));
  EXPECT_FALSE(base->ConnectToServer());
  base.Dialogues.Saisit(QStringLiteral("nom du serveur de données ou son adresse réseau :"),
                        QString(u' ' + b));
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, QString(u' ' + b)) << "kept as typed";
  EXPECT_EQ(reglages.Lire(TRacine::Machine, QStringLiteral("Serveur")), QString(u' ' + b));
  // The user's own name serves when the machine has none; the machine's goes first.
  reglages.Ecrire(TRacine::Machine, QStringLiteral("Serveur"), {});
  reglages.Ecrire(TRacine::Utilisateur, QStringLiteral("Serveur"), a);
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, a);
  reglages.Ecrire(TRacine::Machine, QStringLiteral("Serveur"), b);
  EXPECT_TRUE(base->ConnectToServer());
  EXPECT_EQ(base->ServerName, b);
  EXPECT_FALSE(QFile::exists(b + QStringLiteral(".nouveau")));
}

TEST(Connexion, OnlyWhoMayNotWriteTheMachinesSettingsIsWarned) {
  struct TCheminMachine {
    static void Mettre(const QString& chemin) {
      QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, chemin);
    }
    ~TCheminMachine() { Mettre(Avant); }
    const QString Avant =
        QFileInfo(QSettings(QSettings::NativeFormat, QSettings::SystemScope, QStringLiteral("x")).fileName())
            .path();
  } const machine;
  const QString invite =
      QStringLiteral("Veuillez indiquer ci-dessous le nom du serveur de données ou son adresse réseau :");
  const QString attention = QStringLiteral(
      "\nAttention : Afin de ne plus afficher ce message, veuillez exécuter cette opération avec un compte "
      "administrateur");
  for (const bool inscriptible : {true, false}) {
    struct TNote : TDialoguesScenario {
      std::optional<QString> Saisir(const QString&, const QString& texte, const QString&) override {
        Invite = texte;
        return QStringLiteral("poste1");
      }
      QString Invite;
    } dialogues;
    TBaseEssai base;
    // Behind a file there is no folder, not even for an administrator.
    const QString racine = inscriptible ? base.Chemin(QStringLiteral("machine"))
                                        : QString(base.Fichier(QStringLiteral("fichier"), "x") + u"/machine");
    machine.Mettre(racine);
    TDataModule1 module(dialogues, base.Reglages);
    EXPECT_EQ(module.CanWriteMachineKey(), inscriptible);
    module.AskServerName();
    EXPECT_EQ(dialogues.Invite, inscriptible ? invite : QString(invite + attention));
    const TRacine ou = inscriptible ? TRacine::Machine : TRacine::Utilisateur;
    EXPECT_EQ(base.Reglages.Lire(ou, QStringLiteral("Serveur")), u"poste1");
  }
}
