#pragma once
#include <memory>

#include "application/donnees_annee.h"
#include "core/parametres.h"
#include "payments/extraits.h"
#include "services/groupes_frais.h"
#include "services/tarifs_garderies.h"

/// The one record of what the whole program shares. The year on display is `Eleves->AnneeScolaire`;
/// `AnneeScolaire` is the working year, which changes only at a closing.
struct TGlobals {
  int AnneeScolaire = 0;
  // Of the year on display; null until the first load. Owned by `annee_`.
  TEleves* Eleves = nullptr;
  TPresences* Presences = nullptr;
  TPresencesParticulieres* PresencesParticulieres = nullptr;
  TPaiements* Paiements = nullptr;
  TListeFrais* ListeFrais = nullptr;
  TActivites* Activites = nullptr;
  TActivitesEleves* ActivitesEleves = nullptr;

  // Bank movements, null until they are needed (TControleur) and again at each year load.
  std::unique_ptr<TExtraits> Extraits;            ///< of the year on display
  std::unique_ptr<TExtraits> ExtraitsPrecedents;  ///< of the year before

  std::unique_ptr<TParametres> Parametres;  ///< null until the first connection
  std::unique_ptr<TTarifsGarderies> TarifsGarderies;
  std::unique_ptr<TGroupesFrais> GroupesFrais;

  TEleve* EleveCourant = nullptr;
  TClasse* ClasseCourante = nullptr;  ///< the pupil's class when a pupil is selected

  QString DossierTemporaire;
  bool ModeProfesseur = false;
  bool ModeHorsLigne = false;
  bool ModeTablette = false;
  QString DatePhoto;  ///< stamp of the photos that this workstation has copied

  /// Puts a loaded year on display; null frees the one that is. Nothing is selected afterwards.
  void Montrer(std::unique_ptr<TDonneesAnnee> annee);
  /// Frees every collection, in the order in which the program closes.
  void Liberer();

 private:
  std::unique_ptr<TDonneesAnnee> annee_;
};

extern TGlobals Globals;
