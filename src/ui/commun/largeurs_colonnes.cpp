#include "ui/commun/largeurs_colonnes.h"

#include <algorithm>

std::vector<int> RepartirLargeurs(const std::vector<TBesoinColonne>& colonnes, int souple, int place) {
  std::vector<int> largeurs;
  int reste = place, marge = 0;  // for the flexible column; what the others can spare
  for (std::size_t i = 0; i < colonnes.size(); ++i) {
    const auto& [voulue, moindre] = colonnes[i];
    largeurs.push_back(voulue);
    if (static_cast<int>(i) == souple) continue;
    reste -= voulue;
    marge += voulue - moindre;
  }
  const auto flexible = static_cast<std::size_t>(souple);
  const int manque = std::min(colonnes[flexible].Voulue - reste, marge);
  largeurs[flexible] = std::max(reste + std::max(manque, 0), colonnes[flexible].Moindre);
  if (manque <= 0) return largeurs;
  int aPrendre = manque;
  for (std::size_t i = 0; i < colonnes.size(); ++i) {
    if (i == flexible) continue;
    const int libre = colonnes[i].Voulue - colonnes[i].Moindre;
    if (libre == 0) continue;
    const int pris = aPrendre * libre / marge;  // the last one takes what rounding left
    largeurs[i] -= pris;
    aPrendre -= pris;
    marge -= libre;
  }
  return largeurs;
}
