#pragma once
#include "report/template/modele.h"

/// Paper in px: its sides, and the margin all around.
struct TPapierPixels {
  float Largeur, Hauteur, Marge;
};

/// Every page of the template takes that paper. What reaches the right edge of the text follows it, so that
/// a list, and the rules and amounts of the others, fill the width; a narrower paper moves those of a list
/// only.
void MettreSurPapier(TModele& modele, const TPapierPixels& papier);
