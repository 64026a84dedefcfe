#pragma once
#include <optional>
#include <vector>

#include "core/currency.h"
#include "documents/periode.h"
#include "pupils/service.h"

class TEleve;
struct TFraisEleve;

/// The pupil's fees of the catalogue of the months inside the period, forecasts left out, on which
/// another amount was paid than what they cost.
std::vector<const TFraisEleve*> FraisOuverts(const TEleve& eleve, const TPeriodeDocument& periode);

/// What a pupil still owes for the services of a period: their cost, less that of the months that are
/// settled. The pupil must outlive it.
class TServicesOuverts {
 public:
  TServicesOuverts(const TEleve& eleve, const TPeriodeDocument& periode);

  /// The amount of a service; none when there is no line for it, because nothing is owed or because a
  /// third child has it for nothing. `auCent` first cuts the cost of the period to whole cents, for the
  /// morning, the evening and Wednesday.
  std::optional<Currency> Montant(TService service, bool auCent) const;

 private:
  struct TMoisRegle {
    TPeriode Bornes;
    Currency Paiement;
  };

  const TEleve& eleve_;
  TPeriode periode_;
  std::vector<TMoisRegle> moisRegles_;
};
