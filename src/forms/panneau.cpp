#include "forms/panneau.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

TForm* TPanneau::Ouvrir(std::type_index classe, const TFabrique& creer, std::optional<int> cle,
                        TRemplacement remplacement) {
  if (TForm* presente = Trouver(classe)) {
    Avancer(*presente);
    return presente;
  }
  if (!FaireDeLaPlace(cle)) return nullptr;
  places_.push_back({creer(), remplacement});
  TForm& form = *places_.back().Form;
  form.cle_ = cle;
  try {
    Avancer(form);
  } catch (...) {  // a screen that cannot fill itself is not opened
    places_.pop_back();
    throw;
  }
  return &form;
}

TForm* TPanneau::Courante() const {
  for (auto place = places_.rbegin(); place != places_.rend(); ++place)
    if (place->Form->EstMontree()) return place->Form.get();
  return nullptr;
}

TForm* TPanneau::Trouver(std::type_index classe) const {
  for (const TPlace& place : places_)
    if (place.Form->Classe() == classe) return place.Form.get();
  return nullptr;
}

// A form behind the front one keeps what was typed or read in it.
bool TPanneau::AccepteDeFermer() {
  for (auto place = places_.rbegin(); place != places_.rend(); ++place) {
    TForm& form = *place->Form;
    if (form.AccepteDeFermer()) continue;
    if (&form != Courante()) Avancer(form);
    return false;
  }
  return true;
}

QString TPanneau::EnSuspens() const {
  QStringList restes;
  for (const TPlace& place : places_)
    if (const QString reste = place.Form->EnSuspens(); !reste.isEmpty()) restes += reste;
  return restes.join(u" · "_s);
}

void TPanneau::Vider() {
  while (!places_.empty()) Liberer(*places_.back().Form);
}

void TPanneau::Avancer(TForm& form) {
  const auto place = std::ranges::find_if(places_, [&](const TPlace& p) { return p.Form.get() == &form; });
  std::rotate(place, place + 1, places_.end());
  const bool nouvelle = !form.EstMontree();
  form.Montrer();
  Annoncer(form, TEtapeForm::Affichee);
  if (nouvelle) form.FormAffichee();
}

/// False when a form refused to close.
bool TPanneau::FaireDeLaPlace(std::optional<int> cle) {
  std::vector<TForm*> aFermer, aCacher;
  for (const TPlace& place : places_) {
    TForm& form = *place.Form;
    // No key is no record: two forms without one do not show the same.
    if (cle && form.Cle() == cle) continue;
    if (place.Remplacement == TRemplacement::Libere)
      aFermer.push_back(&form);
    else if (form.EstMontree())
      aCacher.push_back(&form);
  }
  for (TForm* form : aFermer) {
    if (!form->Fermer()) {
      Avancer(*form);
      return false;
    }
    Liberer(*form);
  }
  for (TForm* form : aCacher) {
    form->Cacher();
    Annoncer(*form, TEtapeForm::Cachee);
  }
  return true;
}

void TPanneau::Liberer(TForm& form) {
  Annoncer(form, TEtapeForm::Liberee);
  std::erase_if(places_, [&](const TPlace& place) { return place.Form.get() == &form; });
}

void TPanneau::Annoncer(TForm& form, TEtapeForm etape) const { SurEtape(form, etape); }
