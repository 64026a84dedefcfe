#pragma once
#include "core/calendrier_scolaire.h"
#include "core/regles_ecole.h"

/// First and last day of the outside activities; 0 and 0 for none. They are of one school year: for
/// others the setting is left empty.
TPeriode PeriodeActivitesExt(TTypeActivitesExt type);
