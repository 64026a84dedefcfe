#pragma once
#include <span>
#include <unordered_map>
#include <vector>

#include "attendance/presence.h"

/// The presences of each pupil by date. Like TIndex, it remembers under what it holds a record,
/// because an owner changes fields first and tells the collection afterwards.
class TIndexPresences {
 public:
  struct TEntree {
    TDateTime Date;
    TPresence* Presence;
  };

  /// Enters the record, or moves it when its pupil or its date has changed.
  void Suivre(TPresence& presence);
  void Oublier(TPresence& presence);
  /// From one date to another, both included; of one date, in the order of the collection. Valid
  /// until the next change.
  std::span<const TEntree> Periode(int eleve, TDateTime premier, TDateTime dernier) const;
  void Reserver(std::size_t n) { places_.resize(n); }

 private:
  struct TPlace {
    TDateTime date = 0.0;
    int eleve = 0;
    bool tenu = false;
  };
  std::unordered_map<int, std::vector<TEntree>> parEleve_;
  std::vector<TPlace> places_;  // by rank
};
