#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "support/affichage.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/saisie.h"
#include "ui/commun/titres.h"

using namespace Qt::StringLiterals;

namespace {

/// Refuses a field that is empty.
class DialogueEssai : public DialogueBase {
 public:
  DialogueEssai() : DialogueBase(u"Essai"_s), Montant(new SaisieMontant) {
    DefinirPrincipal(u"&Enregistrer"_s, u"document-save"_s);
    auto* titre = new TitreSection(u"Une section"_s);
    titre->AjouterAction(BoutonSupprimer(u"Supprimer le coût"_s));
    Contenu()->addWidget(titre);
    Contenu()->addWidget(new ChampLibelle(u"Coût:"_s, Montant, ChampLibelle::Dessus));
  }
  SaisieMontant* Montant;

 protected:
  bool Valider() override {
    if (!Montant->text().isEmpty()) return true;
    MontrerFaute(u"Le coût manque."_s, Montant);
    return false;
  }
};

}  // namespace

TEST(DialogueBase, RefuseResteOuvertEtMontreLeChamp) {
  DialogueEssai dialogue;
  dialogue.show();
  QApplication::setActiveWindow(&dialogue);
  dialogue.Annuler()->setFocus();
  dialogue.Principal()->click();
  EXPECT_TRUE(dialogue.isVisible());
  EXPECT_TRUE(dialogue.Montant->hasFocus());
  QTest::keyClick(dialogue.Montant, Qt::Key_Tab);  // looked at, not mended
  EXPECT_TRUE(dialogue.Montant->property("faute").toBool());
  dialogue.Montant->setFocus();
  QTest::keyClicks(dialogue.Montant, u"2,5"_s);
  EXPECT_FALSE(dialogue.Montant->property("faute").toBool());
  QTest::keyClick(dialogue.Montant, Qt::Key_Return);
  EXPECT_EQ(dialogue.result(), QDialog::Accepted);
  dialogue.show();
  QTest::keyClick(&dialogue, Qt::Key_Escape);
  EXPECT_EQ(dialogue.result(), QDialog::Rejected);
}
