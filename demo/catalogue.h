#pragma once
#include "demo/ecole_exemple.h"
#include "demo/tirage.h"

/// Sites, parameters, tariffs, activities and payment groups: the same whatever the seed.
void RemplirCatalogue(TEcoleExemple& ecole);
/// The fees of the year and who owes them.
void AttribuerFrais(TEcoleExemple& ecole, TTirage& tirage);
/// Activities followed, payments at the office, settled months and month markers.
void RemplirComptes(TEcoleExemple& ecole, TTirage& tirage);
