#include <QDir>

#include "support/controleur_essai.h"
#include "support/refus.h"
#include "workflows/import_presences.h"

namespace {

/// A school with the usual windows and one pupil, code 11 (register number "1-1").
struct TScansEssai : TEssaiControleur {
  TScansEssai() {
    using namespace Essai;
    tarif(Matin, u"07:00"_s, u"08:30"_s, ScanPresence);
    tarif(Soir, u"15:30"_s, u"18:00"_s, ScanSortie);
    tarif(FamilleEtude, u"15:30"_s, u"16:30"_s, ScanSortie);
    ecole.unEleve().enClasse(u"P1"_s, u"A"_s, u"S1"_s);
  }
  void tarif(int famille, const QString& debut, const QString& fin, int scan) {
    ecole.tarif(famille, Essai::TousLesJours, debut, fin, Essai::Forfait, u"1"_s, scan);
  }
  void charger(bool avecRepas = false) {
    if (avecRepas) tarif(Essai::FamilleRepas, u"11:30"_s, u"13:30"_s, Essai::ScanPresence);
    essai.Charger();
  }
  QString fichier(const QByteArray& lignes) { return base.Fichier(u"scans.txt"_s, lignes); }
  QStringList rangees() {
    return base.Rangees(
        u"SELECT TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE, HEURE_SORTIE, CODE_IMPLANTATION FROM PRESENCES "
        "ORDER BY PRESENCE_ID"_s);
  }
  TImportPresences import{essai.Controleur};
};

const QString kAnomalies = u"Des anomalies ont été détectées !"_s;
const QString kMemorisees = u"Les présences ont été mémorisées."_s;

}  // namespace

TEST_F(TScansEssai, LinesBecomeRecords) {
  charger();
  base.Dialogues.Attend(kAnomalies);
  import.ImporterFichier(
      fichier("11;1;20161003;073015000;1\r\n"   // entry; the seconds are lost
              "11;1;20161004;110000000;2\r\n"   // an exit at 11:00 is an entry, in no window
              "11;1;20161005;110100000;2\r\n"   // at 11:01 it stays an exit
              "11;4;20161003;160000000;1\r\n"   // study is always an exit
              "1-1;1;20161003;073000000;1\r\n"  // with its dash the number is unknown
              "99;4;20161006;160000000;1\r\n"
              "11;3;20161003;120000000;1\r\n"         // a soup is tested by the rows of meals
              "11;1;20161008;073000000;1\r\n\r\n"));  // Saturday
  ASSERT_EQ(import.Bons().size(), 2U);
  EXPECT_EQ(LigneRecapitulatif(*import.Bons()[0]), (TCellules{u"Eleve1"_s, u"Prenom1"_s, J("2016-10-03"),
                                                              u"Garderie"_s, H("07:30"), 0.0, u"1-1"_s}));
  EXPECT_EQ(import.Bons()[1]->HeureSortie, EncodeTime(16, 0));
  ASSERT_EQ(import.Anomalies().size(), 6U);
  EXPECT_EQ(import.Anomalies()[0].Matricule, u"1-1");
  EXPECT_EQ(LigneAnomalie(import.Anomalies()[1]),
            (TCellules{u"Matricule inconnu (99)"_s, QString(), J("2016-10-06"), u"Etude"_s, 0.0, H("16:00"),
                       QString()}))
      << "the sweep of study rows comes first";
  EXPECT_EQ(import.Anomalies()[2].Presence->HeureEntree, EncodeTime(11, 0));
  EXPECT_EQ(LigneAnomalie(import.Anomalies()[3]), (TCellules{u"Eleve1"_s, u"Prenom1"_s, J("2016-10-05"),
                                                             u"Garderie"_s, 0.0, H("11:01"), u"1-1"_s}));
  EXPECT_EQ(import.Anomalies()[4].Presence->TypePresence, TTypePresence::Soupe);
  EXPECT_EQ(import.NombreEntrees(), 8);

  base.Dialogues.Attend(u"La correction ne peut se faire que sur un élève existant"_s);
  EXPECT_FALSE(import.Corriger(0, TTypePresence::Garderie, 0, 0, 0, {}));
  EXPECT_TRUE(import.Corriger(5, TTypePresence::Garderie, EncodeDate(2016, 10, 7), EncodeTime(17, 0),
                              EncodeTime(15, 45), {}));
  EXPECT_TRUE(rangees().isEmpty()) << "nothing is stored before step 2";
  base.Dialogues.Attend(kMemorisees);
  import.Etape2();
  EXPECT_FALSE(import.Pret());
  EXPECT_EQ(rangees(), (QStringList{"1;2016-10-03;07:30:00.000;-;", "4;2016-10-03;-;16:00:00.000;",
                                    "1;2016-10-07;15:45:00.000;17:00:00.000;"}));
  EXPECT_TRUE(QFile::exists(base.Chemin(u"scans.txt"_s))) << "a file chosen by hand stays";
}

TEST_F(TScansEssai, StepTwoTellsWhatItStoredAndTheRestCanFollow) {
  charger();
  base.Dialogues.Attend(kAnomalies).Attend(kMemorisees);
  import.ImporterFichier(
      fichier("11;1;20161003;073015000;1\n11;1;20150903;073000000;1\n11;1;20161004;110000000;2\n"));
  EXPECT_EQ(import.NombreHorsAnnee(), 1);
  EXPECT_EQ(TexteDe(TGenre::DateLongue, LigneRecapitulatif(*import.Bons()[1])[2]), u"jeudi 3 septembre 2015")
      << "another year is seen";
  import.Etape2();
  EXPECT_EQ(import.Bilan().Memorisees, 2);
  EXPECT_FALSE(import.Pret());

  EXPECT_TRUE(
      import.Corriger(0, TTypePresence::Garderie, EncodeDate(2016, 10, 4), 0, EncodeTime(7, 45), u"S1"_s));
  EXPECT_TRUE(import.Pret()) << "what is corrected after a step 2 waits for another one";
  EXPECT_EQ(import.NombreNonMemorises(), 1);
  base.Dialogues.Attend(kMemorisees);
  import.Etape2();
  EXPECT_EQ(rangees().value(2), u"1;2016-10-04;07:45:00.000;-;S1");
}

TEST_F(TScansEssai, TheDayFlatRateMakesAMealADayCareToo) {
  ecole.parametre(30, u"1"_s);
  charger(true);
  base.Dialogues.Attend(kAnomalies).Attend(kMemorisees);
  import.ImporterFichier(
      fichier("11;2;20161003;120000000;1\n11;2;20161004;123000000;2\n11;2;20161005;140000000;1\n"));
  ASSERT_EQ(import.Bons().size(), 5U) << "the derived record needs no tariff, not even that of its meal";
  ASSERT_EQ(import.Anomalies().size(), 1U);
  EXPECT_EQ(import.Bons()[1]->HeureEntree, EncodeTime(12, 0, 8, 640));
  EXPECT_EQ(import.Bons()[3]->HeureEntree, EncodeTime(12, 30));
  EXPECT_EQ(import.Bons()[3]->HeureSortie, EncodeTime(12, 30));
  import.Etape2();
  EXPECT_EQ(rangees()[1], u"1;2016-10-03;12:00:08.640;-;");
}

TEST_F(TScansEssai, TheSiteComesFromThePath) {
  for (const int id : {1, 2, 3})
    ecole.Ajouter(u"IMPLANTATION"_s, u"IMPLANTATION_ID, CODE_IMPLANTATION, LIBELLE_COURT"_s,
                  {u"'C%1'"_s.arg(id), id == 1 ? u"''"_s : u"'Étang'"_s});
  charger();
  const QString chemin = u"/scans/ÉTANG-octobre.txt"_s;
  EXPECT_EQ(TImportPresences::SiteDuChemin(chemin), u"") << "one site unless parameter 113 says otherwise";
  ecole.parametre(113, u"1"_s);
  Globals.Parametres = std::make_unique<TParametres>(*base);
  EXPECT_EQ(TImportPresences::SiteDuChemin(chemin), u"C2");
  EXPECT_EQ(TImportPresences::SiteDuChemin(u"/ailleurs.txt"_s), u"");
}

TEST_F(TScansEssai, MalformedFilesStoreNothing) {
  charger();
  const QByteArray bonne = "11;1;20161003;073000000;1\n";
  for (const QByteArray& mauvaise :
       {QByteArray("11;x;20161003;0730;1\n"), QByteArray("11;1;20161003;0730;\n"),
        QByteArray("11;1;20161303;0730;1\n"), QByteArray("11;1;20161003;2530;1\n"), QByteArray("\n"),
        QByteArray("11\n"), QByteArray("11;1;2016;07;1\n")}) {
    const QString dit =
        Refus<EConvertError>([&] { import.ImporterFichier(fichier(bonne + mauvaise + bonne)); });
    EXPECT_TRUE(dit.startsWith(u"Ligne 2 : ")) << mauvaise.toStdString() << dit.toStdString();
    EXPECT_FALSE(import.Pret());
    EXPECT_TRUE(import.Bons().empty());
  }
  EXPECT_THROW(import.ImporterFichier(fichier(QByteArray("\0\1\2", 3))), Exception);
  EXPECT_THROW(import.ImporterFichier(base.Chemin({})), Exception);
}
