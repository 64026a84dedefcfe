#pragma once
#include "core/currency.h"
#include "pupils/service.h"

/// What the tax sheet of a year of income follows.
struct TReglesFiscales {
  int Depuis = 0;                     ///< first year of income
  int Age = 0;                        ///< care counts to the day before this birthday
  int AgeHandicap = 0;                ///< the same of a child with a severe handicap
  Currency MaximumParJour;            ///< what the tax office takes into account of a day; 0 when not known
  bool Garde[kServices.size()] = {};  ///< by service: it is care, and no meal

  bool EstGarde(TService service) const { return Garde[static_cast<int>(service)]; }
};

/// The rules in force in that year; a year that has none of its own has those before it.
const TReglesFiscales& ReglesFiscales(int anneeRevenus);
