#pragma once
#include <vector>

#include "documents/periode.h"
#include "documents/sections.h"

struct TFraisEleve;

/// The pupil's lines of fees of the catalogue whose month lies inside the period, forecasts too.
std::vector<const TFraisEleve*> FraisDuCatalogue(const TEleve& eleve, const TPeriodeDocument& periode);

/// The fees of a pupil, by whether they are compulsory.
class TSectionsFrais {
 public:
  TSectionsFrais();
  void Ajouter(const TFraisEleve& frais);
  Currency Total() const { return obligatoires_.Total + nonObligatoires_.Total; }
  /// Adds both to the pupil's node; they are not used afterwards.
  void Terminer(TNoeudRapport& eleve);

 private:
  TSection obligatoires_;
  TSection nonObligatoires_;
};
