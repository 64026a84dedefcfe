#include <QApplication>

#include "ui/commun/contraste.h"
#include "ui/commun/theme.h"
#include "ui/verifier_vue.h"

using namespace Qt::StringLiterals;

TEST(Theme, LesCouleursSeDistinguentDansLesDeuxPalettes) {
  for (const Theme::TMode mode : {Theme::TMode::Clair, Theme::TMode::Sombre}) {
    Theme::Appliquer(*qApp, mode);
    const QPalette p = QApplication::palette();
    const QColor fenetre = p.color(QPalette::Window), base = p.color(QPalette::Base);
    const std::tuple<QColor, QColor, double> paires[] = {
        {p.color(QPalette::WindowText), fenetre, 4.5},
        {p.color(QPalette::Text), base, 4.5},
        {p.color(QPalette::ButtonText), p.color(QPalette::Button), 4.5},
        {p.color(QPalette::Link), fenetre, 4.5},
        {p.color(QPalette::HighlightedText), p.color(QPalette::Highlight), 4.5},
        {Theme::Couleur(TRole::SurSelection), Theme::Couleur(TRole::Selection), 4.5},
        {p.color(QPalette::Text), Theme::Couleur(TRole::Survol), 4.5},
        {Theme::Couleur(TRole::Bord), fenetre, 3.0},
        {Theme::Couleur(TRole::Bord), base, 3.0},
        {p.color(QPalette::Highlight), fenetre, 3.0},
        {p.color(QPalette::Highlight), Theme::Couleur(TRole::Selection), 3.0},
        {p.color(QPalette::PlaceholderText), fenetre, 3.0},
        {p.color(QPalette::Disabled, QPalette::Text), fenetre, 3.0},
    };
    const auto verifier = [](const QColor& a, const QColor& b, double moindre) {
      EXPECT_GE(Contraste(a, b), moindre) << a.name().toStdString() << " sur " << b.name().toStdString();
    };
    for (const auto& [a, b, moindre] : paires) verifier(a, b, moindre);
    for (const QColor& role :
         {Theme::Couleur(TRole::Secondaire), Theme::Couleur(TRole::Succes), Theme::Couleur(TRole::Alerte),
          Theme::Couleur(TRole::Erreur), Theme::Couleur(TRole::ErreurGrave)})
      for (const QColor& fond : {fenetre, Theme::Couleur(TRole::Selection)}) verifier(role, fond, 4.5);
  }
  Theme::Appliquer(*qApp, Theme::TMode::Clair);
}

TEST(Theme, UneIconeGardeeSuitLaPalette) {
  Theme::Appliquer(*qApp, Theme::TMode::Sombre);
  EXPECT_TRUE(Theme::EstSombre());
  const QImage sombre = Theme::Icone(u"edit-find"_s).pixmap(16, 16).toImage();
  const QIcon gardee = Theme::Icone(u"edit-find"_s);
  Theme::Appliquer(*qApp, Theme::TMode::Clair);
  EXPECT_FALSE(Theme::EstSombre());
  EXPECT_NE(gardee.pixmap(16, 16).toImage(), sombre);  // an icon that is kept takes the new colour
}

TEST(Theme, LesLongueursSuiventLaPolice) {
  EXPECT_EQ(Theme::Px(28), 28);
  QApplication::setFont(PoliceEssai(15));
  EXPECT_NEAR(Theme::Px(28), 42, 1);
  QApplication::setFont(PoliceEssai(10));
}
