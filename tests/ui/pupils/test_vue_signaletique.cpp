#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "screens/attendance/frm_ajout_releve.h"
#include "screens/payments/frm_paiement.h"
#include "screens/signaletique_essai.h"
#include "ui/attendance/vue_releve_calendrier.h"
#include "ui/commun/pied_de_grille.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/principal/application.h"
#include "ui/pupils/fiche_identite.h"
#include "ui/pupils/vue_signaletique.h"
#include "ui/reglages_essai.h"

namespace {

struct TVueSignaletique : TSignaletiqueEssai {
  VueSignaletique& Montrer(const QSize& taille = {1117, 638}) {
    vue = std::make_unique<VueSignaletique>(*ecran);
    vue->resize(taille);
    vue->show();
    QApplication::setActiveWindow(vue.get());
    QApplication::processEvents();
    return *vue;
  }
  void TearDown() override { vue.reset(); }
  /// The control of that accessible name.
  template <class T>
  T& Controle(const QString& nom) {
    for (T* controle : vue->findChildren<T*>())
      if (controle->accessibleName() == nom || controle->property("text").toString() == nom) return *controle;
    throw std::runtime_error(nom.toStdString());
  }
  bool Montre(const QString& texte) {
    for (const QLabel* libelle : vue->findChildren<QLabel*>())
      if (libelle->text() == texte && libelle->isVisibleTo(vue.get())) return true;
    return false;
  }
  QPoint Place(const QWidget& widget) { return widget.mapTo(vue->widget(), QPoint()); }

  std::unique_ptr<VueSignaletique> vue;
};

}  // namespace

TEST_F(TVueSignaletique, RienNeManqueAuClavierNiALaVue) {
  ecole.parametre(100, "1");
  rose.suit(ecole.activite("16:00", "17:00"), "14");
  Ouvrir(rose);
  VerifierVuePartout([this] { return std::make_unique<VueSignaletique>(*ecran); });
}

TEST_F(TVueSignaletique, MontreLEleve) {
  Ouvrir(rose);
  Montrer();
  for (const char* texte :
       {"LAMBERT Élise", "P3 A  ·  Matricule 212-04127-38", "À payer", "\u2212126,10\u00A0€"})
    EXPECT_TRUE(Montre(texte)) << texte;
  QStringList coches;
  for (const QAbstractButton* boite : vue->findChildren<QAbstractButton*>()) {
    const QString nom = boite->accessibleName().isEmpty() ? boite->text() : boite->accessibleName();
    if (boite->isChecked() && !nom.contains(u"tous les mois") && !nom.startsWith(u"Participe à l'étude"))
      coches += nom;
  }
  EXPECT_EQ(coches,
            (QStringList{"Attestation au nom du second", "Parents séparés",
                         "Rentre à son domicile pendant midi, septembre", "Paiement forfaitaire, janvier"}));
  EXPECT_TRUE(Controle<QAbstractButton>("Participe à l'étude, tous les mois").isChecked());

  auto& mois = Controle<QComboBox>("Mois du relevé");
  EXPECT_EQ(mois.currentText(), "Octobre");
  mois.setFocus();
  for (int i = 0; i < 4; ++i) QTest::keyClick(&mois, Qt::Key_Down);
  EXPECT_EQ(ecran->IndiceMois(), 5);
  EXPECT_TRUE(Montre("Aucun relevé en février"));
  EXPECT_TRUE(mois.hasFocus());
}

namespace {

/// The record with the hand on it; what is typed is read back from the database.
struct TSaisieFiche : TVueSignaletique {
  void SetUp() override {
    TVueSignaletique::SetUp();
    Ouvrir(rose);
    Montrer();
  }
  QLineEdit& Taper(const QString& nom, const QString& texte) {
    auto& champ = Controle<QLineEdit>(nom);
    champ.setFocus(Qt::TabFocusReason);
    champ.selectAll();
    QTest::keyClicks(&champ, texte);
    return champ;
  }
  QString Eleve(const QString& colonne, int id = 0) {
    return base.Valeur(
        u"SELECT %1 FROM ELEVES WHERE ELEVE_ID = %2"_s.arg(colonne).arg(id == 0 ? rose.Id : id));
  }
  void Cocher(const QString& nom) {
    auto& bouton = Controle<QAbstractButton>(nom);
    bouton.setFocus();
    QTest::keyClick(&bouton, Qt::Key_Space);
  }
};

}  // namespace

TEST_F(TSaisieFiche, UnChampQuitteDeToutesLesFaconsSEnregistre) {
  const std::pair<const char*, std::function<void(QLineEdit&)>> facons[] = {
      {"Tab", [](QLineEdit& champ) { QTest::keyClick(&champ, Qt::Key_Tab); }},
      {"Entree", [](QLineEdit& champ) { QTest::keyClick(&champ, Qt::Key_Return); }},
      {"souris", [&](QLineEdit&) { Controle<QLineEdit>("N° compte").setFocus(Qt::MouseFocusReason); }},
      {"autre fenetre", [](QLineEdit& champ) { champ.clearFocus(); }},
      {"commande", [&](QLineEdit&) { ecran->LaisserChamp(); }},
      {"autre eleve", [&](QLineEdit&) {
         ecran->LaisserChamp();
         Choisir(vide.Id);
       }}};
  for (const auto& [facon, quitter] : facons) {
    QLineEdit& champ = Taper("Localité du responsable", facon);
    EXPECT_NE(Eleve("LOCALITE"), facon) << "not while it is typed in";
    quitter(champ);
    EXPECT_EQ(Eleve("LOCALITE"), facon);
  }
  EXPECT_EQ(Eleve("LOCALITE", vide.Id), QString());
  EXPECT_EQ(monde.Etats.last(), u"Localité du responsable : enregistré pour LAMBERT Élise");
  Choisir(rose.Id);
  const std::pair<QString, QString> autres[] = {{"Adresse du second responsable", "ADRESSE2"},
                                                {"Nom du titulaire", "NOM_TITULAIRE_COMPTE"},
                                                {"Code postal du second responsable", "CODE_POSTAL2"}};
  for (const auto& [nom, colonne] : autres) {
    Taper(nom, "4000");
    ecran->LaisserChamp();
    EXPECT_EQ(Eleve(colonne), u"4000");
  }
  EXPECT_EQ(Taper("Numéro du responsable", QString(60, u'9')).text().size(), 40) << "what the column takes";
}

TEST_F(TSaisieFiche, UneDateFausseResteJusquAuProchainEleve) {
  QLineEdit& date = Taper("Date de naissance", "31/02/2010");
  QTest::keyClick(&date, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(date.hasFocus());
  EXPECT_TRUE(Montre("La date de naissance introduite est incorrecte."));
  EXPECT_EQ(monde.Etats, QStringList{"Non enregistré : La date de naissance introduite est incorrecte."});
  Choisir(rose.Id);  // a refresh
  EXPECT_EQ(date.text(), u"31/02/2010");
  EXPECT_EQ(Eleve("DATE_NAISSANCE"), u"2010-03-14");
  QTest::keyClick(&date, Qt::Key_Escape);
  EXPECT_EQ(date.text(), u"14/03/2010");
  Taper("Date de naissance", "hier");
  EXPECT_FALSE(ecran->LaisserChamp());
  Choisir(vide.Id);
  QApplication::processEvents();
  EXPECT_EQ(date.text(), QString());
  EXPECT_TRUE(monde.Etats.last().contains(u"LAMBERT Élise")) << "it was hers, and is told";
  EXPECT_EQ(Eleve("DATE_NAISSANCE", vide.Id), QString());
}

TEST_F(TSaisieFiche, UnNumeroNationalFauxSeDitSansDialogue) {
  QTest::keyClick(&Taper("Numéro national", "16.09.01-123.45"), Qt::Key_Tab);
  EXPECT_TRUE(monde.Etats.last().startsWith(u"Non enregistré : « Numéro national »"))
      << monde.Etats.last().toStdString();
  EXPECT_EQ(Eleve("NUM_NATIONAL"), QString());
}

TEST_F(TSaisieFiche, UnEnregistrementQuiEchoue) {
  base.Sql("ALTER TABLE ELEVES ADD CONSTRAINT PAS_ICI CHECK (LOCALITE <> 'Ailleurs')");
  base.Dialogues.Attend("PAS_ICI");
  QLineEdit& champ = Taper("Localité du responsable", "Ailleurs");
  QTest::keyClick(&champ, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(champ.text(), u"Ailleurs");
  EXPECT_EQ(Globals.EleveCourant->Localite, u"Namur");
  Taper("Localité du responsable", "Jambes");
  Cocher("2e enfant");
  EXPECT_EQ(Eleve("LOCALITE") + Eleve("FLG_2E_ENFANT"), u"Jambes1") << "the next save works";
}

TEST_F(TSaisieFiche, LesCasesEtLesMois) {
  Cocher("Gratuité des services");
  EXPECT_EQ(Euros(ecran->Releve.Total), "5.7500") << "at once";
  Cocher("Élève radié");
  EXPECT_EQ(monde.Envois, 1);
  Cocher("Attestation au nom du responsable");
  EXPECT_EQ(Eleve("FLG_3E_ENFANT"), u"1");
  EXPECT_EQ(Eleve("FLG_RADIE"), u"1");
  EXPECT_NE(Eleve("FLG_IMPOT_RESPONS2"), u"1");
  EXPECT_FALSE(Controle<QAbstractButton>("Attestation au nom du second").isChecked());

  const auto marques = [&](int type) {
    const QString sql =
        "SELECT MOIS, ANNEE FROM PRESENCES_PARTICULIERES WHERE TYPE_PRESENCE = %1 ORDER BY 2, 1";
    return base.Rangees(sql.arg(type)).join(u' ');
  };
  Controle<QAbstractButton>("Rentre à son domicile pendant midi, janvier").click();
  EXPECT_EQ(marques(1), u"9;2016 1;2017");
  Controle<QAbstractButton>("Paiement forfaitaire, tous les mois").click();
  EXPECT_EQ(marques(3), u"9;2016 10;2016 11;2016 12;2016 1;2017 2;2017 3;2017 4;2017 5;2017 6;2017");
  Controle<QAbstractButton>("Paiement forfaitaire, tous les mois").click();
  Controle<QAbstractButton>("Participe à l'étude, juin").click();
  EXPECT_EQ(marques(3), QString());
  EXPECT_FALSE(Controle<QCheckBox>("Participe à l'étude, tous les mois").checkState() == Qt::Checked);

  Globals.EleveCourant = nullptr;
  Diffuser(TCodeMessage::EleveChange, *ecran);
  EXPECT_TRUE(Montre("Choisissez un élève dans la liste"));
  for (const char* nom : {"2e enfant", "Attestation au nom du second", "Paiement forfaitaire, mars"}) {
    base.Dialogues.Attend("Veuillez sélectionner un élève");
    Controle<QAbstractButton>(nom).click();
    EXPECT_FALSE(Controle<QAbstractButton>(nom).isChecked()) << "the box goes back";
  }
  base.Dialogues.Attend("Veuillez sélectionner un élève");
  ecran->SpeedButton2Click();
}

TEST_F(TSaisieFiche, RelevesAjoutesEtSupprimes) {
  monde.Modale<TFrmAjoutReleve>([](TFrmAjoutReleve& saisie) {
    saisie.Champs().Taper(2, "07:15");
    if (!saisie.Valider()) saisie.Valider();
  });
  monde.Essai.Horloge.Moment = EncodeDate(2016, 10, 6);
  Controle<QAbstractButton>("Ajouter un relevé").click();
  const QString lesSix = "SELECT COUNT(*) FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'";
  EXPECT_EQ(base.Valeur(lesSix), u"1");
  Controle<QAbstractButton>("Ajouter un relevé").click();
  EXPECT_TRUE(monde.Etats.last().startsWith(u"Relevé non ajouté")) << "a record that is dropped is told";

  const QString question = "Confirmez-vous la suppression définitive du relevé sélectionné ?";
  base.Dialogues.Attend("Veuillez sélectionner un relevé à supprimer");
  Controle<QAbstractButton>("Supprimer le relevé").click();
  auto& releve = Controle<VueGrille>("Relevé mensuel des services");
  ecran->Releve.Grille.ChoisirLigne(3);
  base.Dialogues.Repond(question, false).Repond(question, true);
  releve.setFocus();
  QTest::keyClick(&releve, Qt::Key_Delete);
  QTest::keyClick(&releve, Qt::Key_Delete);
  EXPECT_EQ(base.Valeur(lesSix), u"0");
  QTest::keyClick(&releve, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(base.Valeur(lesSix), u"1");
}

TEST_F(TSaisieFiche, FraisCochesPaiementsSaisisEtSupprimes) {
  auto& frais = Controle<VueGrille>("Frais et paiements");
  frais.setFocus();
  const auto cocher = [&](int ligne) {
    ecran->Frais.Grille.ChoisirLigne(ligne);
    QTest::keyClick(&frais, Qt::Key_Space);
  };
  const auto mois = [&] {
    return base.Rangees("SELECT MOIS, ANNEE, MONTANT FROM PAIEMENTS ORDER BY PAIEMENT_ID").join(u' ');
  };
  cocher(2);  // "Stage"
  EXPECT_EQ(base.Valeur("SELECT MAX(MONTANT_VERSE) FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = 3"), u"3.0000");
  cocher(4);  // "Services octobre"
  EXPECT_TRUE(mois().endsWith(u"10;2016;17.5000")) << "the school year of the row";
  QTest::keyClick(&frais, Qt::Key_Space);
  EXPECT_FALSE(mois().contains(u"17.5")) << "the row stays in hand";
  QTest::keyClick(&frais, Qt::Key_Down);
  EXPECT_EQ(ecran->Frais.Grille.LigneCourante(), 5);
  const QString partiel = "n'est payé qu'en partie";
  base.Dialogues.Repond(partiel, false).Repond(partiel, true);
  cocher(0);
  EXPECT_EQ(ecran->Frais.Grille.Texte(0, 3), u"50,00 €");
  cocher(0);
  EXPECT_EQ(ecran->Frais.Grille.Texte(0, 3), QString());

  monde.Modale<TFrmPaiement>([](TFrmPaiement& saisie) {
    saisie.Champs().Taper(0, "Acompte d'août");
    saisie.Champs().Taper(1, "douze");
    EXPECT_FALSE(saisie.Valider());
    EXPECT_EQ(saisie.Champs().Faute(1), u"Le montant introduit est incorrect !");
    saisie.Champs().Taper(1, "12,5");
    saisie.Champs().Choisir(3, 2);
    EXPECT_TRUE(saisie.Valider());
  });
  Controle<QAbstractButton>("Ajouter un paiement").click();
  const QString paiements =
      u"SELECT REMARQUE, MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS, EXTRAIT_ID FROM FRAIS_ELEVE WHERE "
      "LISTEFRAIS_ID IS NULL ORDER BY FRAIS_ELEVE_ID"_s;
  EXPECT_EQ(base.Rangees(paiements).last(), u"Acompte d'août;12.5000;10;2;-");
  ecran->Frais.Grille.ChoisirLigne(ecran->Frais.Grille.NombreLignes() - 1);
  base.Dialogues.Repond("Confirmez-vous la suppression du paiement de 12,50 euros (Acompte d'août)", true);
  QTest::keyClick(&frais, Qt::Key_Delete);
  EXPECT_EQ(base.Rangees(paiements).size(), 1);
  QTest::keyClick(&frais, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(base.Rangees(paiements).last(), u"Acompte d'août;12.5000;10;2;-");
  ecran->Frais.Grille.ChoisirLigne(0);
  QTest::keyClick(&frais, Qt::Key_Return);
  EXPECT_TRUE(monde.Etats.last().startsWith(u"Seul un paiement introduit à la main se modifie"));
}

TEST_F(TSaisieFiche, LeCalendrierMarqueCeQuiEstCompte) {
  monde.Modale<TFrmReleveCalendrier>([&](TFrmReleveCalendrier& calendrier) {
    VueReleveCalendrier vueCalendrier(calendrier, nullptr);
    calendrier.DateChange(J("2016-10-05"));
    calendrier.PlannerCalendar1DblClick();  // a Wednesday
    calendrier.DateChange(J("2016-10-06"));
    base.Dialogues.Attend("Veuillez sélectionner un type de relevé");
    calendrier.PlannerCalendar1DblClick();
    calendrier.TypeChange(0);
    EXPECT_TRUE(calendrier.EstMarque(J("2016-10-04")));
    calendrier.PlannerCalendar1DblClick();
    EXPECT_TRUE(calendrier.EstMarque(J("2016-10-06")));
    calendrier.DateChange(J("2017-07-01"));
    EXPECT_EQ(calendrier.Date(), J("2016-10-06")) << "out of the year";
    calendrier.btnFermerClick();
  });
  Controle<QAbstractButton>("Relevés sur calendrier").click();
  EXPECT_EQ(
      base.Rangees("SELECT TYPE_PRESENCE, HEURE_SORTIE FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'"),
      QStringList{"4;-"});
  monde.Modale<TFrmReleveCalendrier>([&](TFrmReleveCalendrier& calendrier) {
    EXPECT_EQ(calendrier.Type(), 0);
    EXPECT_EQ(calendrier.Date(), J("2016-10-06"));
    VerifierVuePartout([&] { return std::make_unique<VueReleveCalendrier>(calendrier, nullptr); });
  });
  Controle<QAbstractButton>("Relevés sur calendrier").click();
  TFrmPaiement paiement(3);
  VerifierVuePartout([&] { return std::make_unique<VueDialogue>(paiement, nullptr); });
}

TEST_F(TSaisieFiche, LaPhotoDUnFichier) {
  QImage image(200, 220, QImage::Format_RGB32);
  image.fill(Qt::red);
  const QString bon = base.Chemin("photo.png");
  ASSERT_TRUE(image.save(bon));
  auto& photo = Controle<QAbstractButton>("Photo");
  base.Dialogues.Saisit("Choisir une photo", bon);
  photo.click();
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM ELEVE_PHOTO"), u"1");
  EXPECT_FALSE(Globals.Parametres->GetParametre(TParam::DatePhoto).isEmpty());
  EXPECT_FALSE(ecran->Photo().isNull());
  base.Dialogues.Repond("Voulez-vous effacer cette photo ?", true);
  photo.setFocus();
  QTest::keyClick(&photo, Qt::Key_Delete);
  EXPECT_TRUE(ecran->Photo().isNull());

  QImage telephone(8000, 6000, QImage::Format_Grayscale8);  // more than Qt reads in one piece
  telephone.fill(Qt::gray);
  const QString grande = base.Chemin("telephone.jpg");
  ASSERT_TRUE(telephone.save(grande));
  base.Dialogues.Saisit("Choisir une photo", grande);
  photo.click();
  EXPECT_FALSE(ecran->Photo().isNull());

  const auto deposer = [&photo](const QUrl& quoi) {
    QMimeData donnees;
    donnees.setUrls({quoi});
    QDragEnterEvent arrivee(photo.rect().center(), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&photo, &arrivee);
    QDropEvent depot(photo.rect().center(), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&photo, &depot);
  };
  auto& application = dynamic_cast<Application&>(*qApp);
  const QScopedValueRollback<IDialogues*> repond(application.Dialogues, &base.Dialogues);
  base.Dialogues.Attend("n'est pas un fichier de cet ordinateur");
  deposer(QUrl("https://ecole.be/rose.jpg"));  // of a browser
  deposer(QUrl::fromLocalFile(bon));
  EXPECT_FALSE(ecran->Photo().isNull());
}

// What the user has folded, where the list stands and where the hand is outlive the next pupil.
TEST_F(TVueSignaletique, GroupesFoyerEtPlaceRestent) {
  Ouvrir(rose);
  Montrer({1117, 500});
  auto& releve = Controle<VueGrille>("Relevé mensuel des services");
  releve.collapse(releve.model()->index(1, 0));
  releve.setFocus();
  releve.verticalScrollBar()->setValue(40);
  ASSERT_EQ(releve.verticalScrollBar()->value(), 40);
  Choisir(rose.Id);
  QApplication::processEvents();
  EXPECT_FALSE(releve.isExpanded(releve.model()->index(1, 0)));
  EXPECT_TRUE(releve.isExpanded(releve.model()->index(0, 0)));
  EXPECT_EQ(releve.verticalScrollBar()->value(), 40);
  EXPECT_TRUE(releve.hasFocus());
}

TEST_F(TVueSignaletique, UneDeuxOuTroisColonnes) {
  Ouvrir(rose);
  const std::pair<int, int> cas[] = {{760, 1}, {1117, 2}, {1499, 2}, {1500, 3}, {1671, 3}, {1117, 2}};
  Montrer();
  const auto& identite = *vue->findChild<FicheIdentite*>();
  const auto& releve = Controle<VueGrille>("Relevé mensuel des services");
  const auto& frais = Controle<VueGrille>("Frais et paiements");
  for (const auto& [largeur, colonnes] : cas) {
    vue->resize(largeur, 638);
    QApplication::processEvents();
    EXPECT_EQ(Place(releve).x() > Place(identite).x() + identite.width(), colonnes > 1) << largeur;
    EXPECT_EQ(Place(releve).y() > Place(identite).y() + identite.height(), colonnes == 1) << largeur;
    EXPECT_EQ(Place(frais).y() > Place(releve).y() + releve.height(), colonnes < 3) << largeur;
    EXPECT_EQ(vue->verticalScrollBar()->maximum() > 0, colonnes == 1) << largeur;
    EXPECT_EQ(vue->horizontalScrollBar()->maximum(), 0) << largeur;
  }
}
