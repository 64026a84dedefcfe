#include "screens/attendance/frm_ajout_releve.h"
#include "screens/presences_essai.h"

namespace {

const QString kImporter = u"Importer un fichier de présence"_s;
const QString kAnomalies = u"Des anomalies ont été détectées !"_s;
const QString kInexistant = u"La correction ne peut se faire que sur un élève existant"_s;

/// The fields of the dialog of a record.
enum { Date, Type, Debut, Fin, Site };
QString Champs(TFrmAjoutReleve& saisie) {
  QStringList textes;
  for (const int champ : {Date, Type, Debut, Fin}) textes += saisie.Champs().Texte(champ);
  return textes.join(u'|');
}

class FrmPresences : public TPresencesEssai {
 protected:
  void Importer(const QByteArray& lignes, bool anomalies = false) {
    Base.Dialogues.Saisit(kImporter, Base.Fichier(u"scans.txt"_s, lignes));
    if (anomalies) Base.Dialogues.Attend(kAnomalies);
    Form.Importerunfichierdeprsence1Click();
  }
  QStringList Lignes(const TGrille& grille) const {
    QStringList lignes;
    for (int i = 0; i < grille.NombreLignes(); ++i)
      lignes += QString(grille.Texte(i, TfrmPresences::Nom) % u'|' % grille.Texte(i, TfrmPresences::Type) %
                        u'|' % grille.Texte(i, TfrmPresences::Etat));
    return lignes;
  }
  QString Comptes() const {
    const auto& c = Form.Compteurs();
    return u"%1 %2 %3 %4"_s.arg(c.lblEntree).arg(c.lblRecap).arg(c.lblAnomalie).arg(c.lblTotal) %
           (c.AJour ? u"" : u" ?");
  }
};

const QByteArray kScans =
    "11;1;20161003;073015000;1\n99;4;20161006;160000000;1\n11;2;20161003;120000000;1\n"
    "11;1;20161004;110100000;2\n";

}  // namespace

// What a correction does and what is stored: in the tests of the import and of the window.
TEST_F(FrmPresences, TheCountersAndTheNoteOfTheAnomalies) {
  Base.Dialogues.Saisit(kImporter, {});
  Form.Importerunfichierdeprsence1Click();
  EXPECT_FALSE(Form.FichierLu());
  Importer(kScans, true);
  EXPECT_EQ(Form.EnSuspens(), u"3 relevés non mémorisés, 1 anomalie non corrigée");
  EXPECT_EQ(Lignes(Form.Anomalies),
            (QStringList{"Matricule inconnu (99)|Etude|Inconnu", "Eleve1|Garderie|Sans tarif"}));
  EXPECT_EQ(Comptes(), u"4 3 2 5");
  EXPECT_EQ(Form.NoteAnomalies(), u"2 lignes ne seront pas mémorisées tant qu'elles ne sont pas corrigées");
  Form.Anomalies.ChoisirLigne(1);
  Ecran.SurModale = [](TForm& form) { dynamic_cast<TFrmAjoutReleve&>(form).Annuler(); };
  Form.Corrigerlerelev1Click();
  EXPECT_EQ(Form.Anomalies.NombreLignes(), 2) << "given up";
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_TRUE(Form.PeutCorriger()) << "also after a step 2";
  EXPECT_EQ(Form.NoteAnomalies(), u"2 lignes n'ont pas été mémorisées");
  // The device holds them no more: only the known pupil's can be corrected, and that is asked about.
  const QString question = u"1 anomalie non corrigée.\nContinuer sans les mémoriser ?"_s;
  Base.Dialogues.Repond(question, false).Repond(question, false).Repond(question, true);
  Form.Importerunfichierdeprsence1Click();
  EXPECT_FALSE(Form.Fermer());
  EXPECT_EQ(Form.Anomalies.NombreLignes(), 2);
  EXPECT_TRUE(Form.Fermer());
  EXPECT_EQ(Ecran.Etats.last(), u"1 anomalie non corrigée");
}

TEST_F(FrmPresences, ACorrectionThatNoTariffCountsIsReadyAndSaidToBeSo) {
  Importer("11;1;20161004;110100000;2\n", true);
  Ecran.Modale<TFrmAjoutReleve>([](TFrmAjoutReleve& saisie) {
    EXPECT_TRUE(saisie.Note.endsWith(u"Heure de fin à corriger : 11:01")) << saisie.Note.toStdString();
    saisie.Champs().Taper(Fin, u"23:00"_s);
    EXPECT_TRUE(saisie.BitBtn1Click());
  });
  Form.Corrigerlerelev1Click();
  EXPECT_EQ(Lignes(Form.Recapitulatif), QStringList{"Eleve1|Garderie|Sans tarif"});
  EXPECT_TRUE(Ecran.Etats.last().startsWith(u"Relevé corrigé, mais aucun tarif"));
}

TEST_F(FrmPresences, APupilWhoIsGoneIsNotCorrected) {
  Importer("11;1;20161004;110100000;2\n", true);
  Globals.Eleves->RemoveEleve(*Globals.Eleves->TrouverParCode(u"11"_s));
  Base.Dialogues.Attend(kInexistant);
  Form.Corrigerlerelev1Click();
  EXPECT_EQ(Form.Anomalies.NombreLignes(), 1);
}

TEST_F(FrmPresences, AStepTwoThatFailsCanBeTakenAgain) {
  Importer("11;1;20161003;073015000;1\n11;1;20161003;073015000;1\n");
  Base.Sql(u"DELETE FROM COUNTERS WHERE TABLE_NAME = 'PRESENCES'"_s);
  Base.Dialogues.Attend(u"Le compteur de table PRESENCES n'existe pas !"_s);
  EXPECT_THROW(Form.btnEtape2Click(), Exception);
  EXPECT_TRUE(Form.Etape2Active());
  EXPECT_FALSE(Form.Recapitulatif.Ligne(1).Objet) << "the second was dropped";
  Base.Dialogues.Repond(u"1 relevé non mémorisé.\nContinuer sans"_s, true);
  EXPECT_TRUE(Form.Fermer());
  EXPECT_EQ(Ecran.Etats.last(), u"1 relevé non mémorisé");
  Base.Sql(u"INSERT INTO COUNTERS VALUES ('PRESENCES', 0)"_s);
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_EQ(Stockees(), u"1");
}

TEST_F(FrmPresences, NothingThatWasReadGoesInSilence) {
  Importer("11;1;20161003;073015000;1\n11;1;20150903;073000000;1\n");
  EXPECT_EQ(Lignes(Form.Recapitulatif).last(), u"Eleve1|Garderie|Hors de l'année");
  EXPECT_EQ(Form.NoteRecapitulatif(), u"2 relevés prêts, dont 1 hors de l'année");
  const QString question = u"2 relevés non mémorisés.\nContinuer sans les mémoriser ?"_s;
  Base.Dialogues.Repond(question, false).Repond(question, false).Repond(u"1 relevé est daté hors"_s, false);
  EXPECT_FALSE(Form.Fermer());
  Form.Importerunfichierdeprsence1Click();
  EXPECT_EQ(Form.Recapitulatif.NombreLignes(), 2) << "another file does not take its place";
  Form.btnEtape2Click();
  EXPECT_EQ(Stockees(), u"0");
  Base.Dialogues.Repond(u"hors de l'année affichée, 2016 - 2017"_s, true).Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_EQ(Stockees(), u"2");
  Importer("11;1;20161003;073015000;1\n");
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_EQ(Form.NoteRecapitulatif(), u"0 relevé mémorisé, 1 déjà connu (1 en double)");
}

TEST_F(FrmPresences, TheTwoButtonsOfStepOne) {
  EXPECT_TRUE(Form.ScannerVisible());
  EXPECT_EQ(Form.TitreMenuImportation(), u"Importation depuis un site distant");
  Form.mnuImportationClick();
  EXPECT_EQ(Form.TitreMenuImportation(), u"Importation depuis un scanner local");
  TEcoleEssai(Base).parametre(36, u"1"_s);
  Globals.Parametres = std::make_unique<TParametres>(*Base);
  TfrmPresences autre(Ecran.Contexte);
  autre.Montrer();
  EXPECT_FALSE(autre.ScannerVisible());
  Base.Dialogues.Attend(u"l'adresse du site n'est pas connue"_s);
  autre.btnImportFTPClick();
}

TEST_F(FrmPresences, TheDialogOfARecord) {
  const TDateTime date = EncodeDate(2016, 10, 4);
  TFrmAjoutReleve neuf(Ecran.Contexte);
  neuf.Charger(TTypePresence::Garderie, 0, 0, date);
  EXPECT_EQ(neuf.PremierChamp(), Type);
  EXPECT_FALSE(neuf.BitBtn1Click()) << "the first pass asks for the other time";
  EXPECT_EQ(Champs(neuf), u"04/10/2016|0|00:00|");
  EXPECT_TRUE(neuf.BitBtn1Click());
  EXPECT_EQ(neuf.HeureEntree(), 0.0);
  EXPECT_EQ(neuf.HeureSortie(), 0.0);

  TFrmAjoutReleve corrige(Ecran.Contexte);
  corrige.Mode = TFrmAjoutReleve::Correction;
  corrige.Charger(TTypePresence::Etude, 0, EncodeTime(16, 5), date);
  EXPECT_EQ(corrige.PremierChamp(), Fin);
  corrige.Champs().Taper(Fin, u"17:00"_s);
  corrige.Champs().Taper(Type, u"-1"_s);
  EXPECT_FALSE(corrige.BitBtn1Click());
  EXPECT_EQ(corrige.Champs().Faute(Type), u"Veuillez sélectionner un type de relevé");
  corrige.Champs().Taper(Type, u"1"_s);
  EXPECT_EQ(corrige.PremierChamp(), Type) << "no time is missing";
  EXPECT_TRUE(corrige.BitBtn1Click());
  EXPECT_EQ(corrige.TypePresence(), TTypePresence::Repas);
  EXPECT_EQ(corrige.HeureSortie(), EncodeTime(17, 0));
}

TEST_F(FrmPresences, TheDialogAsksForTheSite) {
  Base.Sql(
      u"INSERT INTO IMPLANTATION (IMPLANTATION_ID, CODE_IMPLANTATION, LIBELLE_COURT) VALUES "
      "(1, 'C1', 'Centre')"_s);
  TEcoleEssai(Base).parametre(113, u"1"_s);
  Globals.Parametres = std::make_unique<TParametres>(*Base);
  Ecran.Essai.Controleur.ChargerAnnee(2016);
  TFrmAjoutReleve saisie(Ecran.Contexte);
  saisie.Charger(TTypePresence::Repas, 0, EncodeTime(12, 0), EncodeDate(2016, 10, 4));
  const QStringList sites = saisie.Champs().Champ(Site).Choix();
  EXPECT_TRUE(sites.contains(u"Centre"_s));
  EXPECT_FALSE(saisie.BitBtn1Click());
  EXPECT_EQ(saisie.Champs().Faute(Site), u"Vous devez indiquer l'implantation où le relevé s'est effectué.");
  saisie.Champs().Choisir(Site, static_cast<int>(sites.indexOf(u"Centre")));
  EXPECT_TRUE(saisie.BitBtn1Click());
  EXPECT_EQ(saisie.CodeImplantation(), u"C1");
  saisie.Charger(TTypePresence::Repas, 0, 0, EncodeDate(2016, 10, 4), u"C1"_s);
  EXPECT_EQ(saisie.CodeImplantation(), u"C1") << "a correction opens on the site of the record";
}
