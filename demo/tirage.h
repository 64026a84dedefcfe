#pragma once
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// A small generator of random numbers whose results depend on the seed alone, never on the standard
/// library or the machine: everything is computed in whole numbers.
class TTirage {
 public:
  /// `flux` separates what must not disturb each other: one more draw in one flow changes no other.
  TTirage(std::uint64_t graine, std::uint64_t flux);

  /// From `min` to `max`, both included.
  int Entier(int min, int max);
  /// True `pourMille` times out of a thousand.
  bool Chance(int pourMille) { return Entier(1, 1000) <= pourMille; }
  /// Bell-shaped around `moyenne` with the standard deviation `ecart`, never further than 3 of them.
  int Autour(int moyenne, int ecart);
  /// Index drawn by weights, which must not all be 0.
  std::size_t Poids(const std::vector<int>& poids);
  /// One of a list that is not empty.
  template <class Liste>
  const auto& Choix(const Liste& liste) {
    return liste[Rang(liste.size())];
  }
  template <class T>
  void Melanger(std::vector<T>& liste) {
    for (auto i = liste.size(); i > 1; --i) std::swap(liste[i - 1], liste[Rang(i)]);
  }

 private:
  template <class Taille>
  Taille Rang(Taille taille) {
    return static_cast<Taille>(Entier(0, static_cast<int>(taille) - 1));
  }
  std::uint64_t Suivant();

  std::uint64_t etat_;
};
