#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "core/exceptions.h"
#include "support/controleur_essai.h"
#include "workflows/import_presences.h"

namespace {

/// A school with the usual windows and one pupil, code 11 (register number "1-1").
struct TEcoleScannee {
  TEcoleScannee() {
    using namespace Essai;
    ecole.tarif(Matin, TousLesJours, QStringLiteral("07:00"), QStringLiteral("08:30"), Forfait,
                QStringLiteral("1"), ScanPresence);
    ecole.tarif(Soir, TousLesJours, QStringLiteral("15:30"), QStringLiteral("18:00"), Forfait,
                QStringLiteral("1"), ScanSortie);
    ecole.tarif(FamilleEtude, TousLesJours, QStringLiteral("15:30"), QStringLiteral("16:30"), Forfait,
                QStringLiteral("1"), ScanSortie);
    ecole.unEleve().enClasse(QStringLiteral("P1"), QStringLiteral("A"), QStringLiteral("S1"));
  }
  void avecRepas() {
    using namespace Essai;
    ecole.tarif(FamilleRepas, TousLesJours, QStringLiteral("11:30"), QStringLiteral("13:30"), Forfait,
                QStringLiteral("1"), ScanPresence);
  }
  QString fichier(const QByteArray& lignes) { return base.Fichier(QStringLiteral("scans.txt"), lignes); }
  QStringList rangees() {
    return base.Rangees(
        QStringLiteral("SELECT TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE, HEURE_SORTIE, CODE_IMPLANTATION "
                       "FROM PRESENCES ORDER BY "
                       "PRESENCE_ID"));
  }
  TBaseEssai base;
  TEcoleEssai ecole{base};
};

const QString kAnomalies = QStringLiteral("Des anomalies ont été détectées !");
const QString kMemorisees = QStringLiteral("Les présences ont été mémorisées.");

}  // namespace

TEST(ImportPresences, LinesBecomeRecords) {
  TEcoleScannee ecole;
  TControleurEssai essai(ecole.base);
  essai.Charger();
  TImportPresences import(essai.Controleur);
  ecole.base.Dialogues.Attend(kAnomalies);
  import.ImporterFichier(
      ecole.fichier("11;1;20161003;073015000;1\r\n"   // entry; the seconds are lost
                    "11;1;20161004;110000000;2\r\n"   // an exit at 11:00 is an entry, in no window
                    "11;1;20161005;110100000;2\r\n"   // at 11:01 it stays an exit
                    "11;4;20161003;160000000;1\r\n"   // study is always an exit
                    "1-1;1;20161003;073000000;1\r\n"  // with its dash the number is unknown
                    "99;4;20161006;160000000;1\r\n"
                    "11;3;20161003;120000000;1\r\n"         // a soup is tested by the rows of meals
                    "11;1;20161008;073000000;1\r\n\r\n"));  // Saturday
  ASSERT_EQ(import.Bons().size(), 2U);
  EXPECT_EQ(import.Bons()[0]->HeureEntree, EncodeTime(7, 30));
  EXPECT_EQ(import.Bons()[1]->HeureSortie, EncodeTime(16, 0));
  ASSERT_EQ(import.Anomalies().size(), 6U);
  EXPECT_EQ(import.Anomalies()[0].Matricule, u"1-1");
  EXPECT_EQ(import.Anomalies()[1].Sortie, EncodeTime(16, 0)) << "the sweep of study rows comes first";
  EXPECT_EQ(import.Anomalies()[2].Presence->HeureEntree, EncodeTime(11, 0));
  EXPECT_EQ(import.Anomalies()[3].Presence->HeureSortie, EncodeTime(11, 1));
  EXPECT_EQ(import.Anomalies()[4].Presence->TypePresence, TTypePresence::Soupe);
  EXPECT_EQ(import.NombreEntrees(), 8);
  EXPECT_EQ(import.NombreBons(), 2);
  EXPECT_EQ(import.NombreAnomalies(), 6);

  ecole.base.Dialogues.Attend(QStringLiteral("La correction ne peut se faire que sur un élève existant"));
  EXPECT_FALSE(import.Corriger(0, TTypePresence::Garderie, 0, 0, 0));
  EXPECT_TRUE(import.Corriger(5, TTypePresence::Garderie, EncodeDate(2016, 10, 7), EncodeTime(17, 0),
                              EncodeTime(15, 45)));
  EXPECT_TRUE(ecole.rangees().isEmpty()) << "nothing is stored before step 2";
  ecole.base.Dialogues.Attend(kMemorisees);
  import.Etape2();
  EXPECT_FALSE(import.Pret());
  EXPECT_EQ(ecole.rangees(), (QStringList{"1;2016-10-03;07:30:00.000;-;", "4;2016-10-03;-;16:00:00.000;",
                                          "1;2016-10-07;15:45:00.000;17:00:00.000;"}));
  EXPECT_TRUE(QFile::exists(ecole.base.Chemin(QStringLiteral("scans.txt")))) << "a file chosen by hand stays";
}

TEST(ImportPresences, TheDayFlatRateMakesAMealADayCareToo) {
  TEcoleScannee ecole;
  ecole.avecRepas();
  ecole.ecole.parametre(30, QStringLiteral("1"));
  TControleurEssai essai(ecole.base);
  essai.Charger();
  TImportPresences import(essai.Controleur);
  ecole.base.Dialogues.Attend(kAnomalies).Attend(kMemorisees);
  import.ImporterFichier(
      ecole.fichier("11;2;20161003;120000000;1\n11;2;20161004;123000000;2\n11;2;20161005;140000000;1\n"));
  ASSERT_EQ(import.Bons().size(), 5U) << "the derived record needs no tariff, not even that of its meal";
  ASSERT_EQ(import.Anomalies().size(), 1U);
  EXPECT_EQ(import.Bons()[1]->HeureEntree, EncodeTime(12, 0, 8, 640));
  EXPECT_EQ(import.Bons()[3]->HeureEntree, EncodeTime(12, 30));
  EXPECT_EQ(import.Bons()[3]->HeureSortie, EncodeTime(12, 30));
  import.Etape2();
  EXPECT_EQ(ecole.rangees()[1], u"1;2016-10-03;12:00:08.640;-;");
}

TEST(ImportPresences, TheSiteComesFromThePath) {
  TEcoleScannee ecole;
  for (const int id : {1, 2, 3})
    ecole.base.Sql(QStringLiteral("INSERT INTO IMPLANTATION (IMPLANTATION_ID, CODE_IMPLANTATION, "
                                  "LIBELLE_COURT) VALUES (%1, 'C%1', '%2')")
                       .arg(id)
                       .arg(id == 1 ? QString() : QStringLiteral("Étang")));
  ecole.base.Sql(QStringLiteral("UPDATE COUNTERS SET VALEUR = 3 WHERE TABLE_NAME = 'IMPLANTATION'"));
  TControleurEssai essai(ecole.base);
  essai.Charger();
  const QString chemin = QStringLiteral("/scans/ÉTANG-octobre.txt");
  EXPECT_EQ(TImportPresences::SiteDuChemin(chemin), u"") << "one site unless parameter 113 says otherwise";
  ecole.ecole.parametre(113, QStringLiteral("1"));
  Globals.Parametres = std::make_unique<TParametres>(*ecole.base);
  EXPECT_EQ(TImportPresences::SiteDuChemin(chemin), u"C2");
  EXPECT_EQ(TImportPresences::SiteDuChemin(QStringLiteral("/ailleurs.txt")), u"");
}

TEST(ImportPresences, MalformedFilesStoreNothing) {
  TEcoleScannee ecole;
  TControleurEssai essai(ecole.base);
  essai.Charger();
  TImportPresences import(essai.Controleur);
  const QByteArray bonne = "11;1;20161003;073000000;1\n";
  for (const QByteArray& mauvaise :
       {QByteArray("11;x;20161003;0730;1\n"), QByteArray("11;1;20161003;0730;\n"),
        QByteArray("11;1;20161303;0730;1\n"), QByteArray("11;1;20161003;2530;1\n"), QByteArray("\n"),
        QByteArray("11\n"), QByteArray("11;1;2016;07;1\n")}) {
    try {
      import.ImporterFichier(ecole.fichier(bonne + mauvaise + bonne));
      ADD_FAILURE() << mauvaise.toStdString();
    } catch (const EConvertError& e) {
      EXPECT_TRUE(e.Message.startsWith(u"Ligne 2 : ")) << e.what();
    }
    EXPECT_FALSE(import.Pret());
    EXPECT_TRUE(import.Bons().empty());
  }
  EXPECT_THROW(import.ImporterFichier(ecole.fichier(QByteArray("\0\1\2", 3))), Exception);
  EXPECT_THROW(import.ImporterFichier(ecole.base.Chemin({})), Exception);
}

TEST(ImportPresences, ArchivingTheScannersAndTheTabletsFiles) {
  TEcoleScannee ecole;
  ecole.avecRepas();
  TControleurEssai essai(ecole.base);
  essai.Charger();
  ecole.base.Reglages.Ecrire(TRacine::Utilisateur, QStringLiteral("DossierPresences"),
                             ecole.base.Chemin(QStringLiteral("archives")));
  Globals.DossierTemporaire = ecole.base.Chemin({});
  TImportPresences import(essai.Controleur);
  ecole.base.Fichier(QStringLiteral("Presences.txt"), "copie du scanner");
  import.ImporterFichier(ecole.fichier("11;1;20161003;073000000;1\n"));
  ecole.base.Dialogues.Attend(kMemorisees);
  import.Etape2();
  const QString archive = ecole.base.Chemin(QStringLiteral("archives/Presences-3.10.2016-7h5m0s.txt"));
  EXPECT_TRUE(QFile::exists(archive));
  EXPECT_FALSE(QFile::exists(ecole.base.Chemin(QStringLiteral("Presences.txt"))));

  const QString tablette = ecole.base.Fichier(QStringLiteral("presences.txt"),
                                              "11;2;20161003;120000000;1\n77;2;20161003;120000000;1\n");
  import.ImporterTablette(tablette);
  EXPECT_EQ(import.Anomalies().size(), 1U);
  essai.Horloge.Moment = EncodeDate(2016, 10, 13) + EncodeTime(15, 35, 9);
  import.StockerTablette(tablette);
  EXPECT_FALSE(QFile::exists(tablette));
  EXPECT_TRUE(QFile::exists(ecole.base.Chemin(QStringLiteral("archives/Presences-13.10.2016-15h35m9s.txt"))));
  EXPECT_EQ(ecole.rangees().size(), 2);
}

TEST(ImportPresences, WithoutItsCounterNothingIsCalledDone) {
  TEcoleScannee ecole;
  TControleurEssai essai(ecole.base);
  essai.Charger();
  TImportPresences import(essai.Controleur);
  import.ImporterFichier(ecole.fichier("11;1;20161003;073000000;1\n11;1;20161004;160000000;2\n"));
  ecole.base.Sql(QStringLiteral("DELETE FROM COUNTERS WHERE TABLE_NAME = 'PRESENCES'"));
  ecole.base.Dialogues.Attend(QStringLiteral("Le compteur de table PRESENCES n'existe pas !"));
  EXPECT_THROW(import.Etape2(), Exception);
  EXPECT_TRUE(import.Pret());
  EXPECT_TRUE(ecole.rangees().isEmpty());
  ecole.base.Sql(QStringLiteral("INSERT INTO COUNTERS VALUES ('PRESENCES', 0)"));
  ecole.base.Dialogues.Attend(kMemorisees);
  import.Etape2();
  EXPECT_EQ(ecole.rangees(), (QStringList{"1;2016-10-03;07:30:00.000;-;", "1;2016-10-04;-;16:00:00.000;"}));
}

TEST(ImportPresences, TheLinesOfTheTwoGrids) {
  TEcoleScannee ecole;
  TControleurEssai essai(ecole.base);
  essai.Charger();
  TImportPresences import(essai.Controleur);
  ecole.base.Dialogues.Attend(kAnomalies);
  import.ImporterFichier(
      ecole.fichier("11;1;20161003;073015000;1\n99;4;20161006;160000000;1\n11;2;20161005;120000000;1\n"));
  ASSERT_EQ(import.Bons().size(), 1U);
  ASSERT_EQ(import.Anomalies().size(), 2U);
  EXPECT_EQ(LigneRecapitulatif(*import.Bons()[0]),
            (QStringList{"Eleve1", "Prenom1", "lundi 3 octobre", "Garderie", "07:30", "", "1-1"}));
  EXPECT_EQ(LigneAnomalie(import.Anomalies()[0]),
            (QStringList{"Matricule inconnu (99)", "", "jeudi 6 octobre", "Etude", "", "16:00", ""}));
  EXPECT_EQ(LigneAnomalie(import.Anomalies()[1]),
            (QStringList{"Eleve1", "Prenom1", "mercredi 5 octobre", "Repas", "12:00", "", "1-1"}));
}
