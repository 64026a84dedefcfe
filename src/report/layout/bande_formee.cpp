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

void TBandeFormee::Agrandir(float hauteur) {
  const float plus = hauteur - Hauteur;
  if (plus <= 0) return;
  for (const std::size_t place : AuPied) Deplacer(Elements[place], 0, plus);
  if (Fond) std::get<TElementCadre>(Elements[0]).Place.setHeight(static_cast<qreal>(hauteur));
  Hauteur = hauteur;
}

void TBandeFormee::Joindre(TBandeFormee autre, float x) {
  const std::size_t premier = Elements.size();
  for (TElement& element : autre.Elements) {
    Deplacer(element, x, 0);
    Elements.push_back(std::move(element));
  }
  for (TNumeros& numeros : autre.Numeros) {
    numeros.Element += premier;
    numeros.X += x;
    Numeros.push_back(std::move(numeros));
  }
}
