#include "support/controleur_essai.h"
#include "support/fichier_registre.h"
#include "support/refus.h"
#include "workflows/import_registre.h"

namespace {

const QString kEleves =
    u"SELECT MATRICULE, NOM, NUMERO, CODE_POSTAL, NOM_RESPONSABLE, NOM_RESPONSABLE2, NUMERO2, CODE_POSTAL2, "
    "LOCALITE2 FROM ELEVES ORDER BY ELEVE_ID"_s;
const QString kClasses =
    u"SELECT ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION FROM ELEVES_CLASSES "
    "ORDER BY 1, 2"_s;
const QString kQuestion =
    u"Votre fichiel SIEL contient des élèves d'une nouvelle année scolaire.\r\nVoulez-vous clôturer l'année "
    "scolaire 2016-2017 ?"_s;

}  // namespace

using ImportRegistre = TEssaiControleur;

TEST_F(ImportRegistre, BothLayoutsCreateAndUpdate) {
  for (const int disposition : {1, 2}) {
    TBaseEssai base;
    TEcoleEssai ecole(base);
    ecole.parametre(6, QString::number(disposition));
    // Known, not enrolled this year, with what the file does not carry.
    ecole.unEleve().matricule(u"1234-2"_s).avec(u"FLG_2E_ENFANT"_s);
    TControleurEssai essai(base);
    essai.Charger();
    TImportRegistre import(essai.Controleur);
    const QString fichier = TFichierRegistre(disposition).Ecrire(base);
    for (int fois = 0; fois < 2; ++fois) {
      ASSERT_TRUE(import.Etape1(fichier));
      EXPECT_EQ(import.NombreEleves(), 9);
      const TBilanRegistre bilan = import.Etape2();
      EXPECT_EQ(bilan.Lignes, 9);
      EXPECT_EQ(bilan.Crees, fois == 0 ? 8 : 0);
      EXPECT_EQ(bilan.Modifies, fois == 0 ? 1 : 9);
      EXPECT_FALSE(import.Pret());
      const QStringList eleves = base.Rangees(kEleves);
      ASSERT_EQ(eleves.size(), 9);
      EXPECT_EQ(eleves[1], disposition == 1 ? u"1234-1;Nom 1234-1;12;1300;Père;Mère;7;0;Namur"_s
                                            : u"1234-1;Nom 1234-1;12;1300;Père;Mère;;0;"_s);
      EXPECT_EQ(base.Valeur(u"SELECT FLG_2E_ENFANT FROM ELEVES WHERE ELEVE_ID = 1"_s), u"1");
      const QStringList classes = base.Rangees(kClasses);
      ASSERT_EQ(classes.size(), 9) << "one enrolment a pupil and year";
      EXPECT_EQ(classes[0], u"1;2016;P3;B;SITE");
      EXPECT_EQ(Globals.Eleves->Count(), 9) << "the working year is on display";
    }
  }
}

TEST_F(ImportRegistre, TheEffectIsToldBeforeStepTwo) {
  ecole.unEleve().matricule(u"1234-3"_s).enClasse(u"P3"_s, u"B"_s, u"SITE"_s);
  ecole.unEleve().nomme(u"PARTI"_s, u"Luc"_s).enClasse(u"P1"_s, u"A"_s, u"SITE"_s);
  ecole.unEleve().enClasse(u"PROFESSEURS"_s, {});
  essai.Charger();
  TImportRegistre import(essai.Controleur);
  ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Mettre(5, 6, u"hier"_s).Mettre(2, 1, {}).Ecrire(base)));
  const TEffetRegistre effet = import.Effet();
  using enum TSortLigne;
  EXPECT_EQ(effet.Lignes,
            (std::vector{Nouveau, Nouveau, Modifie, Nouveau, Illisible, Nouveau, Nouveau, Nouveau, Nouveau}));
  ASSERT_EQ(effet.Partis.size(), 1U) << "teachers are in no register";
  EXPECT_EQ(effet.Partis[0].Nom + effet.Partis[0].Classe, u"PARTIP1 A");
  EXPECT_EQ(effet.SansSite, QStringList{u"Nom 1234-2 Zoé"_s});
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM ELEVES"_s), u"3") << "nothing is changed";

  ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Ecrire(base)));
  import.Etape2();
  ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Mettre(4, 18, u"C"_s).Ecrire(base)));
  EXPECT_EQ(import.Effet().Nombre(Inchange), 8);
  EXPECT_EQ(import.Effet().Lignes[3], Modifie) << "another class";

  // What counts is the working year, whichever is on display.
  essai.Controleur.ChargerAnnee(2015);
  EXPECT_EQ(import.Effet().Nombre(Inchange), 8);
  ASSERT_EQ(import.Effet().Partis.size(), 1U);
  // Until somebody is enrolled in it, as after a closing, the year before tells who is gone.
  Globals.AnneeScolaire = 2017;
  base.Sql(u"UPDATE ELEVES_CLASSES SET ANNEE_SCOLAIRE = 2017 WHERE CLASSE = 'PROFESSEURS'"_s);
  EXPECT_EQ(import.Effet().Nombre(Modifie), 9);
  EXPECT_EQ(import.Effet().Partis[0].Nom, u"PARTI");
}

TEST_F(ImportRegistre, FiltersAndShortFiles) {
  ecole.parametre(6, u"2"_s);
  ecole.parametre(31, u"AUTRE"_s);
  essai.Charger();
  TFichierRegistre fichier(2);
  for (int i = 10; i <= 13; ++i) fichier.Ajouter(u"1234-%1"_s.arg(i));
  // Field 1 tells the establishment in both layouts; an empty one stays.
  fichier.Mettre(1, 1, u"SITE"_s).Mettre(2, 1, u"AUTRE"_s).Mettre(3, 22, u"SectionM"_s);
  TImportRegistre import(essai.Controleur);
  EXPECT_TRUE(import.Etape1(fichier.Ecrire(base)));
  EXPECT_EQ(import.NombreEleves(), 11);
  fichier.Mettre(4, 22, {}).Mettre(5, 22, {}).Mettre(6, 22, {});
  EXPECT_FALSE(import.Etape1(fichier.Ecrire(base))) << "nine rows with the header";
  // A missing file, and one that opens but whose reading fails.
  for (const QString& illisible : {base.Chemin(u"absent"_s), u"/proc/self/mem"_s})
    EXPECT_THROW(import.Etape1(illisible), Exception) << illisible.toStdString();
  EXPECT_FALSE(import.Pret());
}

TEST_F(ImportRegistre, TheClosingMovesTheYearOnce) {
  const int frais = ecole.frais(u"Piscine"_s, u"12.5"_s, 10);
  ecole.unEleve().enClasse(u"P1"_s, u"A"_s).doit(frais, u"2.5"_s).mois(10, u"30"_s);
  essai.Charger();
  TFichierRegistre fichier(1);
  TImportRegistre import(essai.Controleur);
  EXPECT_TRUE(import.Etape1(fichier.Mettre(1, 16, u"30/06/2017"_s).Ecrire(base)));
  const QString nouvelle = fichier.Mettre(1, 16, u"2017/07/01"_s).Ecrire(base);
  essai.Controleur.ChargerAnnee(2015);
  base.Dialogues.Repond(kQuestion + u"\r\n\r\nAttention : l'année affichée est 2015 - 2016."_s, false);
  EXPECT_FALSE(import.Etape1(nouvelle)) << "the accounts of another year would be written";
  essai.Controleur.ChargerAnnee(2016);
  base.Dialogues.Repond(kQuestion + u"\r\n\r\nLa clôture écrit la balance de 1 élève pour l'année 2016"_s,
                        false);
  EXPECT_FALSE(import.Etape1(nouvelle));
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM BALANCE"_s), u"0");
  base.Dialogues.Repond(kQuestion, true)
      .Attend(u"L'année scolaire est clôturée.\r\nVous pouvez commnencer"_s);
  EXPECT_TRUE(import.Etape1(nouvelle));
  EXPECT_EQ(base.Rangees(u"SELECT * FROM BALANCE"_s), QStringList{"1;1;2016;30.0000;-10.0000;20.0000"});
  EXPECT_EQ(Globals.AnneeScolaire, 2017);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2016) << "the display stays until the transfer";
  import.Etape2();
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2017);
  EXPECT_EQ(Globals.Eleves->Count(), 9) << "a pupil absent from the file is not enrolled";

  // The year itself is refused: what is saved next does not move it either.
  Globals.Parametres->SetParametre(TParam::AnneeScolaire, u"2016"_s);
  Globals.Parametres->Save();
  Globals.AnneeScolaire = 2016;
  essai.Controleur.ChargerAnnee(2016);
  base.Sql(u"DELETE FROM BALANCE"_s);
  base.Sql(u"ALTER TABLE PARAMETRE ADD CONSTRAINT PAS_2017 CHECK (VALEUR <> '2017')"_s);
  base.Dialogues.Repond(kQuestion, true);
  EXPECT_THROW(import.Etape1(nouvelle), ECloture);
  base.Sql(u"ALTER TABLE PARAMETRE DROP CONSTRAINT PAS_2017"_s);
  Globals.Parametres->SetParametre(TParam::NomEcole, u"École"_s);
  Globals.Parametres->Save();
  EXPECT_EQ(base.Valeur(u"SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 27"_s), u"2016");
}

TEST_F(ImportRegistre, ARowThatCannotBeStoredStopsAndTheRestCanFollow) {
  const QString tropLong = u"Un texte est trop long pour la base de données."_s;
  const struct {
    int colonne;
    QString texte, attendu;
    int eleves = 4;
  } cas[] = {
      {6, u"2010/02/28"_s, u"2010/02/28"_s},
      {6, {}, u"«  »"_s},
      {14, u"B-1300"_s, u"« B-1300 » n'est pas un nombre entier"_s},
      {14, {}, u"n'est pas un nombre entier"_s},
      {1, QString(11, u'S'), u"Le code d'implantation « SSSSSSSSSSS » a plus de 10 caractères."_s},
      {22, QString(51, u'R'), tropLong},
      {17, QString(41, u'C'), tropLong, 5},
  };
  for (const auto& c : cas) {
    SCOPED_TRACE(qPrintable(c.texte));
    TBaseEssai base;
    TControleurEssai essai(base);
    essai.Charger();
    TImportRegistre import(essai.Controleur);
    ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Mettre(5, c.colonne, c.texte).Ecrire(base)));
    const QString dit = Refus([&] { import.Etape2(); });
    EXPECT_TRUE(dit.startsWith(u"Ligne 6 du fichier (Nom 1234-5 Zoé) : ") && dit.contains(c.attendu))
        << dit.toStdString();
    EXPECT_EQ(base.Rangees(kEleves).size(), c.eleves);
    EXPECT_EQ(base.Rangees(kClasses).size(), 4);
    essai.Controleur.ChargerAnnee(2016);
    ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Ecrire(base)));
    EXPECT_EQ(import.Etape2().Crees, 9 - c.eleves);
    EXPECT_EQ(Globals.Eleves->Count(), 9);
  }
}

TEST_F(ImportRegistre, WithoutItsCounterNothingIsCalledDone) {
  for (const QString& table : {u"ELEVES"_s, u"ELEVES_CLASSES"_s}) {
    TBaseEssai base;
    TControleurEssai essai(base);
    essai.Charger();
    TImportRegistre import(essai.Controleur);
    ASSERT_TRUE(import.Etape1(TFichierRegistre(1).Ecrire(base)));
    base.Sql(QString(u"DELETE FROM COUNTERS WHERE TABLE_NAME = '" % table % u"'"));
    base.Dialogues.Attend(QString(u"Le compteur de table " % table % u" n'existe pas !"));
    EXPECT_THROW(import.Etape2(), Exception);
    EXPECT_TRUE(base.Rangees(kClasses).isEmpty());
    base.Sql(QString(u"INSERT INTO COUNTERS VALUES ('" % table % u"', 0)"));
    EXPECT_EQ(import.Etape2().Lignes, 9);
    EXPECT_EQ(base.Rangees(kEleves).size(), 9);
    EXPECT_EQ(base.Rangees(kClasses).size(), 9);
  }
}
