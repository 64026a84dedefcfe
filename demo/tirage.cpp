#include "demo/tirage.h"

TTirage::TTirage(std::uint64_t graine, std::uint64_t flux) : etat_(graine) {
  etat_ = Suivant() ^ (flux * 0xd1342543de82ef95U);
}

// SplitMix64: one addition and three mixing steps, good enough for a school.
std::uint64_t TTirage::Suivant() {
  std::uint64_t z = (etat_ += 0x9e3779b97f4a7c15U);
  z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
  z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
  return z ^ (z >> 31U);
}

int TTirage::Entier(int min, int max) {
  const auto etendue = static_cast<std::uint64_t>(static_cast<std::int64_t>(max) - min + 1);
  return static_cast<int>(min + static_cast<std::int64_t>(((Suivant() >> 32U) * etendue) >> 32U));
}

int TTirage::Autour(int moyenne, int ecart) {
  // The sum of three draws of variance ecart²/3.
  return moyenne + Entier(-ecart, ecart) + Entier(-ecart, ecart) + Entier(-ecart, ecart);
}

std::size_t TTirage::Poids(const std::vector<int>& poids) {
  int total = 0;
  for (const int p : poids) total += p;
  int reste = Entier(1, total);
  std::size_t i = 0;
  while ((reste -= poids[i]) > 0) ++i;
  return i;
}
