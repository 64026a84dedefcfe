// The two imports through the real window: files chosen, read, refused, corrected, stored.
#include <QHeaderView>
#include <QMenu>

#include "screens/attendance/frm_ajout_releve.h"
#include "screens/attendance/frm_presences.h"
#include "screens/pupils/frm_import.h"
#include "support/fichier_registre.h"
#include "ui/attendance/vue_presences.h"
#include "ui/commun/saisie.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/pupils/vue_import.h"
#include "ui/reglages_essai.h"
#include "ui/vues_seules.h"

namespace {

const QString kRegistre1 = "Etape n°1 : Ouvrir le fichier de données";
const QString kRegistre2 = "Etape n°2 : Démarrer le transfert des données";
const QString kPresences1 = "Etape n°1 : Importer les présences";
const QString kPresences2 = "Etape n°2 : Mémoriser les présences";
const QString kImporter = "Importer un fichier de présence";
const QString kOuvrir = "Ouvrir le fichier de données";
const QString kAnomalies = "Des anomalies ont été détectées !";

/// Files of any sort that are no register and no scans, with what the program says to them.
std::vector<std::pair<QString, QString>> MauvaisFichiers(TBaseEssai& base) {
  const QString grand = base.Fichier("grand.txt", "1;2;3\n");
  EXPECT_TRUE(QFile::resize(grand, 200LL * 1024 * 1024));
  return {{grand, "est trop grand (plus de 64 Mo) : ce n'est pas le bon fichier."},
          {base.Fichier("binaire.txt", QByteArray("MZ\0\x90;\0\0", 7)), "n'est pas un fichier de texte."}};
}

class Importations : public TReglagesEssai {
 protected:
  void SetUp() override {
    using namespace Essai;
    Ecole.tarif(Matin, TousLesJours, "07:00", "08:30", Forfait, "1", ScanPresence);
    Ecole.unEleve().enClasse("P1", "A");
  }
  TRepondeur& Choisit(const QString& titre, const QString& chemin) {
    return Programme.Dialogues.Fichier(titre, chemin);
  }
  bool EstActif(const QString& bouton) { return BoutonDe(Programme.Fenetre(), bouton)->isEnabled(); }
  void ImporterPresences() {
    for (QAction* action : Programme.Vue<VuePresences>()->findChild<QMenu*>()->actions())
      if (action->text() == kImporter)
        QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    Activer();
  }
};

}  // namespace

TEST_F(Importations, ARegisterOfANewYearClosesTheOldOne) {
  Demarrer(TGestionnaire::AdvGlowButton8Click);
  EXPECT_FALSE(EstActif(kRegistre2));
  const QString fichier = TFichierRegistre(1).Mettre(1, 16, "01/07/2017").Ecrire(Base);
  const QString question = "Voulez-vous clôturer l'année scolaire 2016-2017 ?";
  // Enter takes the answer at hand, which is "Non".
  Choisit(kOuvrir, fichier).Fait(question, [this](QWidget& dialogue) {
    EXPECT_TRUE(Dit("Fichier lu : registre.csv")) << "what it is about";
    EXPECT_EQ(Form<TFrmImport>().Grille.NombreLignes(), 9);
    EXPECT_EQ(BoutonDe(dialogue, "Non"), dialogue.focusWidget());
    QTest::keyClick(dialogue.focusWidget(), Qt::Key_Return);
  });
  Cliquer(kRegistre1);
  EXPECT_TRUE(Dit("Année non clôturée : pas de transfert"));
  EXPECT_FALSE(EstActif(kRegistre2));

  Choisit(kOuvrir, fichier).Repond(question, true).Attend("L'année scolaire est clôturée.");
  Cliquer(kRegistre1);
  int vues = 0;
  auto& form = Form<TFrmImport>();
  TLien suivi = form.SurChangement.Suivre([&] {
    if (form.Feuille().Fait != 3 || ++vues > 1) return;
    EXPECT_FALSE(EstActif(kRegistre1) || EstActif(kRegistre2));
    EXPECT_TRUE(Dit("3 sur 9"));
    Programme.Fenetre().close();
    EXPECT_TRUE(Programme.EstOuvert());
    EXPECT_TRUE(Etat().contains(u"en cours")) << Etat().toStdString();
  });
  Cliquer(kRegistre2);
  suivi.Rompre();
  EXPECT_GT(vues, 0);
  EXPECT_EQ(Etat(), u"9 élèves transférés : 9 nouveaux, 0 mis à jour");
  EXPECT_FALSE(EstActif(kRegistre2));
  EXPECT_EQ(Programme.Main().AnneeCochee(), 2017);
  EXPECT_EQ(Programme.Main().NombreEleves(), 9);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM BALANCE"), u"1");
}

TEST_F(Importations, ARegisterThatCannotBeTakenIsRefusedAndTheWindowGoesOn) {
  Demarrer(TGestionnaire::AdvGlowButton8Click);
  for (const auto& [mauvais, message] : MauvaisFichiers(Base)) {
    Choisit(kOuvrir, mauvais).Attend(message);
    Cliquer(kRegistre1);
    EXPECT_TRUE(Etat().startsWith(u"Fichier refusé : ")) << Etat().toStdString();
    EXPECT_FALSE(EstActif(kRegistre2));
  }
  Choisit(kOuvrir, Base.Fichier("vide.csv", {}));
  Cliquer(kRegistre1);
  EXPECT_EQ(Etat(), u"Fichier trop court : rien à transférer");
  Choisit(kOuvrir, Base.Chemin({})).Ferme(kOuvrir);  // the dialog goes into a folder and stays
  Cliquer(kRegistre1);

  Choisit(kOuvrir, TFichierRegistre(1).Mettre(5, 14, "B-1300").Ecrire(Base));
  Cliquer(kRegistre1);
  Programme.Dialogues.Attend("Ligne 6 du fichier (Nom 1234-5 Zoé) : « B-1300 » n'est pas un nombre entier.");
  Cliquer(kRegistre2);
  EXPECT_EQ(Etat(), u"Arrêté à la ligne 6");
  EXPECT_EQ(Form<TFrmImport>().Grille.Ligne(4).Etat, TFrmImport::Refuse);
  EXPECT_EQ(Form<TFrmImport>().Grille.Ligne(3).Etat, TFrmImport::Transfere);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM ELEVES"), u"5");
  Choisit(kOuvrir, TFichierRegistre(1).Ecrire(Base));
  Cliquer(kRegistre1);
  Cliquer(kRegistre2);
  EXPECT_EQ(Etat(), u"9 élèves transférés : 5 nouveaux, 4 mis à jour");
  EXPECT_EQ(Programme.Main().NombreEleves(), 10);
}

TEST_F(Importations, ScansAreCorrectedAndStored) {
  Demarrer(TGestionnaire::AdvGlowButton1Click);
  Programme.Dialogues.Attend("Veuillez vérifier si votre lecteur de code à barre est allumé");
  Cliquer(kPresences1);
  Choisit(kImporter, Base.Fichier("scans.txt",
                                  "11;1;20161003;073000;1\n99;1;20161003;073000;1\n11;1;20161004;053000;1\n"))
      .Attend(kAnomalies);
  ImporterPresences();
  auto& form = Form<TfrmPresences>();
  auto* anomalies = dynamic_cast<VueGrille*>(QApplication::focusWidget());
  ASSERT_NE(anomalies, nullptr);
  EXPECT_EQ(&anomalies->Grille(), &form.Anomalies) << "the hand goes to the first anomaly";
  EXPECT_EQ(form.Anomalies.LigneCourante(), 0);
  Programme.Dialogues.Attend("La correction ne peut se faire que sur un élève existant");
  QTest::keyClick(anomalies, Qt::Key_Return);
  Activer();

  QTest::keyClick(anomalies, Qt::Key_Down);
  Programme.Dialogues.Fait("Ajout de relevé", [](QWidget& dialogue) {
    const auto heures = dialogue.findChildren<SaisieHeure*>();
    ASSERT_EQ(heures.size(), 2);
    EXPECT_EQ(dialogue.focusWidget(), heures[1]) << "the time that is missing";
    heures[0]->selectAll();
    QTest::keyClicks(heures[0], "07:61");
    ::Cliquer(dialogue, "Valider");
    EXPECT_TRUE(TextesDe(dialogue).contains(u"« 07:61 »"));
    EXPECT_EQ(dialogue.focusWidget(), heures[0]);
    heures[0]->selectAll();
    QTest::keyClicks(heures[0], "7h45");
    QTest::keyClick(heures[0], Qt::Key_Return);
  });
  QTest::keyClick(anomalies, Qt::Key_F2);
  Activer();
  EXPECT_EQ(Etat(), u"Relevé corrigé : Eleve1 Prenom1");
  EXPECT_EQ(form.Anomalies.NombreLignes(), 1);
  EXPECT_TRUE(anomalies->hasFocus());

  Programme.Dialogues.Attend("Les présences ont été mémorisées.");
  Cliquer(kPresences2);
  EXPECT_FALSE(EstActif(kPresences2));
  EXPECT_EQ(Base.Rangees("SELECT DATE_RELEVE, HEURE_ENTREE FROM PRESENCES ORDER BY 1"),
            (QStringList{"2016-10-03;07:30:00.000", "2016-10-04;07:45:00.000"}));
}

TEST_F(Importations, ScansThatCannotBeReadAreRefusedAndTheWindowGoesOn) {
  Demarrer(TGestionnaire::AdvGlowButton1Click);
  auto mauvais = MauvaisFichiers(Base);
  mauvais.push_back({Base.Fichier("vide.txt", {}), "est vide."});
  mauvais.push_back({Base.Fichier("lettres.txt", "11;1;20161003;073000;1\n11;x;20161003;073000;1\n"),
                     "Ligne 2 : « x » n'est pas un nombre entier.\nRien n'a été enregistré."});
  for (const auto& [chemin, message] : mauvais) {
    Choisit(kImporter, chemin).Attend(message);
    ImporterPresences();
    EXPECT_FALSE(EstActif(kPresences2));
    EXPECT_TRUE(Etat().startsWith(u"Fichier refusé : ")) << Etat().toStdString();
    EXPECT_EQ(Form<TfrmPresences>().Recapitulatif.NombreLignes(), 0);
  }
  Choisit(kImporter, Base.Chemin({})).Ferme(kImporter);
  ImporterPresences();

  Choisit(kImporter, Base.Fichier("bon.txt", "11;1;20161003;073000;1\n"));
  ImporterPresences();
  EXPECT_EQ(QApplication::focusWidget(), BoutonDe(Programme.Fenetre(), kPresences2)) << "nothing is wrong";
  Programme.Dialogues.Repond("Continuer sans les mémoriser", true);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton8Click);
  EXPECT_EQ(Etat(), u"1 relevé non mémorisé");

  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM PRESENCES"), u"0");
}

TEST_F(TVuesSeules, TheImportsAreWithinReach) {
  TFrmImport import(ecran->Contexte);
  VerifierForme(import);
  base.Dialogues.Saisit(kOuvrir, TFichierRegistre(1).Mettre(5, 14, "B").Ecrire(base));
  import.btnEtape1Click();
  EXPECT_THROW(import.btnEtape2Click(), EConvertError);
  VerifierForme(import);

  TfrmPresences presences(ecran->Contexte);
  VerifierForme(presences);
  const QByteArray scans = "11;1;20161003;073000;1\n" + QByteArray("99;1;20161003;073000;1\n").repeated(20);
  base.Dialogues.Saisit(kImporter, base.Fichier("scans.txt", scans)).Attend(kAnomalies);
  presences.Importerunfichierdeprsence1Click();
  VerifierForme(presences);

  TFrmAjoutReleve releve(ecran->Contexte);
  releve.Charger(TTypePresence::Etude, 0, EncodeTime(16, 0), EncodeDate(2016, 10, 3));
  VerifierForme(releve);
}

TEST_F(TVuesSeules, BothGridsOfThePresencesShareTheirWidths) {
  TfrmPresences form(ecran->Contexte);
  form.Montrer();
  VuePresences vue(form, nullptr);
  const auto grilles = vue.findChildren<VueGrille*>();
  ASSERT_EQ(grilles.size(), 2);
  for (int i = 0; i < 2; ++i) {
    grilles[i]->header()->resizeSection(TfrmPresences::Date, 150 + i);
    EXPECT_EQ(grilles[1 - i]->header()->sectionSize(TfrmPresences::Date), 150 + i);
  }
}
