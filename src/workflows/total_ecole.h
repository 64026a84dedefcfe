#pragma once
#include "core/currency.h"

class TEleve;
class TPresences;
class TPresencesParticulieres;

/// What a pupil's month comes to in the school's monthly total, for a month 1 to 12 of the school year:
/// counted in whole euros a day, but for the morning and the meals. The table of services of
/// `presences` must have been initialised.
Currency CalculTotalEleve(const TEleve& eleve, int mois, const TPresences& presences,
                          const TPresencesParticulieres& marques);

/// The school's month: the sum over all pupils of the year on display (`Globals`).
Currency CalculTotalEcole(int mois);
