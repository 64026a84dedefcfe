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
  EXPECT_TRUE(Montre(u"LAMBERT Élise"_s) && Montre(u"À payer"_s));
  EXPECT_TRUE(Montre(u"\u2212126,10\u00A0€"_s));
  EXPECT_EQ(Controle<QLineEdit>(u"Localité du responsable"_s).text(), u"Namur"_s);
  EXPECT_EQ(Controle<QLineEdit>(u"Date de naissance"_s).text(), u"14/03/2010"_s);
  EXPECT_TRUE(Controle<QAbstractButton>(u"Attestation au nom du second"_s).isChecked());
  EXPECT_TRUE(Controle<QAbstractButton>(u"Parents séparés"_s).isChecked());
  EXPECT_TRUE(Controle<QAbstractButton>(u"Participe à l'étude, tous les mois"_s).isChecked());
  for (const QLineEdit* champ : vue->findChildren<QLineEdit*>()) EXPECT_TRUE(champ->isReadOnly());

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
  EXPECT_EQ(principal.Etats.size(), 3);
  auto& frais = Controle<VueGrille>(u"Frais et paiements"_s);
  const int lignes = ecran->Frais.Grille.NombreLignes();
  frais.setFocus();
  for (const int touche : {Qt::Key_Home, Qt::Key_Return, Qt::Key_Delete})
    QTest::keyClick(&frais, static_cast<Qt::Key>(touche));
  EXPECT_EQ(principal.Etats.size(), 5) << "Enter would edit the fee, Suppr delete it";
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
