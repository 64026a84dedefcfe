#include "report/layout/bande_formee.h"

namespace {

struct TDeplacement {
  float DX, DY;

  void operator()(TElementTexte& texte) const {
    texte.X += DX;
    texte.Base += DY;
  }
  void operator()(TElementTrait& trait) const {
    trait.X1 += DX;
    trait.X2 += DX;
    trait.Y1 += DY;
    trait.Y2 += DY;
  }
  void operator()(TElementCadre& cadre) const { cadre.Place.translate(DX, DY); }
  void operator()(TElementImage& image) const { image.Place.translate(DX, DY); }
  void operator()(TElementBarres& barres) const {
    for (QRectF& barre : barres.Barres) barre.translate(DX, DY);
  }
};

}  // namespace

void Deplacer(TElement& element, float dx, float dy) { std::visit(TDeplacement{dx, dy}, element); }
