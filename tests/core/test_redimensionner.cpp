#include <algorithm>

#include "core/redimensionner.h"

namespace {

using Valeurs = std::vector<int>;

/// A picture of greys, row by row.
QImage Gris(int largeur, const Valeurs& gris) {
  QImage image(largeur, static_cast<int>(gris.size()) / largeur, QImage::Format_RGB32);
  for (int i = 0; const int g : gris) {
    image.setPixel(i % largeur, i / largeur, qRgb(g, g, g));
    ++i;
  }
  return image;
}

Valeurs Rendu(const QImage& source, int largeur, int hauteur,
              TModeRedimension mode = TModeRedimension::Lissage) {
  QImage cible(largeur, hauteur, QImage::Format_RGB32);
  Redimensionner(source, cible, mode);
  Valeurs gris;
  for (int i = 0; i < largeur * hauteur; ++i) gris.push_back(qRed(cible.pixel(i % largeur, i / largeur)));
  return gris;
}

}  // namespace

TEST(Redimensionner, ChaqueAxeFaitLaMoyenneOuInterpole) {
  const struct {
    int De;
    Valeurs Gris;
    int Largeur, Hauteur;
    Valeurs Rendu;
  } cas[] = {
      {4, {0, 100, 200, 100}, 2, 1, {50, 150}},
      {1, {0, 100, 200, 100}, 1, 2, {50, 150}},
      {3, {30, 90, 240}, 2, 1, {50, 190}},  // each takes one and a half
      {3, {30, 90, 240}, 1, 1, {120}},
      {2, {0, 200}, 4, 1, {0, 50, 150, 200}},
      {1, {0, 200}, 1, 4, {0, 50, 150, 200}},
      {1, {70}, 3, 2, Valeurs(6, 70)},
      {2, {0, 100, 100, 200}, 4, 1, {50, 75, 125, 150}},  // wider and lower at once
      {3, {1, 2, 3, 4, 5, 6}, 3, 2, {1, 2, 3, 4, 5, 6}},
  };
  for (const auto& [de, gris, largeur, hauteur, rendu] : cas)
    EXPECT_EQ(Rendu(Gris(de, gris), largeur, hauteur), rendu) << largeur << ' ' << hauteur;
  for (const int valeur : {0, 1, 127, 254, 255})
    for (int taille = 1; taille <= 40; ++taille)
      EXPECT_EQ(Rendu(Gris(7, Valeurs(7 * 11, valeur)), taille, 41 - taille),
                Valeurs(static_cast<size_t>(taille * (41 - taille)), valeur))
          << taille;
}

TEST(Redimensionner, ProfondeursEtCouleurs) {
  QImage source(2, 1, QImage::Format_RGB32);
  source.setPixel(0, 0, qRgb(10, 60, 200));
  source.setPixel(1, 0, qRgb(30, 80, 100));
  for (const auto format : {QImage::Format_RGB888, QImage::Format_RGB32, QImage::Format_ARGB32,
                            QImage::Format_Indexed8, QImage::Format_RGBA64}) {
    QImage cible(1, 1, QImage::Format_RGB888);
    Redimensionner(source.convertToFormat(format), cible);
    EXPECT_EQ(cible.pixel(0, 0), qRgb(20, 70, 150)) << format;
    EXPECT_EQ(cible.format(), QImage::Format_RGB888);
  }
  // A transparent pixel gives no colour to its neighbour.
  QImage vitre(2, 1, QImage::Format_ARGB32);
  vitre.setPixel(0, 0, qRgba(200, 200, 200, 255));
  vitre.setPixel(1, 0, qRgba(0, 0, 0, 0));
  QImage cible(1, 1, QImage::Format_ARGB32);
  Redimensionner(vitre, cible);
  EXPECT_EQ(qAlpha(cible.pixel(0, 0)), 128);
  EXPECT_NEAR(qRed(cible.pixel(0, 0)), 200, 2);
}

TEST(Redimensionner, EtirementSansMelangeEtImageVide) {
  EXPECT_EQ(Rendu(Gris(2, {0, 200}), 4, 1, TModeRedimension::Etirement), (Valeurs{0, 0, 200, 200}));
  QImage cible = Gris(1, {9}), vide;
  Redimensionner(QImage(), cible);
  EXPECT_EQ(qRed(cible.pixel(0, 0)), 9);
  Redimensionner(cible, vide);
  EXPECT_TRUE(vide.isNull());
}
