#pragma once
#include "forms/grille.h"
#include "pupils/eleve.h"
#include "workflows/import_virements.h"

/// Icon and word of each state of a movement, in the order of TEtatMouvement.
std::vector<TEtatGrille> EtatsMouvement();
/// The columns that both lists of movements have.
std::vector<TColonneGrille> ColonnesMouvement();
/// Their cells, up to the pupil.
TCellules CellulesMouvement(const TMouvement& mouvement);
TCellules CellulesMouvement(const TExtrait& extrait);
/// The cells of the pupil and of the class who has a movement, 0 for nobody; a pupil who is not in the year
/// on display is told as such.
void AjouterEleve(TCellules& cellules, int eleveId);
