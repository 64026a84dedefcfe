#include "forms/form.h"

#include <algorithm>

void TForm::Montrer() {
  if (montree_) return;
  FormShow();
  montree_ = true;  // not when FormShow failed
}

void TForm::Cacher() { montree_ = false; }

bool TForm::Fermer() {
  if (!FormCloseQuery()) return false;
  FormClose();
  montree_ = false;
  return true;
}

void TForm::AjouterComposant(TComposant& composant) { composants_.push_back(&composant); }

void TForm::RetirerComposant(TComposant& composant) { std::erase(composants_, &composant); }

bool Diffuser(TCodeMessage code, TForm& form, std::any charge) {
  const TMessage message{code, std::move(charge)};
  bool traite = form.RecevoirMessage(message);
  const std::vector<TComposant*> composants = form.Composants();
  for (TComposant* composant : composants) {
    const auto& presents = form.Composants();
    if (std::ranges::find(presents, composant) == presents.end()) continue;  // a handler removed it
    traite = composant->RecevoirMessage(message) || traite;
  }
  return traite;
}
