#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "support/affichage.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/grille_mois.h"
#include "ui/commun/saisie.h"
#include "ui/commun/texte.h"
#include "ui/principal/dialogue_saisie.h"

namespace {

QString T(const char* texte) { return QString::fromUtf8(texte); }

/// Types over the field and leaves it.
void Saisir(QLineEdit& champ, const QString& texte) {
  champ.selectAll();
  QTest::keyClicks(&champ, texte);
  QTest::keyClick(&champ, Qt::Key_Return);
}

}  // namespace

TEST(Saisies, AnnoncentUnAutreTexteUneFois) {
  SaisieDate date;
  int saisies = 0;
  QObject::connect(&date, &Saisie::Saisi, &date, [&] { ++saisies; });
  date.DefinirDate(EncodeDate(2010, 3, 14));
  Saisir(date, u"14/03/2010"_s);
  EXPECT_EQ(saisies, 0);
  Saisir(date, u"15/3/2010"_s);
  QTest::keyClick(&date, Qt::Key_Return);
  EXPECT_EQ(saisies, 1);
  EXPECT_EQ(date.Date(), EncodeDate(2010, 3, 15));
  Saisir(date, u"31/02/2010"_s);
  EXPECT_EQ(saisies, 2);
  EXPECT_FALSE(date.Date().has_value());
  date.DefinirDate(EncodeDate(2010, 3, 14));
  MarquerFaute(date, true);
  QTest::keyClick(&date, Qt::Key_Return);  // looked at, not mended
  EXPECT_TRUE(date.property("faute").toBool());
  QTest::keyClicks(&date, u"1"_s);
  EXPECT_FALSE(date.property("faute").toBool());
}

TEST(DialogueBase, RefuseResteOuvertEtMontreLeChamp) {
  DialogueSaisie dialogue({.Titre = u"Essai"_s, .Invite = u"Nom :"_s, .Refus = [](const QString& texte) {
                             return texte.isEmpty() ? u"Le nom manque."_s : QString();
                           }});
  auto& champ = *dialogue.findChild<QLineEdit*>();
  dialogue.show();
  QApplication::setActiveWindow(&dialogue);
  dialogue.Annuler()->setFocus();
  dialogue.Principal()->click();
  EXPECT_TRUE(dialogue.isVisible() && champ.hasFocus() && champ.property("faute").toBool());
  QTest::keyClicks(&champ, u"Zoe"_s);
  QTest::keyClick(&champ, Qt::Key_Return);
  EXPECT_EQ(dialogue.result(), QDialog::Accepted);
  dialogue.show();
  QTest::keyClick(&dialogue, Qt::Key_Escape);
  EXPECT_EQ(dialogue.result(), QDialog::Rejected);
}

TEST(Saisies, LaMoletteNeChangeQueLeChampDuFoyer) {
  QWidget fenetre;
  auto* colonne = new QVBoxLayout(&fenetre);
  auto* liste = new QComboBox;
  liste->addItems({u"a"_s, u"b"_s});
  auto* autre = new QLineEdit;
  colonne->addWidget(autre);
  colonne->addWidget(liste);
  fenetre.show();
  QApplication::setActiveWindow(&fenetre);
  const auto tourner = [&] {
    QWheelEvent molette({5, 5}, liste->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(liste, &molette);
  };
  autre->setFocus();
  tourner();
  EXPECT_EQ(liste->currentIndex(), 0);
  liste->setFocus();
  tourner();
  EXPECT_EQ(liste->currentIndex(), 1);
}

TEST(GrilleMois, SeConduitAuClavier) {
  GrilleMois mois({u"Participe à l'étude"_s, u"Paiement forfaitaire"_s});
  std::vector<std::array<int, 3>> gestes;
  QObject::connect(&mois, &GrilleMois::Basculee, &mois, [&](int ligne, int m, bool coche) {
    gestes.push_back({ligne, m, coche});
  });
  QObject::connect(&mois, &GrilleMois::TousBascules, &mois, [&](int ligne, bool coche) {
    gestes.push_back({ligne, -1, coche});
  });
  mois.show();
  QApplication::setActiveWindow(&mois);
  const auto boite = [&](const char* nom) {
    for (auto* candidate : mois.findChildren<QCheckBox*>())
      if (candidate->accessibleName() == T(nom)) return candidate;
    return static_cast<QCheckBox*>(nullptr);
  };
  QTest::keyClick(&mois, Qt::Key_Tab);
  const auto touche = [&](Qt::Key t) { QTest::keyClick(mois.focusWidget(), t); };
  ASSERT_EQ(mois.focusWidget(), boite("Participe à l'étude, septembre"));
  touche(Qt::Key_Right);
  touche(Qt::Key_Right);
  touche(Qt::Key_Down);
  ASSERT_EQ(mois.focusWidget(), boite("Paiement forfaitaire, novembre"));
  touche(Qt::Key_Space);
  EXPECT_TRUE(mois.Coche(1, 2));
  QCheckBox* maitre = boite("Paiement forfaitaire, tous les mois");
  EXPECT_EQ(maitre->checkState(), Qt::PartiallyChecked);
  touche(Qt::Key_Home);
  ASSERT_EQ(mois.focusWidget(), maitre);
  touche(Qt::Key_Left);  // nothing there
  touche(Qt::Key_Space);
  EXPECT_EQ(maitre->checkState(), Qt::Checked);
  for (int m = 0; m < GrilleMois::kMois; ++m) EXPECT_TRUE(mois.Coche(1, m));
  EXPECT_FALSE(mois.Coche(0, 2));
  EXPECT_EQ(gestes, (std::vector<std::array<int, 3>>{{1, 2, 1}, {1, -1, 1}}));

  int arrets = 0;
  for (auto* candidate : mois.findChildren<QCheckBox*>())
    arrets += (candidate->focusPolicy() & Qt::TabFocus) != 0;
  EXPECT_EQ(arrets, 1);
}

TEST(Texte, MontantsEtLibelles) {
  EXPECT_EQ(TexteMontant(Currency::Brut(-1829000)), u"−182,90\u00A0€"_s);
  for (const char* laisse : {"05/11/2018", "Classe 3 - 4", "-", "7h30", ""})
    EXPECT_EQ(TypographieMontant(T(laisse)), T(laisse));
  EXPECT_EQ(NomAccessible(u"N° &compte : "_s), u"N° compte"_s);
}
