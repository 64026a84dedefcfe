#include "application/donnees_annee.h"

#include "core/calendrier_scolaire.h"
#include "core/parametres.h"
#include "services/tarifs_garderies.h"

std::unique_ptr<TDonneesAnnee> ChargerDonneesAnnee(TDataModule1& base, int annee,
                                                   const TParametres& parametres, TTarifsGarderies& tarifs) {
  LireReglesEcole(parametres);  // a setting that is not the number it must be opens no year
  auto donnees = std::make_unique<TDonneesAnnee>();
  donnees->Eleves = std::make_unique<TEleves>(base, annee);
  TEleves& eleves = *donnees->Eleves;
  eleves.SynchroniserImplantations();

  donnees->Presences = std::make_unique<TPresences>(base, BornesAnnee(annee), parametres.Regles());
  donnees->PresencesParticulieres = std::make_unique<TPresencesParticulieres>(base, annee);
  donnees->Paiements = std::make_unique<TPaiements>(base, annee);
  donnees->ListeFrais = std::make_unique<TListeFrais>(base, annee);
  eleves.ListeFrais = donnees->ListeFrais.get();
  eleves.Paiements = donnees->Paiements.get();
  donnees->Activites = std::make_unique<TActivites>(base, annee);
  donnees->ActivitesEleves = std::make_unique<TActivitesEleves>(base, *donnees->Activites);

  TPresences& presences = *donnees->Presences;
  presences.Tarifs = &tarifs;
  eleves.Regles = &parametres.Regles();
  eleves.Presences = &presences;
  eleves.ActivitesEleves = donnees->ActivitesEleves.get();
  return donnees;
}
