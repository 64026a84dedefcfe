#include "forms/arbre.h"

#include <algorithm>

int TNoeud::Niveau() const { return parent_ ? parent_->Niveau() + 1 : 0; }

TNoeud& TArbre::Ajouter(TNoeud* parent, const QString& texte, TObjetVu objet) {
  auto& freres = parent ? parent->enfants_ : racines_;
  return *freres.emplace_back(std::make_unique<TNoeud>(parent, texte, objet));
}

void TArbre::Supprimer(TNoeud& noeud) {
  const TNoeud* choisi = selection_;
  while (choisi && choisi != &noeud) choisi = choisi->Parent();
  if (choisi) Selectionner(nullptr);
  auto& freres = noeud.parent_ ? noeud.parent_->enfants_ : racines_;
  std::erase_if(freres, [&](const auto& frere) { return frere.get() == &noeud; });
}

void TArbre::Vider() {
  Selectionner(nullptr);
  racines_.clear();
}

TNoeud* TArbre::Premier() const { return racines_.empty() ? nullptr : racines_.front().get(); }

TNoeud* TArbre::Suivant(const TNoeud& noeud) const {
  if (!noeud.enfants_.empty()) return noeud.enfants_.front().get();
  for (const TNoeud* place = &noeud; place; place = place->parent_) {
    const auto& freres = place->parent_ ? place->parent_->enfants_ : racines_;
    const auto ici = std::ranges::find(freres, place, [](const auto& frere) { return frere.get(); });
    if (ici + 1 != freres.end()) return (ici + 1)->get();
  }
  return nullptr;
}

TNoeud* TArbre::Trouver(const std::function<bool(const TNoeud&)>& convient, TNoeud* debut) const {
  TNoeud* noeud = debut;
  while (noeud && !convient(*noeud)) noeud = Suivant(*noeud);
  return noeud;
}

TNoeud* TArbre::TrouverObjet(TObjetVu objet) const {
  if (!objet) return nullptr;
  return Trouver([&](const TNoeud& noeud) { return noeud.Objet == objet; }, Premier());
}

void TArbre::Selectionner(TNoeud* noeud) {
  if (noeud == selection_) return;
  selection_ = noeud;
  SurSelection();
}

void TArbre::Annoncer() const { SurChangement(); }
