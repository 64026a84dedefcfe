#include "demo/habitudes.h"

#include <algorithm>

namespace {

constexpr std::array<std::size_t, 4> kJoursComplets{0, 1, 3, 4};

/// Which days of a service a family takes: none, some or all of them.
enum class TRecours { Aucun, Certains, Tous };

TRecours TirerRecours(TTirage& tirage, int aucun, int certains) {
  return static_cast<TRecours>(tirage.Poids({aucun, certains, 1000 - aucun - certains}));
}

/// Thousandths for each full day: `jamais` on the days that are not taken.
void RemplirJours(std::array<int, 5>& jours, TRecours recours, int jamais, TTirage& tirage) {
  for (const std::size_t jour : kJoursComplets) {
    const bool pris = recours == TRecours::Tous || (recours == TRecours::Certains && tirage.Chance(600));
    jours[jour] = pris ? 920 : jamais;
  }
}

void HabituerFamille(THabitudesFamille& habitudes, TTirage& tirage) {
  const TRecours matin = TirerRecours(tirage, 620, 230);
  RemplirJours(habitudes.Matin, matin, 12, tirage);
  habitudes.Matin[2] = matin == TRecours::Tous ? 900 : habitudes.Matin[1];
  habitudes.MinuteMatin = 60 * 7 + tirage.Autour(32, 10);

  const TRecours soir = TirerRecours(tirage, 540, 290);
  RemplirJours(habitudes.Soir, soir, 25, tirage);
  const bool mercredi = tirage.Chance(soir == TRecours::Aucun ? 40 : 300);
  habitudes.Soir[2] = mercredi ? 880 : 10;
  habitudes.MinuteSoir = 60 * 16 + tirage.Autour(52, 23);
  habitudes.MinuteMercredi = 60 * 15 + tirage.Autour(10, 75);
}

/// A meal on the given days, else sandwiches, with soup for those who like it.
void HabituerMidi(TEleveExemple& eleve, TTirage& tirage) {
  if (tirage.Chance(90)) return;  // the array is made of TMidi::Rentre
  const bool soupe = tirage.Chance(170);
  const int joursRepas = tirage.Choix(std::array{0, 0, 0, 0, 1, 1, 2, 2, 4});
  std::vector<std::size_t> jours(kJoursComplets.begin(), kJoursComplets.end());
  tirage.Melanger(jours);
  for (std::size_t i = 0; i < jours.size(); ++i)
    eleve.Midi[jours[i]] = static_cast<int>(i) < joursRepas ? TMidi::Repas
                           : soupe                          ? TMidi::TartinesEtSoupe
                                                            : TMidi::Tartines;
  const int mercredi = tirage.Entier(1, 1000);
  eleve.Midi[2] = mercredi <= 250 ? TMidi::Repas : mercredi <= 600 ? TMidi::TartinesEtSoupe : TMidi::Tartines;
}

void HabituerEtude(TEleveExemple& eleve, TTirage& tirage) {
  eleve.Etude = eleve.Niveau >= 3 && tirage.Chance(320);
  if (!eleve.Etude) return;
  const bool tous = tirage.Chance(600);
  for (const std::size_t jour : {0U, 1U, 3U}) eleve.JoursEtude[jour] = tous || tirage.Chance(600) ? 930 : 20;
}

}  // namespace

void DonnerHabitudes(TEcoleExemple& ecole, TTirage& tirage) {
  for (TFamilleExemple& famille : ecole.Familles) HabituerFamille(famille.Habitudes, tirage);
  for (TEleveExemple& eleve : ecole.Eleves) {
    HabituerMidi(eleve, tirage);
    HabituerEtude(eleve, tirage);
  }
}
