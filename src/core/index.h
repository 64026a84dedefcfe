#pragma once
#include <algorithm>
#include <unordered_map>
#include <vector>

#include "core/base_object.h"

/// Look-up of the objects of one collection by a key, in the order of the collection. It remembers
/// the key under which it holds an object, because an owner changes fields first and tells the
/// collection afterwards.
template <class Cle, class T, class Hash = std::hash<Cle>>
class TIndex {
 public:
  /// Enters the object, or moves it when its key has changed.
  void Suivre(T& objet, const Cle& cle) {
    const auto rang = static_cast<std::size_t>(objet.Rang());
    if (rang >= cles_.size()) cles_.resize(rang + 1);
    auto& place = cles_[rang];
    if (place.tenu && place.cle == cle) return;
    if (place.tenu) Oter(objet, place.cle);
    place = {cle, true};
    auto& liste = listes_[cle];
    if (liste.empty() || liste.back()->Rang() < objet.Rang())
      liste.push_back(&objet);
    else
      liste.insert(Borne(liste, objet), &objet);
  }

  void Oublier(T& objet) {
    const auto rang = static_cast<std::size_t>(objet.Rang());
    if (rang >= cles_.size() || !cles_[rang].tenu) return;
    Oter(objet, cles_[rang].cle);
    cles_[rang].tenu = false;
  }

  /// Every object of the key, in the order of the collection.
  const std::vector<T*>& Tous(const Cle& cle) const {
    static const std::vector<T*> aucun;
    const auto i = listes_.find(cle);
    return i == listes_.end() ? aucun : i->second;
  }

  /// The first object of the key, or null.
  T* Premier(const Cle& cle) const {
    const auto& liste = Tous(cle);
    return liste.empty() ? nullptr : liste.front();
  }

 private:
  struct TPlace {
    Cle cle{};
    bool tenu = false;
  };

  static auto Borne(std::vector<T*>& liste, const T& objet) {
    return std::lower_bound(liste.begin(), liste.end(), objet.Rang(),
                            [](const T* a, int rang) { return a->Rang() < rang; });
  }

  void Oter(T& objet, const Cle& cle) {
    const auto i = listes_.find(cle);
    if (i == listes_.end()) return;
    auto& liste = i->second;
    const auto ou = Borne(liste, objet);
    if (ou != liste.end() && *ou == &objet) liste.erase(ou);
    if (liste.empty()) listes_.erase(i);
  }

  std::unordered_map<Cle, std::vector<T*>, Hash> listes_;
  std::vector<TPlace> cles_;  // by rank
};
