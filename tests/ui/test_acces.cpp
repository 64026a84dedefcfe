// The program worked by an assistive program: what it presses does what the mouse does.
#include <QAccessible>
#include <QToolButton>

#include "screens/pupils/frm_signaletique.h"
#include "screens/services/frm_liste_frais.h"
#include "ui/principal/barre_commandes.h"
#include "ui/reglages_essai.h"

namespace {

class Acces : public TReglagesEssai {
 protected:
  QAccessibleInterface& Interface(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }
  /// The first thing that it can do.
  void Faire(QWidget* widget) {
    QAccessibleActionInterface* gestes = Interface(widget).actionInterface();
    gestes->doAction(gestes->actionNames().value(0));
    QCoreApplication::processEvents();
  }
};

}  // namespace

TEST_F(Acces, PagesCommandsAndBoxesDoWhatTheMouseDoes) {
  Ecole.unEleve().nomme("Adam", "Ève").enClasse("P1", "A");
  Ecole.frais("Piscine", "10", 10);
  Programme.Demarrer();
  Programme.Main().edSearchChange("adam");
  const BarreCommandes& barre = *Programme.Fenetre().Barre();
  Faire(barre.Onglet(TPage::PgParametre));
  EXPECT_EQ(Interface(barre.Onglet(TPage::PgParametre)).role(), QAccessible::PageTab);
  EXPECT_TRUE(Interface(barre.Onglet(TPage::PgParametre)).state().selected);
  EXPECT_TRUE(Interface(barre.findChild<QWidget*>("annees")).state().hasPopup);
  EXPECT_FALSE(Interface(barre.Onglet(TPage::PgParametre)).state().hasPopup);
  QWidget* frais = barre.Bouton(TGestionnaire::AdvGlowButton16Click);
  EXPECT_EQ(Interface(frais).role(), QAccessible::Button);
  EXPECT_EQ(Interface(frais).text(QAccessible::Name), "Frais");
  Faire(frais);
  auto& liste = Form<TFrmListeFrais>();
  Faire(barre.Bouton(TOutil::btnEdit));
  ASSERT_EQ(liste.Mode(), TModeEdition::Modification);
  QWidget* mode = &Controle("btnFraisPaye");
  Faire(mode);
  EXPECT_TRUE(liste.ModePaye());
  EXPECT_TRUE(Interface(mode).state().checked);
  liste.Annuler();

  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  QWidget* radie = &Controle("cbEleveRadie");
  EXPECT_EQ(Interface(radie).role(), QAccessible::CheckBox);
  Faire(radie);
  EXPECT_EQ(Base.Valeur("SELECT FLG_RADIE FROM ELEVES"), "1") << "a box that is toggled is stored";
  Faire(&Nomme<QWidget>("Attestation au nom du second"));
  EXPECT_EQ(Base.Valeur("SELECT FLG_IMPOT_RESPONS2 FROM ELEVES"), "1");
}
