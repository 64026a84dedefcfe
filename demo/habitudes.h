#pragma once
#include "demo/ecole_exemple.h"
#include "demo/tirage.h"

/// Draws when the families bring and fetch their children and what these eat at noon.
void DonnerHabitudes(TEcoleExemple& ecole, TTirage& tirage);
