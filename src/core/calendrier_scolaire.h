#pragma once
#include "core/dates.h"

// A school year is the calendar year of its September. Its months keep their calendar numbers; those
// below 9 lie in the following calendar year, July and August with them.

/// First and last day, both included.
struct TPeriode {
  TDateTime Premier = 0.0;
  TDateTime Dernier = 0.0;
  bool operator==(const TPeriode&) const = default;
};

/// 1 September of `annee` to 30 June of the next.
TPeriode BornesAnnee(int annee);
/// The whole month of the school year. Raises EConvertError unless `mois` is 1 to 12.
TPeriode BornesMois(int mois, int annee);
/// Whether `du` and `au` are exactly the bounds of the school year, times of day included.
bool EstAnneeComplete(int annee, TDateTime du, TDateTime au);
/// The month of the school year whose bounds `du` and `au` are exactly; 0 if none.
int MoisExact(int annee, TDateTime du, TDateTime au);
/// Whether the whole month lies inside the period; false for a month of 0 or less.
bool MoisDansPeriode(int mois, int annee, TDateTime du, TDateTime au);
/// Whether the first day of the month lies inside the period; false for a month of 0 or less.
bool MoisDebuteDansPeriode(int mois, int annee, TDateTime du, TDateTime au);
/// Calendar quarter 1 to 4; 0 for a number that is no day of the years 1 to 9999.
int Trimestre(TDateTime date);
/// Bounds of the quarter in the calendar year `annee`; 0 and 0 unless `trimestre` is 1 to 4.
TPeriode BornesTrimestre(int trimestre, int annee);
