#pragma once
#include <memory>

#include "attendance/presences.h"
#include "attendance/presences_particulieres.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/activites.h"
#include "services/liste_frais.h"

class TParametres;
class TTarifsGarderies;

/// The collections of one school year, which belong together: the pupils look at all the others.
struct TDonneesAnnee {
  std::unique_ptr<TPresences> Presences;
  std::unique_ptr<TPresencesParticulieres> PresencesParticulieres;
  std::unique_ptr<TPaiements> Paiements;
  std::unique_ptr<TListeFrais> ListeFrais;
  std::unique_ptr<TActivites> Activites;
  std::unique_ptr<TActivitesEleves> ActivitesEleves;
  std::unique_ptr<TEleves> Eleves;  // last: it goes first
};

/// Loads one school year and ties its collections together. `parametres` and `tarifs` must outlive the
/// result: a setting that is written shows in the next amount.
/// Raises EDistributor, or EConvertError for a parameter that is not the number it must be.
std::unique_ptr<TDonneesAnnee> ChargerDonneesAnnee(TDataModule1& base, int annee,
                                                   const TParametres& parametres, TTarifsGarderies& tarifs);
