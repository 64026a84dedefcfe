#pragma once
#include <vector>

#include "report/layout/polices.h"
#include "report/rapport.h"

/// The place of a column of a list on paper.
struct TPlaceColonne {
  float X = 0, Largeur = 0;  ///< px from the left margin
  bool Droite = false;       ///< every cell is a number or an amount
  float Blanc = 8;           ///< of the width, what stays white beside the text
};

/// The type of a list.
struct TStylesColonnes {
  TStyle Titre, Cellule;
};

/// The reference column and the others share `largeur` as they share the screen. The first is at least
/// 200 wide, and each as wide as its longest word, or its longest amount, as long as all of them fit. A
/// column that the screen does not show has no width.
std::vector<TPlaceColonne> PlacesColonnes(const TRapport& rapport, float largeur,
                                          const TStylesColonnes& styles);
