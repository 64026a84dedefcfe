#pragma once
#include "demo/ecole_exemple.h"
#include "demo/tirage.h"

/// Fills the families and their children, class by class, until every seat is taken.
void PeuplerEcole(TEcoleExemple& ecole, TTirage& tirage, bool petite);
/// Fills the staff.
void EngagerProfesseurs(TEcoleExemple& ecole, TTirage& tirage, bool petite);
