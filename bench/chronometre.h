#pragma once
#include <algorithm>
#include <chrono>
#include <vector>

/// Seconds that the call takes.
template <class Travail>
double Duree(Travail travail) {
  const auto debut = std::chrono::steady_clock::now();
  travail();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

inline double Mediane(std::vector<double> valeurs) {
  std::sort(valeurs.begin(), valeurs.end());
  return valeurs[valeurs.size() / 2];
}
