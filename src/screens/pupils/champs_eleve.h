#pragma once
#include "forms/champs.h"
#include "pupils/eleve.h"

/// The fields of a pupil's identity, by the names of their controls. What follows a change is for the screen
/// to add.
TTableChamps<TEleve> ChampsEleve();

/// What is wrong with the value that a field has just written into the pupil; "" when it can be stored.
QString FauteChampEleve(const TEleve& eleve, const TChamp& champ);
