#pragma once
#include "demo/ecole_exemple.h"

/// The school a year later, as it stands at the end of December: who stays has moved up a class, fees and
/// marks are those of the autumn. Nobody is new. Its days are still those of the year before; the files carry
/// them into its own (FichiersPresences). One of the oldest turns twelve in November.
TEcoleExemple AnneeSuivante(const TEcoleExemple& ecole);
