#pragma once
#include <algorithm>
#include <vector>

#include "core/dates.h"

/// The dates that a walk over a pupil's records has already charged.
class TDatesVues {
 public:
  bool Contient(TDateTime date) const { return std::ranges::find(dates_, date) != dates_.end(); }
  void Ajouter(TDateTime date) { dates_.push_back(date); }

 private:
  std::vector<TDateTime> dates_;
};
