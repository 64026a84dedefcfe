#pragma once
#include <QString>

#include "core/calendrier_scolaire.h"

/// The period of outside activities that parameter 100 sets. Its dates are of one school year: for
/// others the parameter is left empty.
enum class TTypeActivitesExt : int { Aucune = 0, DepuisSeptembre = 1, DepuisOctobre = 2 };

/// From the text of parameter 100: "1", "2", or anything else for none.
TTypeActivitesExt LireTypeActivitesExt(const QString& parametre);
/// First and last day; 0 and 0 for none.
TPeriode PeriodeActivitesExt(TTypeActivitesExt type);
