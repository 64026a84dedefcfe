#pragma once
#include <array>

/// The seven services that a pupil may use, in the order in which the school lists them.
enum class TService { Matin, Midi, Soir, Mercredi, Etude, Repas, Soupe };

inline constexpr std::array kServices{TService::Matin, TService::Midi,  TService::Soir, TService::Mercredi,
                                      TService::Etude, TService::Repas, TService::Soupe};

/// Day-care and study, which a third child has for nothing.
constexpr bool EstAccueil(TService service) {
  return service != TService::Repas && service != TService::Soupe;
}
