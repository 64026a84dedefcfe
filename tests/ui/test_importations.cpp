// The two imports through the real window: files chosen, read, refused, corrected, stored.
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>

#include "screens/attendance/frm_ajout_releve.h"
#include "screens/attendance/frm_presences.h"
#include "screens/pupils/frm_import.h"
#include "support/ecran_essai.h"
#include "support/fichier_registre.h"
#include "ui/attendance/vue_presences.h"
#include "ui/commun/saisie.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/commun/vue_grille.h"
#include "ui/pupils/vue_import.h"
#include "ui/reglages_essai.h"
#include "ui/verifier_vue.h"

namespace {

const QString kRegistre1 = u"Etape n°1 : Ouvrir le fichier de données"_s;
const QString kRegistre2 = u"Etape n°2 : Démarrer le transfert des données"_s;
const QString kPresences1 = u"Etape n°1 : Importer les présences"_s;
const QString kPresences2 = u"Etape n°2 : Mémoriser les présences"_s;
const QString kImporter = u"Importer un fichier de présence"_s;
const QString kOuvrir = u"Ouvrir le fichier de données"_s;
const QString kAnomalies = u"Des anomalies ont été détectées !"_s;

void Ecole(TBaseEssai& base) {
  using namespace Essai;
  TEcoleEssai ecole(base);
  ecole.tarif(Matin, TousLesJours, u"07:00"_s, u"08:30"_s, Forfait, u"1"_s, ScanPresence);
  ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
}

/// Files of any sort that are no register and no scans, with what the program says to them.
struct TMauvaisFichier {
  QString Chemin, Message;
};
std::vector<TMauvaisFichier> MauvaisFichiers(TBaseEssai& base) {
  const QString grand = base.Fichier(u"grand.txt"_s, "1;2;3\n");
  EXPECT_TRUE(QFile::resize(grand, 200LL * 1024 * 1024));
  return {
      {grand, u"est trop grand (plus de 64 Mo) : ce n'est pas le bon fichier."_s},
      {base.Fichier(u"binaire.txt"_s, QByteArray("MZ\0\x90;\0\0", 7)), u"n'est pas un fichier de texte."_s}};
}

class Importations : public TReglagesEssai {
 protected:
  void SetUp() override { ::Ecole(Base); }
  /// In the file dialog with this title the path is typed.
  TRepondeur& Choisit(const QString& titre, const QString& chemin) {
    return Programme.Dialogues.Fait(titre, [chemin](QWidget& dialogue) {
      dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(chemin);
      auto* boutons = dialogue.findChild<QDialogButtonBox*>();
      QTest::mouseClick(boutons->button(QDialogButtonBox::Open), Qt::LeftButton);
    });
  }
  TRepondeur& Abandonne(const QString& titre) {
    return Programme.Dialogues.Fait(titre, [](QWidget& dialogue) { dialogue.close(); });
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
  const QString fichier = TFichierRegistre(1).Mettre(1, 16, u"01/07/2017"_s).Ecrire(Base);
  const QString question = u"Voulez-vous clôturer l'année scolaire 2016-2017 ?"_s;
  // Enter takes the answer at hand, which is "Non".
  Choisit(kOuvrir, fichier).Fait(question, [this](QWidget& dialogue) {
    EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"Fichier lu : registre.csv")) << "what it is about";
    EXPECT_EQ(Form<TFrmImport>().Grille.NombreLignes(), 9);
    EXPECT_EQ(BoutonDe(dialogue, u"Non"_s), dialogue.focusWidget());
    QTest::keyClick(dialogue.focusWidget(), Qt::Key_Return);
  });
  Cliquer(kRegistre1);
  EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"Année non clôturée : pas de transfert"));
  EXPECT_FALSE(EstActif(kRegistre2));

  Choisit(kOuvrir, fichier).Repond(question, true).Attend(u"L'année scolaire est clôturée."_s);
  Cliquer(kRegistre1);
  int vues = 0;
  auto& form = Form<TFrmImport>();
  TLien suivi = form.SurChangement.Suivre([&] {
    if (form.Feuille().Fait != 3 || ++vues > 1) return;
    EXPECT_FALSE(EstActif(kRegistre1) || EstActif(kRegistre2));
    EXPECT_TRUE(TextesDe(Programme.Fenetre()).contains(u"3 sur 9"));
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
  EXPECT_EQ(Base.Valeur(u"SELECT COUNT(*) FROM BALANCE"_s), u"1");
}

TEST_F(Importations, ARegisterThatCannotBeTakenIsRefusedAndTheWindowGoesOn) {
  Demarrer(TGestionnaire::AdvGlowButton8Click);
  for (const TMauvaisFichier& mauvais : MauvaisFichiers(Base)) {
    Choisit(kOuvrir, mauvais.Chemin).Attend(mauvais.Message);
    Cliquer(kRegistre1);
    EXPECT_TRUE(Etat().startsWith(u"Fichier refusé : ")) << Etat().toStdString();
    EXPECT_FALSE(EstActif(kRegistre2));
  }
  Choisit(kOuvrir, Base.Fichier(u"vide.csv"_s, {}));
  Cliquer(kRegistre1);
  EXPECT_EQ(Etat(), u"Fichier trop court : rien à transférer");
  Choisit(kOuvrir, Base.Chemin({}));  // the dialog goes into a folder and stays
  Abandonne(kOuvrir);
  Cliquer(kRegistre1);

  for (const auto& [colonne, texte, message] :
       {std::tuple{14, "B-1300",
                   "Ligne 6 du fichier (Nom 1234-5 Zoé) : « B-1300 » n'est pas un nombre entier."},
        std::tuple{6, "20101345", "Ligne 6 du fichier (Nom 1234-5 Zoé) : "}}) {
    Choisit(kOuvrir, TFichierRegistre(1).Mettre(5, colonne, QString::fromLatin1(texte)).Ecrire(Base));
    Cliquer(kRegistre1);
    Programme.Dialogues.Attend(QString::fromUtf8(message));
    Cliquer(kRegistre2);
    EXPECT_EQ(Etat(), u"Arrêté à la ligne 6");
    EXPECT_EQ(Form<TFrmImport>().Grille.Ligne(4).Etat, TFrmImport::Refuse);
    EXPECT_EQ(Form<TFrmImport>().Grille.Ligne(3).Etat, TFrmImport::Transfere);
    EXPECT_EQ(Base.Valeur(u"SELECT COUNT(*) FROM ELEVES"_s), u"5");
  }
  Choisit(kOuvrir, TFichierRegistre(1).Ecrire(Base));
  Cliquer(kRegistre1);
  Cliquer(kRegistre2);
  EXPECT_EQ(Etat(), u"9 élèves transférés : 5 nouveaux, 4 mis à jour");
  EXPECT_EQ(Programme.Main().NombreEleves(), 10);
}

TEST_F(Importations, ScansAreCorrectedAndStored) {
  Demarrer(TGestionnaire::AdvGlowButton1Click);
  Programme.Dialogues.Attend(u"Veuillez vérifier si votre lecteur de code à barre est allumé"_s);
  Cliquer(kPresences1);
  Choisit(kImporter, Base.Fichier(u"scans.txt"_s,
                                  "11;1;20161003;073000;1\n99;1;20161003;073000;1\n11;1;20161004;053000;1\n"))
      .Attend(kAnomalies);
  ImporterPresences();
  auto& form = Form<TfrmPresences>();
  auto* anomalies = dynamic_cast<VueGrille*>(QApplication::focusWidget());
  ASSERT_NE(anomalies, nullptr);
  EXPECT_EQ(&anomalies->Grille(), &form.Anomalies) << "the hand goes to the first anomaly";
  EXPECT_EQ(form.Anomalies.LigneCourante(), 0);
  Programme.Dialogues.Attend(u"La correction ne peut se faire que sur un élève existant"_s);
  QTest::keyClick(anomalies, Qt::Key_Return);
  Activer();

  QTest::keyClick(anomalies, Qt::Key_Down);
  Programme.Dialogues.Fait(u"Ajout de relevé"_s, [](QWidget& dialogue) {
    const auto heures = dialogue.findChildren<SaisieHeure*>();
    ASSERT_EQ(heures.size(), 2);
    EXPECT_EQ(dialogue.focusWidget(), heures[1]) << "the time that is missing";
    heures[0]->selectAll();
    QTest::keyClicks(heures[0], u"07:61"_s);
    ::Cliquer(dialogue, u"Valider"_s);
    EXPECT_TRUE(TextesDe(dialogue).contains(u"« 07:61 »"));
    EXPECT_EQ(dialogue.focusWidget(), heures[0]);
    heures[0]->selectAll();
    QTest::keyClicks(heures[0], u"7h45"_s);
    QTest::keyClick(heures[0], Qt::Key_Return);
  });
  QTest::keyClick(anomalies, Qt::Key_F2);
  Activer();
  EXPECT_EQ(Etat(), u"Relevé corrigé : Eleve1 Prenom1");
  EXPECT_EQ(form.Anomalies.NombreLignes(), 1);
  EXPECT_TRUE(anomalies->hasFocus());

  Programme.Dialogues.Attend(u"Les présences ont été mémorisées."_s);
  Cliquer(kPresences2);
  EXPECT_FALSE(EstActif(kPresences2));
  EXPECT_EQ(Base.Rangees(u"SELECT DATE_RELEVE, HEURE_ENTREE FROM PRESENCES ORDER BY 1"_s),
            (QStringList{"2016-10-03;07:30:00.000", "2016-10-04;07:45:00.000"}));
}

TEST_F(Importations, ScansThatCannotBeReadAreRefusedAndTheWindowGoesOn) {
  Demarrer(TGestionnaire::AdvGlowButton1Click);
  auto mauvais = MauvaisFichiers(Base);
  mauvais.push_back({Base.Fichier(u"vide.txt"_s, {}), u"est vide."_s});
  mauvais.push_back({Base.Fichier(u"lettres.txt"_s, "11;1;20161003;073000;1\n11;x;20161003;073000;1\n"),
                     u"Ligne 2 : « x » n'est pas un nombre entier.\nRien n'a été enregistré."_s});
  for (const TMauvaisFichier& m : mauvais) {
    Choisit(kImporter, m.Chemin).Attend(m.Message);
    ImporterPresences();
    EXPECT_FALSE(EstActif(kPresences2));
    EXPECT_TRUE(Etat().startsWith(u"Fichier refusé : ")) << Etat().toStdString();
    EXPECT_EQ(Form<TfrmPresences>().Recapitulatif.NombreLignes(), 0);
  }
  Choisit(kImporter, Base.Chemin({}));
  Abandonne(kImporter);
  ImporterPresences();

  Choisit(kImporter, Base.Fichier(u"bon.txt"_s, "11;1;20161003;073000;1\n"));
  ImporterPresences();
  EXPECT_EQ(QApplication::focusWidget(), BoutonDe(Programme.Fenetre(), kPresences2)) << "nothing is wrong";
  Programme.Dialogues.Repond(u"Continuer sans les mémoriser"_s, true);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton8Click);
  EXPECT_EQ(Etat(), u"1 relevé non mémorisé");

  Programme.Ouvrir(TGestionnaire::AdvGlowButton1Click);
  Choisit(kImporter, Base.Chemin(u"bon.txt"_s));
  ImporterPresences();
  Programme.Dialogues.Repond(u"Continuer sans les mémoriser"_s, true);
  Programme.Main().mnuAnneeClick(2015);
  EXPECT_TRUE(Etat().endsWith(u" · 1 relevé non mémorisé")) << Etat().toStdString();
  EXPECT_EQ(Base.Valeur(u"SELECT COUNT(*) FROM PRESENCES"_s), u"0");
}

TEST(VuesDesImports, AreWithinReach) {
  TBaseEssai base;
  Ecole(base);
  TEcranEssai ecran(base);
  TFrmImport import(ecran.Contexte);
  import.Montrer();
  const auto vueImport = [&] { return std::make_unique<VueImport>(import, nullptr); };
  VerifierVuePartout(vueImport);
  base.Dialogues.Saisit(kOuvrir, TFichierRegistre(1).Mettre(5, 14, u"B"_s).Ecrire(base));
  import.btnEtape1Click();
  EXPECT_THROW(import.btnEtape2Click(), EConvertError);
  VerifierVuePartout(vueImport);

  TfrmPresences presences(ecran.Contexte);
  presences.Montrer();
  const auto vuePresences = [&] { return std::make_unique<VuePresences>(presences, nullptr); };
  VerifierVuePartout(vuePresences);
  QByteArray scans = "11;1;20161003;073000;1\n";
  for (int i = 0; i < 20; ++i) scans += "99;1;20161003;073000;1\n";
  base.Dialogues.Saisit(kImporter, base.Fichier(u"scans.txt"_s, scans)).Attend(kAnomalies);
  presences.Importerunfichierdeprsence1Click();
  VerifierVuePartout(vuePresences);

  TFrmAjoutReleve releve(ecran.Contexte);
  releve.Charger(TTypePresence::Etude, 0, EncodeTime(16, 0), EncodeDate(2016, 10, 3));
  VerifierVuePartout([&] { return std::make_unique<VueDialogue>(releve, nullptr); });
}

TEST(VuesDesImports, BothGridsOfThePresencesShareTheirWidths) {
  TBaseEssai base;
  TEcranEssai ecran(base);
  TfrmPresences form(ecran.Contexte);
  form.Montrer();
  VuePresences vue(form, nullptr);
  const auto grilles = vue.findChildren<VueGrille*>();
  ASSERT_EQ(grilles.size(), 2);
  for (int i = 0; i < 2; ++i) {
    grilles[i]->header()->resizeSection(TfrmPresences::Date, 150 + i);
    EXPECT_EQ(grilles[1 - i]->header()->sectionSize(TfrmPresences::Date), 150 + i);
  }
}
