#include "attendance/index_presences.h"

#include <algorithm>

namespace {

bool Avant(const TIndexPresences::TEntree& a, const TIndexPresences::TEntree& b) {
  return a.Date != b.Date ? a.Date < b.Date : a.Presence->Rang() < b.Presence->Rang();
}

}  // namespace

void TIndexPresences::Suivre(TPresence& presence) {
  const auto rang = static_cast<std::size_t>(presence.Rang());
  if (rang >= places_.size()) places_.resize(rang + 1);
  const TPlace& tenue = places_[rang];
  if (tenue.tenu && tenue.eleve == presence.EleveId && tenue.date == presence.DateReleve) return;
  Oublier(presence);
  places_[rang] = {presence.DateReleve, presence.EleveId, true};
  auto& liste = parEleve_[presence.EleveId];
  const TEntree entree{presence.DateReleve, &presence};
  // A load comes in the order of dates.
  const bool derniere = liste.empty() || Avant(liste.back(), entree);
  liste.insert(derniere ? liste.end() : std::ranges::lower_bound(liste, entree, Avant), entree);
}

void TIndexPresences::Oublier(TPresence& presence) {
  const auto rang = static_cast<std::size_t>(presence.Rang());
  if (rang >= places_.size() || !places_[rang].tenu) return;
  auto& liste = parEleve_[places_[rang].eleve];
  liste.erase(std::ranges::lower_bound(liste, TEntree{places_[rang].date, &presence}, Avant));
  places_[rang].tenu = false;
}

std::span<const TIndexPresences::TEntree> TIndexPresences::Periode(int eleve, TDateTime premier,
                                                                   TDateTime dernier) const {
  const auto i = parEleve_.find(eleve);
  if (i == parEleve_.end() || premier > dernier) return {};
  return {std::ranges::lower_bound(i->second, premier, {}, &TEntree::Date),
          std::ranges::upper_bound(i->second, dernier, {}, &TEntree::Date)};
}
