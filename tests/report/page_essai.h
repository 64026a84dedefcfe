#pragma once
#include <QTemporaryDir>

#include "report/layout/codes_barres.h"
#include "support/outil.h"

using namespace Qt::StringLiterals;

/// A text at a place, in 11 points unless said.
inline TElementTexte Texte(const QString& texte, float x, float y, const TStyle& style = {}) {
  return {Former(texte, style), x, y};
}

/// One page with an element of each kind.
inline TPagePreparee PageDeTout() {
  TPagePreparee page;
  TElementTexte souligne = Texte(u"souligné"_s, 300, 60, {TFamille::Carlito, 18, true, true});
  souligne.Couleur = 0xFF004488;
  souligne.Souligne = true;
  QImage image(40, 40, QImage::Format_ARGB32);
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 40; ++x) image.setPixel(x, y, qRgba(6 * x, 6 * y, 90, x > y ? 255 : 60));
  const auto partagee = std::make_shared<const QImage>(image);
  page.Elements = {
      Texte(u"École « Brumeval » 12,50 €"_s, 40, 60),
      souligne,
      Texte(u"BE68 5390"_s, 40, 90, {TFamille::LiberationMono, 11}),
      Texte(u"AVATAR To. WAWA, AVATAR To. WAWA"_s, 200, 90, {TFamille::Carlito, 18}),
      TElementTrait{40, 110, 700, 110, 2},
      TElementTrait{40, 120, 700, 120, 1, 0xFF808080, 6},
      TElementCadre{{40, 140, 200, 60}, 2, 0xFF000000, 0xFFDDEEFF, 0},
      TElementCadre{{300, 140, 200, 60}, 0, 0xFF000000, 0xFF204060, 0xFFFFFFFF},
      TElementImage{{40, 220, 120, 120}, partagee},
      TElementImage{{200, 220, 60, 60}, partagee},
      DessinerCode(TTypeCode::Code39, u"123"_s, {300, 420, 200, 50}, 1.28F, TAlignementTexte::Gauche).Barres};
  page.Signets = {{u"P3 A"_s, 0}, {u"HAULOTTE Éloïse"_s, 1}};
  return page;
}
