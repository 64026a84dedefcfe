#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTest>

#include "core/exceptions.h"
#include "screens/attendance/frm_ajout_releve.h"
#include "screens/attendance/frm_releve_calendrier.h"
#include "screens/payments/frm_paiement.h"
#include "screens/signaletique_essai.h"
#include "ui/attendance/vue_releve_calendrier.h"
#include "ui/commun/pied_de_grille.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/commun/vue_grille.h"
#include "ui/principal/application.h"
#include "ui/pupils/fiche_identite.h"
#include "ui/pupils/vue_signaletique.h"
#include "ui/verifier_vue.h"

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
  ecole.parametre(100, u"1"_s);
  rose.suit(ecole.activite(u"16:00"_s, u"17:00"_s), u"14"_s);
  Ouvrir(rose);
  VerifierVuePartout([this] { return std::make_unique<VueSignaletique>(*ecran); });
}

TEST_F(TVueSignaletique, MontreLEleve) {
  Ouvrir(rose);
  Montrer();
  for (const char16_t* texte :
       {u"LAMBERT Élise", u"P3 A  ·  Matricule 212-04127-38", u"À payer", u"\u2212126,10\u00A0€"})
    EXPECT_TRUE(Montre(QString::fromUtf16(texte))) << QString::fromUtf16(texte).toStdString();
  QStringList coches;
  for (const QAbstractButton* boite : vue->findChildren<QAbstractButton*>()) {
    const QString nom = boite->accessibleName().isEmpty() ? boite->text() : boite->accessibleName();
    if (boite->isChecked() && !nom.contains(u"tous les mois") && !nom.startsWith(u"Participe à l'étude"))
      coches += nom;
  }
  EXPECT_EQ(coches, (QStringList{u"Attestation au nom du second"_s, u"Parents séparés"_s,
                                 u"Rentre à son domicile pendant midi, septembre"_s,
                                 u"Paiement forfaitaire, janvier"_s}));
  EXPECT_TRUE(Controle<QAbstractButton>(u"Participe à l'étude, tous les mois"_s).isChecked());

  auto& mois = Controle<QComboBox>(u"Mois du relevé"_s);
  EXPECT_EQ(mois.currentText(), u"Octobre"_s);
  mois.setFocus();
  for (int i = 0; i < 4; ++i) QTest::keyClick(&mois, Qt::Key_Down);
  EXPECT_EQ(ecran->IndiceMois(), 5);
  EXPECT_TRUE(Montre(u"Aucun relevé en février"_s));
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
  const struct {
    const char* Facon;
    std::function<void(QLineEdit&)> Quitter;
  } facons[] = {
      {"Tab", [](QLineEdit& champ) { QTest::keyClick(&champ, Qt::Key_Tab); }},
      {"Entree", [](QLineEdit& champ) { QTest::keyClick(&champ, Qt::Key_Return); }},
      {"souris", [&](QLineEdit&) { Controle<QLineEdit>(u"N° compte"_s).setFocus(Qt::MouseFocusReason); }},
      {"autre fenetre", [](QLineEdit& champ) { champ.clearFocus(); }},
      {"commande", [&](QLineEdit&) { ecran->LaisserChamp(); }},
      {"autre eleve", [&](QLineEdit&) {
         ecran->LaisserChamp();
         Choisir(vide.Id);
       }}};
  for (const auto& [facon, quitter] : facons) {
    QLineEdit& champ = Taper(u"Localité du responsable"_s, QString::fromUtf8(facon));
    EXPECT_NE(Eleve(u"LOCALITE"_s), QString::fromUtf8(facon)) << "not while it is typed in";
    quitter(champ);
    EXPECT_EQ(Eleve(u"LOCALITE"_s), QString::fromUtf8(facon));
  }
  EXPECT_EQ(Eleve(u"LOCALITE"_s, vide.Id), QString());
  EXPECT_EQ(monde.Etats.last(), u"Localité du responsable : enregistré pour LAMBERT Élise");
  Choisir(rose.Id);
  const std::pair<QString, QString> autres[] = {{u"Adresse du second responsable"_s, u"ADRESSE2"_s},
                                                {u"Nom du titulaire"_s, u"NOM_TITULAIRE_COMPTE"_s},
                                                {u"Code postal du second responsable"_s, u"CODE_POSTAL2"_s}};
  for (const auto& [nom, colonne] : autres) {
    Taper(nom, u"4000"_s);
    ecran->LaisserChamp();
    EXPECT_EQ(Eleve(colonne), u"4000");
  }
  EXPECT_EQ(Taper(u"Numéro du responsable"_s, QString(60, u'9')).text().size(), 40)
      << "what the column takes";
}

TEST_F(TSaisieFiche, UneDateFausseResteJusquAuProchainEleve) {
  QLineEdit& date = Taper(u"Date de naissance"_s, u"31/02/2010"_s);
  QTest::keyClick(&date, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_TRUE(date.hasFocus());
  EXPECT_TRUE(Montre(u"La date de naissance introduite est incorrecte."_s));
  EXPECT_EQ(monde.Etats, QStringList{u"Non enregistré : La date de naissance introduite est incorrecte."_s});
  Choisir(rose.Id);  // a refresh
  EXPECT_EQ(date.text(), u"31/02/2010");
  EXPECT_EQ(Eleve(u"DATE_NAISSANCE"_s), u"2010-03-14");
  QTest::keyClick(&date, Qt::Key_Escape);
  EXPECT_EQ(date.text(), u"14/03/2010");
  Taper(u"Date de naissance"_s, u"hier"_s);
  EXPECT_FALSE(ecran->LaisserChamp());
  Choisir(vide.Id);
  QApplication::processEvents();
  EXPECT_EQ(date.text(), QString());
  EXPECT_TRUE(monde.Etats.last().contains(u"LAMBERT Élise")) << "it was hers, and is told";
  EXPECT_EQ(Eleve(u"DATE_NAISSANCE"_s, vide.Id), QString());
}

TEST_F(TSaisieFiche, UnEnregistrementQuiEchoue) {
  base.Sql(u"ALTER TABLE ELEVES ADD CONSTRAINT PAS_ICI CHECK (LOCALITE <> 'Ailleurs')"_s);
  base.Dialogues.Attend(u"PAS_ICI"_s);
  QLineEdit& champ = Taper(u"Localité du responsable"_s, u"Ailleurs"_s);
  QTest::keyClick(&champ, Qt::Key_Tab);
  QApplication::processEvents();
  EXPECT_EQ(champ.text(), u"Ailleurs");
  EXPECT_EQ(Globals.EleveCourant->Localite, u"Namur");
  Taper(u"Localité du responsable"_s, u"Jambes"_s);
  Cocher(u"2e enfant"_s);
  EXPECT_EQ(Eleve(u"LOCALITE"_s) + Eleve(u"FLG_2E_ENFANT"_s), u"Jambes1") << "the next save works";
}

TEST_F(TSaisieFiche, LesCasesEtLesMois) {
  Cocher(u"Gratuité des services"_s);
  EXPECT_EQ(Euros(ecran->Releve.Total), "5.7500") << "at once";
  Cocher(u"Élève radié"_s);
  EXPECT_EQ(monde.Envois, 1);
  Cocher(u"Attestation au nom du responsable"_s);
  EXPECT_EQ(Eleve(u"FLG_3E_ENFANT"_s), u"1");
  EXPECT_EQ(Eleve(u"FLG_RADIE"_s), u"1");
  EXPECT_NE(Eleve(u"FLG_IMPOT_RESPONS2"_s), u"1");
  EXPECT_FALSE(Controle<QAbstractButton>(u"Attestation au nom du second"_s).isChecked());

  const auto marques = [&](int type) {
    return base
        .Rangees(
            u"SELECT MOIS, ANNEE FROM PRESENCES_PARTICULIERES WHERE TYPE_PRESENCE = %1 ORDER BY ANNEE, MOIS"_s
                .arg(type))
        .join(u' ');
  };
  Controle<QAbstractButton>(u"Rentre à son domicile pendant midi, janvier"_s).click();
  EXPECT_EQ(marques(1), u"9;2016 1;2017");
  Controle<QAbstractButton>(u"Paiement forfaitaire, tous les mois"_s).click();
  EXPECT_EQ(marques(3), u"9;2016 10;2016 11;2016 12;2016 1;2017 2;2017 3;2017 4;2017 5;2017 6;2017");
  Controle<QAbstractButton>(u"Paiement forfaitaire, tous les mois"_s).click();
  Controle<QAbstractButton>(u"Participe à l'étude, juin"_s).click();
  EXPECT_EQ(marques(3), QString());
  EXPECT_FALSE(Controle<QCheckBox>(u"Participe à l'étude, tous les mois"_s).checkState() == Qt::Checked);

  Globals.EleveCourant = nullptr;
  Diffuser(TCodeMessage::EleveChange, *ecran);
  EXPECT_TRUE(Montre(u"Choisissez un élève dans la liste"_s));
  for (const QString& nom :
       {u"2e enfant"_s, u"Attestation au nom du second"_s, u"Paiement forfaitaire, mars"_s}) {
    base.Dialogues.Attend(u"Veuillez sélectionner un élève"_s);
    Controle<QAbstractButton>(nom).click();
    EXPECT_FALSE(Controle<QAbstractButton>(nom).isChecked()) << "the box goes back";
  }
  base.Dialogues.Attend(u"Veuillez sélectionner un élève"_s);
  ecran->SpeedButton2Click();
}

TEST_F(TSaisieFiche, RelevesAjoutesEtSupprimes) {
  monde.SurModale = [](TForm& form) {
    auto& saisie = dynamic_cast<TFrmAjoutReleve&>(form);
    saisie.Champs().Taper(2, u"07:15"_s);
    if (!saisie.Valider()) saisie.Valider();
  };
  monde.Essai.Horloge.Moment = EncodeDate(2016, 10, 6);
  Controle<QAbstractButton>(u"Ajouter un relevé"_s).click();
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'"_s), u"1");
  Controle<QAbstractButton>(u"Ajouter un relevé"_s).click();
  EXPECT_TRUE(monde.Etats.last().startsWith(u"Relevé non ajouté")) << "a record that is dropped is told";

  const QString question = u"Confirmez-vous la suppression définitive du relevé sélectionné ?"_s;
  base.Dialogues.Attend(u"Veuillez sélectionner un relevé à supprimer"_s);
  Controle<QAbstractButton>(u"Supprimer le relevé"_s).click();
  auto& releve = Controle<VueGrille>(u"Relevé mensuel des services"_s);
  ecran->Releve.Grille.ChoisirLigne(3);
  base.Dialogues.Repond(question, false).Repond(question, true);
  releve.setFocus();
  QTest::keyClick(&releve, Qt::Key_Delete);
  QTest::keyClick(&releve, Qt::Key_Delete);
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'"_s), u"0");
  QTest::keyClick(&releve, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'"_s), u"1");
}

TEST_F(TSaisieFiche, FraisCochesPaiementsSaisisEtSupprimes) {
  auto& frais = Controle<VueGrille>(u"Frais et paiements"_s);
  frais.setFocus();
  const auto cocher = [&](int ligne) {
    ecran->Frais.Grille.ChoisirLigne(ligne);
    QTest::keyClick(&frais, Qt::Key_Space);
  };
  const auto mois = [&] {
    return base.Rangees(u"SELECT MOIS, ANNEE, MONTANT FROM PAIEMENTS ORDER BY PAIEMENT_ID"_s).join(u' ');
  };
  cocher(2);  // "Stage"
  EXPECT_EQ(base.Valeur(u"SELECT MAX(MONTANT_VERSE) FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = 3"_s), u"3.0000");
  cocher(4);  // "Services octobre"
  EXPECT_TRUE(mois().endsWith(u"10;2016;17.5000")) << "the school year of the row";
  cocher(4);
  EXPECT_FALSE(mois().contains(u"17.5"));
  const QString partiel = u"n'est payé qu'en partie"_s;
  base.Dialogues.Repond(partiel, false).Repond(partiel, true);
  cocher(0);
  EXPECT_EQ(ecran->Frais.Grille.Texte(0, 3), u"50,00 €");
  cocher(0);
  EXPECT_EQ(ecran->Frais.Grille.Texte(0, 3), QString());

  monde.SurModale = [](TForm& form) {
    auto& saisie = dynamic_cast<TFrmPaiement&>(form);
    saisie.Champs().Taper(0, u"Acompte d'août"_s);
    saisie.Champs().Taper(1, u"douze"_s);
    EXPECT_FALSE(saisie.Valider());
    EXPECT_EQ(saisie.Champs().Faute(1), u"Le montant introduit est incorrect !");
    saisie.Champs().Taper(1, u"12,5"_s);
    saisie.Champs().Choisir(3, 2);
    EXPECT_TRUE(saisie.Valider());
  };
  Controle<QAbstractButton>(u"Ajouter un paiement"_s).click();
  const QString paiements =
      u"SELECT REMARQUE, MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS, EXTRAIT_ID FROM FRAIS_ELEVE WHERE "
      "LISTEFRAIS_ID IS NULL ORDER BY FRAIS_ELEVE_ID"_s;
  EXPECT_EQ(base.Rangees(paiements).last(), u"Acompte d'août;12.5000;10;2;-");
  ecran->Frais.Grille.ChoisirLigne(ecran->Frais.Grille.NombreLignes() - 1);
  base.Dialogues.Repond(u"Confirmez-vous la suppression du paiement de 12,50 euros (Acompte d'août)"_s, true);
  QTest::keyClick(&frais, Qt::Key_Delete);
  EXPECT_EQ(base.Rangees(paiements).size(), 1);
  QTest::keyClick(&frais, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(base.Rangees(paiements).last(), u"Acompte d'août;12.5000;10;2;-");
  ecran->Frais.Grille.ChoisirLigne(0);
  QTest::keyClick(&frais, Qt::Key_Return);
  EXPECT_TRUE(monde.Etats.last().startsWith(u"Seul un paiement introduit à la main se modifie"));
}

TEST_F(TSaisieFiche, LeCalendrierMarqueCeQuiEstCompte) {
  monde.SurModale = [&](TForm& form) {
    auto& calendrier = dynamic_cast<TFrmReleveCalendrier&>(form);
    VueReleveCalendrier vueCalendrier(calendrier, nullptr);
    calendrier.DateChange(J("2016-10-05"));
    calendrier.PlannerCalendar1DblClick();  // a Wednesday
    calendrier.DateChange(J("2016-10-06"));
    base.Dialogues.Attend(u"Veuillez sélectionner un type de relevé"_s);
    calendrier.PlannerCalendar1DblClick();
    calendrier.TypeChange(0);
    EXPECT_TRUE(calendrier.EstMarque(J("2016-10-04")));
    calendrier.PlannerCalendar1DblClick();
    EXPECT_TRUE(calendrier.EstMarque(J("2016-10-06")));
    calendrier.DateChange(J("2017-07-01"));
    EXPECT_EQ(calendrier.Date(), J("2016-10-06")) << "out of the year";
    calendrier.btnFermerClick();
  };
  Controle<QAbstractButton>(u"Relevés sur calendrier"_s).click();
  EXPECT_EQ(
      base.Rangees(u"SELECT TYPE_PRESENCE, HEURE_SORTIE FROM PRESENCES WHERE DATE_RELEVE = '2016-10-06'"_s),
      QStringList{u"4;-"_s});
  monde.SurModale = [&](TForm& form) {
    auto& calendrier = dynamic_cast<TFrmReleveCalendrier&>(form);
    EXPECT_EQ(calendrier.Type(), 0);
    EXPECT_EQ(calendrier.Date(), J("2016-10-06"));
    VerifierVuePartout([&] { return std::make_unique<VueReleveCalendrier>(calendrier, nullptr); });
  };
  Controle<QAbstractButton>(u"Relevés sur calendrier"_s).click();
  TFrmPaiement paiement(3);
  VerifierVuePartout([&] { return std::make_unique<VueDialogue>(paiement, nullptr); });
}

TEST_F(TSaisieFiche, LaPhotoDUnFichier) {
  QImage image(200, 220, QImage::Format_RGB32);
  image.fill(Qt::red);
  const QString bon = base.Chemin(u"photo.png"_s);
  ASSERT_TRUE(image.save(bon));
  auto& photo = Controle<QAbstractButton>(u"Photo"_s);
  base.Dialogues.Saisit(u"Choisir une photo"_s, bon);
  photo.click();
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM ELEVE_PHOTO"_s), u"1");
  EXPECT_FALSE(Globals.Parametres->GetParametre(TParam::DatePhoto).isEmpty());
  EXPECT_FALSE(ecran->Photo().isNull());
  base.Dialogues.Repond(u"Voulez-vous effacer cette photo ?"_s, true);
  photo.setFocus();
  QTest::keyClick(&photo, Qt::Key_Delete);
  EXPECT_TRUE(ecran->Photo().isNull());

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
  base.Dialogues.Attend(u"n'est pas un fichier de cet ordinateur"_s);
  deposer(QUrl(u"https://ecole.be/rose.jpg"_s));  // of a browser
  deposer(QUrl::fromLocalFile(bon));
  EXPECT_FALSE(ecran->Photo().isNull());
}

// What the user has folded, where the list stands and where the hand is outlive the next pupil.
TEST_F(TVueSignaletique, GroupesFoyerEtPlaceRestent) {
  Ouvrir(rose);
  Montrer({1117, 500});
  auto& releve = Controle<VueGrille>(u"Relevé mensuel des services"_s);
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
  const struct {
    int Largeur;
    int Colonnes;
  } cas[] = {{760, 1}, {1117, 2}, {1499, 2}, {1500, 3}, {1671, 3}, {1117, 2}};
  Montrer();
  const auto& identite = *vue->findChild<FicheIdentite*>();
  const auto& releve = Controle<VueGrille>(u"Relevé mensuel des services"_s);
  const auto& frais = Controle<VueGrille>(u"Frais et paiements"_s);
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
