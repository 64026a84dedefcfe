#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Accueil extrascolaire": the whole school's day-care of a month (1 to 12 of the year on display) on a
/// grid of pupils and days, a page each for morning, Wednesday and evening. For 0 it says that a month must
/// be chosen.
TResultat AccueilExtraScolaire(const TContexteDocument& contexte, int mois);
