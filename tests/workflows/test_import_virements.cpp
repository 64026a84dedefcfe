#include "support/controleur_essai.h"
#include "support/fichier_camt.h"
#include "workflows/import_virements.h"

using FichierCamt::Camt;

namespace {

const QString kEcole = u"BE33123456789012"_s;

/// A payment of layout A.
struct TVersement {
  QString Communication;
  QString Montant = u"10,00"_s;
  QString Donneur = u"DUPONT"_s;
};

struct TImportVirementsEssai : TEssaiControleur {
  TImportVirementsEssai() {
    for (int i = 0; i < 2; ++i) ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
  }

  QString Fichier(const std::vector<TVersement>& versements) {
    QString texte = u";\n"_s.repeated(13);
    for (const TVersement& v : versements)
      texte += u"x;05/10/2016;;;BE68;%1;;;;;%2;EUR;;;%3\n"_s.arg(v.Donneur, v.Montant, v.Communication);
    return base.Fichier(u"releve.csv"_s, texte.toUtf8());
  }
  /// Both steps on a freshly loaded year; the status text.
  QString ImporterFichier(const QString& fichier, int annee = 2016) {
    Globals.Parametres.reset();  // they may have changed
    essai.Charger(annee);
    TImportVirements import(essai.Controleur);
    EXPECT_TRUE(import.Etape1(fichier));
    import.Etape2();
    etats_.clear();
    for (const TRangeeVirement& r : import.Rangees())
      etats_ += Texte(r.Etat) % u' ' % QString::number(r.EleveId);
    return import.Statut();
  }
  QString Importer(const std::vector<TVersement>& versements, int annee = 2016) {
    return ImporterFichier(Fichier(versements), annee);
  }
  QStringList Extraits() {
    return base.Rangees(u"SELECT EXTRAIT_ID, COMMUNICATION FROM EXTRAITS ORDER BY 1"_s);
  }
  QStringList Credits() {
    return base.Rangees(
        u"SELECT ELEVE_ID, EXTRAIT_ID, MOIS, TYPE_FAMILLE_FRAIS, MONTANT_VERSE FROM FRAIS_ELEVE ORDER BY "
        "FRAIS_ELEVE_ID"_s);
  }

  QStringList etats_;
};

/// A statement in a camt.053 file: number, account, day of October 2016, old balance in euros, payments
/// of 10.
QString Stmt(int numero, const QString& compte, int jour, int ancien, const QStringList& communications) {
  using namespace FichierCamt;
  const QString date = u"2016-10-%1"_s.arg(jour, 2, 10, QChar(u'0'));
  QString contenu = Solde("OPBD", QString::number(ancien), "CRDT", date) +
                    Solde("CLBD", QString::number(ancien + 10 * communications.size()), "CRDT", date);
  for (const QString& communication : communications)
    contenu += Ecriture("10", "CRDT", Valeur(date) + Details(Detail("DUPONT", "BE68", Libre(communication))));
  return FichierCamt::Releve(numero, compte, contenu);
}

QByteArray Releve(int numero, const QString& compte, int jour, int ancien,
                  const QStringList& communications) {
  return Camt(Stmt(numero, compte, jour, ancien, communications));
}

/// The same payments as CODA.
QByteArray ReleveCoda(int numero, int jour, int ancien, const QStringList& communications) {
  QStringList milieu;
  for (const QString& communication : communications) {
    const QString article = u"%1"_s.arg(milieu.size() / 2 + 1, 4, 10, QChar(u'0')) + u"0000";
    milieu += FichierCoda::Mouvement(article, 1000, communication, u'0', false,
                                     u"%1"_s.arg(jour, 2, 10, QChar(u'0')) + u"1016");
    milieu += FichierCoda::Donneur(article, u"BE68"_s, u"DUPONT"_s);
  }
  const int total = 1000 * static_cast<int>(communications.size());
  return FichierCoda::Coda(milieu, total, 0, 0, numero, 100 * ancien);
}

QString Bilan(int lignes, int comptabilises, int inconnus, int regularisations = -1) {
  QString bilan =
      u"Le fichier compte %1 mouvements.\n\n%2 mouvements ont été comptabilisés.\n"
      "%3 mouvements sont inconnus."_s.arg(lignes)
          .arg(comptabilises)
          .arg(inconnus);
  if (regularisations >= 0) bilan += u"\n%1 mouvements sont des régularisations."_s.arg(regularisations);
  return bilan;
}

}  // namespace

TEST_F(TImportVirementsEssai, TheMonthLayout) {
  EXPECT_EQ(Importer({{u"000011016166"_s},          // stored bare digits, pupil 1, October, services
                      {u"+++000/0211/16299+++"_s},  // wrong check value, pupil 2, fees
                      {u"+++000/0110/16300+++"_s},  // another kind
                      {u"+++000/9910/16100+++"_s},  // no such pupil
                      {u"+++000/0110/17100+++"_s},  // another year
                      {u"+++000/0100/16100+++"_s},
                      {u"+++000/0113/16100+++"_s},
                      {u"+++000011016/////+++"_s, u"-3,25"_s},  // kind behind the slashes: none
                      {u"merci"_s}}),
            Bilan(9, 5, 4, 0));
  EXPECT_EQ(Extraits().size(), 9);
  EXPECT_EQ(Credits(), (QStringList{u"1;1;10;2;10.0000"_s, u"2;2;11;1;10.0000"_s, u"1;3;10;0;10.0000"_s,
                                    u"1;8;10;0;-3.2500"_s}));
  EXPECT_EQ(etats_[0], u"Comptabilisé 1");
  EXPECT_EQ(etats_[3], u"Inconnu 0") << "counted, but nobody has it";
  EXPECT_EQ(base.Rangees(u"SELECT FIRST 1 ANNEE_SCOLAIRE, LISTEFRAIS_ID, REMARQUE, DATE_VERSEMENT, "
                         "GROUPE_FRAIS_ID FROM FRAIS_ELEVE"_s),
            QStringList{u"2016;-;Votre virement du 05/10/2016;-;-"_s});
}

TEST_F(TImportVirementsEssai, TheCompactLayout) {
  ecole.parametre(107, u"1"_s);
  const std::vector<TVersement> versements{{u"+++000/0001/01600+++"_s}, {u"+++100/0001/01600+++"_s},
                                           {u"+++200/0001/01600+++"_s}, {u"+++300/0002/01600+++"_s},
                                           {u"+++900/0002/01600+++"_s}, {u"+++x00/0002/01600+++"_s},
                                           {u"+++000/0001/01700+++"_s}, {u"merci"_s}};
  EXPECT_EQ(Importer(versements), Bilan(8, 6, 2));
  QStringList credits{u"1;1;0;0;10.0000"_s, u"1;2;0;2;10.0000"_s, u"1;3;0;1;10.0000"_s,
                      u"2;4;0;2;10.0000"_s, u"2;5;0;0;10.0000"_s, u"2;6;0;0;10.0000"_s};
  EXPECT_EQ(Credits(), credits);
  EXPECT_EQ(Importer(versements), Bilan(8, 6, 2)) << "counted again";
  EXPECT_EQ(Credits(), credits);
  ecole.parametre(114, u"1"_s);
  EXPECT_EQ(Importer(versements), Bilan(8, 7, 1));
  EXPECT_EQ(Credits(), credits += u"1;7;0;0;10.0000"_s);
}

TEST_F(TImportVirementsEssai, NothingIsStoredTwice) {
  const TVersement a{u"+++000/0110/16104+++"_s}, b{u"merci"_s}, c{u"+++000/0210/16204+++"_s};
  EXPECT_EQ(Importer({a, b}), Bilan(2, 1, 1, 0));
  EXPECT_EQ(Importer({a, b}), Bilan(2, 0, 1, 0)) << "what is accounted is passed over";
  EXPECT_EQ(Importer({b, c}), Bilan(2, 1, 1, 0));
  EXPECT_EQ(Extraits().size(), 3);
  EXPECT_EQ(Credits().size(), 2);
  // In the next year they are last year's.
  base.Sql(u"UPDATE ELEVES_CLASSES SET ANNEE_SCOLAIRE = 2017"_s);
  EXPECT_EQ(Importer({a, {u"+++000/0110/17102+++"_s}, b}, 2017), Bilan(3, 1, 0, 2));
  EXPECT_EQ(etats_, (QStringList{u"Année précédente 0"_s, u"Comptabilisé 1"_s, u"Année précédente 0"_s}));
  EXPECT_EQ(Extraits().size(), 4);
}

TEST_F(TImportVirementsEssai, TwinsAreTwoPayments) {
  const TVersement a{u"+++000/0110/16104+++"_s}, jumeau = a;
  EXPECT_EQ(Importer({a, jumeau}), Bilan(2, 2, 0, 0));
  EXPECT_EQ(Credits(), (QStringList{u"1;1;10;2;10.0000"_s, u"1;2;10;2;10.0000"_s}));
  base.Sql(u"DELETE FROM FRAIS_ELEVE"_s);
  EXPECT_EQ(Importer({a, jumeau}), Bilan(2, 2, 0, 0)) << "both are the first one, counted twice";
  EXPECT_EQ(Credits(), QStringList{u"1;1;10;2;10.0000"_s});
}

// A step 2 that was cut off between two twins goes on, whatever is done meanwhile.
TEST_F(TImportVirementsEssai, AfterACutTheSecondTwinHasItsPupilToo) {
  const TVersement a{u"+++000/0110/16104+++"_s}, jumeau = a;
  base.Sql(
      u"CREATE TRIGGER REFUS FOR FRAIS_ELEVE BEFORE INSERT AS BEGIN IF (NEW.EXTRAIT_ID = 2) THEN "
      "NEW.ELEVE_ID = NULL; END"_s);
  essai.Charger();
  TImportVirements import(essai.Controleur);
  ASSERT_TRUE(import.Etape1(Fichier({a, jumeau})));
  EXPECT_THROW(import.Etape2(), Exception);
  import.Vider();
  import.Etape2();
  base.Sql(u"DROP TRIGGER REFUS"_s);
  Importer({TVersement{u"merci"_s}});
  EXPECT_EQ(Credits().size(), 1);
  Importer({a, jumeau});
  EXPECT_EQ(Credits(), (QStringList{u"1;1;10;2;10.0000"_s, u"1;2;10;2;10.0000"_s}));
}

TEST_F(TImportVirementsEssai, AMovementBelongsToOnePupil) {
  const TVersement a{u"+++000/0110/16104+++"_s};
  Importer({a});
  for (const QString& disposition : {u"0"_s, u"1"_s}) {
    base.Sql(u"UPDATE FRAIS_ELEVE SET ELEVE_ID = 2, ANNEE_SCOLAIRE = 2015"_s);
    base.Sql(u"UPDATE EXTRAITS SET COMMUNICATION = '+++100/0001/01600+++'"_s);
    ecole.parametre(107, disposition);
    Importer({TVersement{u"+++100/0001/01600+++"_s}});
    EXPECT_EQ(Credits().size(), 1) << disposition.toStdString();
    EXPECT_EQ(etats_, QStringList{u"Comptabilisé 2"_s});
    base.Sql(u"DELETE FROM PARAMETRE WHERE PARAMETRE_ID = 107"_s);
  }
  base.Sql(u"UPDATE EXTRAITS SET FLG_IGNORE = 1"_s);
  Importer({TVersement{u"+++100/0001/01600+++"_s}});
  EXPECT_EQ(etats_, QStringList{u"Caché 2"_s});
  // Given by another workstation between the two steps.
  base.Sql(u"DELETE FROM FRAIS_ELEVE"_s);
  base.Sql(u"UPDATE EXTRAITS SET FLG_IGNORE = NULL, COMMUNICATION = '+++000/0110/16104+++'"_s);
  essai.Charger();
  TImportVirements import(essai.Controleur);
  EXPECT_TRUE(import.Etape1(Fichier({a})));
  base.Sql(
      u"INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, EXTRAIT_ID, MONTANT_VERSE) "
      "SELECT 77, 2, 2016, EXTRAIT_ID, MONTANT FROM EXTRAITS"_s);
  import.Etape2();
  EXPECT_EQ(Credits().size(), 1);
}

TEST_F(TImportVirementsEssai, WhatIsNoNumberEndsTheCrediting) {
  const TVersement a{u"+++000/0110/16104+++"_s}, faux{u"+++00x/0110/16104+++"_s},
      c{u"+++000/0210/16204+++"_s};
  const QString fichier = Fichier({a, faux, c});
  essai.Charger();
  TImportVirements import(essai.Controleur);
  ASSERT_TRUE(import.Etape1(fichier));
  EXPECT_THROW(import.Etape2(), EConvertError);
  EXPECT_EQ(import.Statut(), u"Le fichier compte 3 mouvements.");
  EXPECT_EQ(import.Rangees()[0].Etat, TEtatMouvement::Comptabilise);
  EXPECT_EQ(Extraits().size(), 3) << "all are stored";
  EXPECT_EQ(Credits().size(), 1);
  for (const bool sansAnnee : {false, true})
    EXPECT_THROW(LireCommunicationCompacte(u"+++000/0001/01x00+++"_s, 2016, sansAnnee), EConvertError);
}

TEST_F(TImportVirementsEssai, AFaultStoresNothing) {
  essai.Charger();
  TImportVirements import(essai.Controleur);
  base.Dialogues.Attend(u"Ligne 15 : « dix » n'est pas un montant"_s);
  EXPECT_FALSE(import.Etape1(Fichier({{u"000011016166"_s}, {u"b"_s, u"dix"_s}, {u"c"_s}})));
  ASSERT_EQ(import.Rangees().size(), 1U);
  EXPECT_EQ(import.Rangees()[0].Etat, TEtatMouvement::Nouveau) << "only the row in fault is unreadable";
  ASSERT_TRUE(import.Faute().has_value());
  EXPECT_EQ(import.Faute()->Montant, u"dix");
  EXPECT_EQ(import.Statut(), QString());
  base.Dialogues.Attend(
      u"Une erreur s'est produite pendant l'ouverture du fichier.\r\nLe code d'erreur est :"_s);
  EXPECT_FALSE(import.Etape1(base.Chemin(u"rien32.csv"_s)));
  EXPECT_TRUE(import.Rangees().empty());
  EXPECT_TRUE(MessageOuverture(u"32 occupé"_s).startsWith(u"Le fichier de mouvement est déjà ouvert"));
  EXPECT_EQ(Extraits(), QStringList());
}

// Days that two files share are asked about and stored once; what is the same on another day is not the same.
TEST_F(TImportVirementsEssai, TwoFilesWithAStatementInCommon) {
  const QString a = u"+++000/0110/16104+++"_s, b = u"merci"_s;
  const QByteArray fichiers[][2] = {{Camt(Stmt(7, kEcole, 5, 0, {a, b}) + Stmt(8, kEcole, 6, 20, {a})),
                                     Camt(Stmt(8, kEcole, 6, 20, {a}) + Stmt(9, kEcole, 7, 30, {b, a}))},
                                    {ReleveCoda(7, 5, 0, {a, b}) + "\r\n" + ReleveCoda(8, 6, 20, {a}),
                                     ReleveCoda(8, 6, 20, {a}) + "\r\n" + ReleveCoda(9, 7, 30, {b, a})}};
  for (const auto& [premier, second] : fichiers) {
    ImporterFichier(base.Fichier(u"releve"_s, premier));
    EXPECT_EQ(Extraits().size(), 3);
    base.Dialogues.Repond(u"a déjà été importé"_s, true);
    ImporterFichier(base.Fichier(u"releve"_s, second));
    EXPECT_EQ(base.Rangees(u"SELECT DATE_VIREMENT, COMMUNICATION FROM EXTRAITS ORDER BY EXTRAIT_ID"_s),
              (QStringList{u"2016-10-05;"_s + a, u"2016-10-05;merci"_s, u"2016-10-06;"_s + a,
                           u"2016-10-07;merci"_s, u"2016-10-07;"_s + a}));
    EXPECT_EQ(Credits().size(), 3);
    for (const QString& table : {u"FRAIS_ELEVE"_s, u"EXTRAITS"_s, u"RELEVE_BANQUE"_s})
      base.Sql(u"DELETE FROM "_s + table);
  }
}

// What a statement says of itself guards against storing it twice, and against one that is missing.
TEST_F(TImportVirementsEssai, AStatementIsAskedAboutBeforeItIsDoubted) {
  ecole.parametre(11, u"BE33 1234 5678 9012"_s);
  const auto lit = [&](const QByteArray& releve, const QString& question, bool oui = false) {
    SCOPED_TRACE(question.toStdString());
    Globals.Parametres.reset();
    essai.Charger(2016);
    if (!question.isEmpty()) base.Dialogues.Repond(question, oui);
    TImportVirements import(essai.Controleur);
    const bool lu = import.Etape1(base.Fichier(u"releve.xml"_s, releve));
    if (lu) import.Etape2();
    EXPECT_EQ(lu, question.isEmpty() || oui);
    return Extraits().size();
  };
  EXPECT_EQ(lit(Releve(7, kEcole, 5, 100, {u"a"_s, u"b"_s}), {}), 2);
  EXPECT_EQ(lit(Releve(7, kEcole, 5, 100, {u"a"_s, u"b"_s}), u"a déjà été importé"_s), 2);
  EXPECT_EQ(lit(Releve(7, kEcole, 5, 100, {u"a"_s, u"b"_s}), u"a déjà été importé"_s, true), 2)
      << "no row twice";
  EXPECT_EQ(lit(ReleveCoda(7, 5, 100, {u"a"_s, u"b"_s}), u"a déjà été importé"_s), 2) << "in another form";
  EXPECT_EQ(lit(Releve(9, kEcole, 7, 120, {u"c"_s}), u"ne suit pas le relevé n° 7 du 05/10/2016"_s), 2);
  EXPECT_EQ(lit(Releve(8, kEcole, 6, 500, {u"c"_s}), u"il en manque un entre les deux"_s), 2);
  EXPECT_EQ(lit(Releve(8, u"BE71096123456769"_s, 6, 120, {u"c"_s}),
                u"est celui du compte BE71096123456769, et le compte de l'école est BE33123456789012"_s),
            2);
  EXPECT_EQ(lit(Releve(8, u"123456789012"_s, 6, 120, {u"c"_s}), {}), 3)
      << "the old number of the same account";
  EXPECT_EQ(lit(Releve(8, kEcole, 6, 120, {u"b"_s, u"c"_s}), {}), 4)
      << "b of another day is another payment, c is there";
}

// What is known throughout is no reason to doubt another payment, be it twice in the file.
TEST_F(TImportVirementsEssai, TwinsCastNoDoubtOnAThird) {
  ImporterFichier(base.Fichier(u"releve"_s, ReleveCoda(7, 5, 0, {u"merci"_s, u"merci"_s})));
  ImporterFichier(base.Fichier(u"releve"_s, ReleveCoda(8, 5, 20, {u"merci"_s, u"merci"_s, u"autre"_s})));
  EXPECT_EQ(Extraits(), (QStringList{u"1;merci"_s, u"2;merci"_s, u"3;autre"_s}));
}

TEST_F(TImportVirementsEssai, WhatCannotBeStoredLeaves) {
  essai.Charger();
  TImportVirements import(essai.Controleur);
  ASSERT_TRUE(import.Etape1(Fichier({{u"+++000/0110/16104+++"_s}})));
  base.Sql(u"ALTER TABLE EXTRAITS ADD OBLIGATOIRE INTEGER CHECK (OBLIGATOIRE IS NOT NULL)"_s);
  EXPECT_THROW(import.Etape2(), EDistributor);
  EXPECT_EQ(Globals.Extraits->Count(), 0);
  EXPECT_EQ(import.Rangees()[0].Etat, TEtatMouvement::Nouveau);
}
