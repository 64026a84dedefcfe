#include "meals/commande.h"

#include <initializer_list>
#include <iterator>

namespace {

constexpr std::uint8_t Bits(std::initializer_list<int> colonnes) {
  unsigned bits = 0;
  for (const int c : colonnes) bits |= 1u << (c - 1);
  return static_cast<std::uint8_t>(bits);
}

constexpr TColonneCommande kColonnes[] = {
    {&TCommande::FlgRepas, Bits({2, 3, 4, 5, 6, 7, 8})},
    {&TCommande::FlgDago, Bits({1, 3})},
    {&TCommande::FlgSandwich, Bits({1, 2})},
    {&TCommande::FlgJambon, Bits({1, 5, 6})},
    {&TCommande::FlgFromage, Bits({1, 4, 6})},
    {&TCommande::FlgJambonFromage, Bits({1, 4, 5})},
    {&TCommande::FlgBeurre, Bits({1, 8})},
    {&TCommande::FlgMayonnaise, Bits({1, 7})},
};

}  // namespace

std::span<const TColonneCommande> ColonnesCommande() { return kColonnes; }

bool TCommande::EstComplete() const {
  const bool pain = FlgDago || FlgSandwich;
  if (pain) return AGarniture();
  return !AGarniture() && !FlgBeurre && !FlgMayonnaise;
}

void Marquer(TCommande& commande, int colonne) {
  const TColonneCommande& marquee = kColonnes[colonne - 1];
  for (unsigned c = 0; c < std::size(kColonnes); ++c)
    if ((marquee.Efface >> c) & 1u) commande.*kColonnes[c].Flag = false;
  commande.*marquee.Flag = true;
}
