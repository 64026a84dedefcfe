#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "screens/signaletique_essai.h"
#include "ui/commun/pied_de_grille.h"
#include "ui/commun/vue_grille.h"
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
  QStringList champs;
  for (const QLineEdit* champ : vue->findChildren<QLineEdit*>()) {
    EXPECT_TRUE(champ->isReadOnly());
    if (!champ->text().isEmpty()) champs += champ->accessibleName() % u'=' % champ->text();
  }
  champs.sort();
  EXPECT_EQ(champs,
            (QStringList{u"Adresse du responsable=Rue des Tanneurs"_s, u"Code postal du responsable=5000"_s,
                         u"Date de naissance=14/03/2010"_s, u"Localité du responsable=Namur"_s,
                         u"Nom du responsable=LAMBERT"_s, u"Nom du second responsable=COLLIN"_s,
                         u"Nom du titulaire=LAMBERT N."_s, u"Numéro du responsable=12"_s,
                         u"N° compte=BE71 0961 2345 6769"_s, u"Prénom du responsable=Nathalie"_s}))
      << "a postcode of 0 is none";
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

// Until it can be edited, a click answers and changes nothing.
TEST_F(TVueSignaletique, UnClicNeChangeRien) {
  Ouvrir(rose);
  Montrer();
  const QString noms[] = {u"2e enfant"_s, u"Attestation au nom du responsable"_s,
                          u"Paiement forfaitaire, mars"_s};
  for (const QString& nom : noms) {
    auto& bouton = Controle<QAbstractButton>(nom);
    bouton.setFocus();
    QTest::keyClick(&bouton, Qt::Key_Space);
    EXPECT_FALSE(bouton.isChecked()) << nom.toStdString();
  }
  EXPECT_EQ(monde.Etats.size(), 3);
  auto& frais = Controle<VueGrille>(u"Frais et paiements"_s);
  const int lignes = ecran->Frais.Grille.NombreLignes();
  frais.setFocus();
  for (const int touche : {Qt::Key_Home, Qt::Key_Return, Qt::Key_Delete})
    QTest::keyClick(&frais, static_cast<Qt::Key>(touche));
  EXPECT_EQ(monde.Etats.size(), 5) << "Enter would edit the fee, Suppr delete it";
  EXPECT_EQ(ecran->Frais.Grille.NombreLignes(), lignes);
  Globals.EleveCourant = nullptr;
  Diffuser(TCodeMessage::EleveChange, *ecran);
  EXPECT_TRUE(Montre(u"Choisissez un élève dans la liste"_s));
  EXPECT_FALSE(Controle<QAbstractButton>(u"Attestation au nom du second"_s).isChecked());
  base.Dialogues.Attend(u"Veuillez sélectionner un élève"_s);
  Controle<QAbstractButton>(u"2e enfant"_s).click();
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
