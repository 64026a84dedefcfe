#include "application/globals.h"

TGlobals Globals;

void TGlobals::Montrer(std::unique_ptr<TDonneesAnnee> annee) {
  EleveCourant = nullptr;
  ClasseCourante = nullptr;
  Extraits.reset();
  ExtraitsPrecedents.reset();
  annee_ = std::move(annee);
  const bool la = annee_ != nullptr;
  Eleves = la ? annee_->Eleves.get() : nullptr;
  Presences = la ? annee_->Presences.get() : nullptr;
  PresencesParticulieres = la ? annee_->PresencesParticulieres.get() : nullptr;
  Paiements = la ? annee_->Paiements.get() : nullptr;
  ListeFrais = la ? annee_->ListeFrais.get() : nullptr;
  Activites = la ? annee_->Activites.get() : nullptr;
  ActivitesEleves = la ? annee_->ActivitesEleves.get() : nullptr;
}

void TGlobals::Liberer() {
  Montrer(nullptr);
  Parametres.reset();
  TarifsGarderies.reset();
  GroupesFrais.reset();
}
