#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "support/affichage.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/panneau_edition.h"
#include "ui/commun/saisie.h"
#include "ui/commun/titres.h"
#include "ui/verifier_vue.h"

namespace {

QString T(const char* texte) { return QString::fromUtf8(texte); }

/// Refuses a field that is empty.
class DialogueEssai : public DialogueBase {
 public:
  DialogueEssai() : DialogueBase(T("Essai")), Montant(new SaisieMontant) {
    DefinirPrincipal(T("&Enregistrer"), T("document-save"));
    auto* titre = new TitreSection(T("Une section"));
    titre->AjouterAction(BoutonSupprimer(T("Supprimer le coût")));
    Contenu()->addWidget(titre);
    Contenu()->addWidget(new ChampLibelle(T("Coût:"), Montant, ChampLibelle::Dessus));
  }
  SaisieMontant* Montant;

 protected:
  bool Valider() override {
    if (!Montant->text().isEmpty()) return true;
    MontrerFaute(T("Le coût manque."), Montant);
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
  QTest::keyClicks(dialogue.Montant, T("2,5"));
  EXPECT_FALSE(dialogue.Montant->property("faute").toBool());
  QTest::keyClick(dialogue.Montant, Qt::Key_Return);
  EXPECT_EQ(dialogue.result(), QDialog::Accepted);
  dialogue.show();
  QTest::keyClick(&dialogue, Qt::Key_Escape);
  EXPECT_EQ(dialogue.result(), QDialog::Rejected);
}

TEST(DialogueBase, SeParcourt) {
  VerifierVuePartout([] {
    auto dialogue = std::make_unique<DialogueEssai>();
    dialogue->show();
    dialogue->Principal()->click();  // with the line of its fault
    return dialogue;
  });
}

TEST(PanneauEdition, EnLectureRienNeChange) {
  PanneauEdition panneau;
  auto* montant = new SaisieMontant;
  panneau.Contenu()->addWidget(new ChampLibelle(T("Coût:"), montant));
  int annulations = 0;
  QObject::connect(&panneau, &PanneauEdition::Annule, &panneau, [&] { ++annulations; });
  panneau.show();
  QApplication::setActiveWindow(&panneau);
  panneau.DefinirMode(TModeEdition::Lecture, T("Tarif"));
  QTest::keyClicks(montant, T("2"));
  QTest::keyClick(montant, Qt::Key_Escape);
  EXPECT_EQ(montant->text(), QString());
  EXPECT_EQ(annulations, 0);
  panneau.DefinirMode(TModeEdition::Modification, T("Modification du tarif"));
  panneau.AllerAuPremierChamp();
  EXPECT_TRUE(montant->hasFocus());
  QTest::keyClicks(montant, T("2"));
  QTest::keyClick(montant, Qt::Key_Escape);
  EXPECT_EQ(montant->text(), T("2"));
  EXPECT_EQ(annulations, 1);
}
