#pragma once
#include <vector>

#include "report/rapport.h"

/// The place of a column of a list on paper.
struct TPlaceColonne {
  float X = 0, Largeur = 0;  ///< px from the left margin
  bool Droite = false;       ///< every cell is a number or an amount
};

/// The reference column and the others share `largeur` as they share the screen, the first never being
/// narrower than 200.
std::vector<TPlaceColonne> PlacesColonnes(const TRapport& rapport, float largeur);
