#pragma once
#include <functional>

#include "demo/ecole_exemple.h"

/// A transfer by which a family pays what an invoice asks.
struct TVirementExemple {
  int Eleve = 0;
  int Mois = 0;  ///< of the invoice whose communication it bears
  QDate Date;
  Currency Montant;
};

/// What the invoice of a month asks for a pupil, given by index.
using TFacture = std::function<Currency(int eleve, int mois)>;

/// The transfers of the year, by date, each family paying as is its way. The last invoice that is
/// paid is that of May, in June.
std::vector<TVirementExemple> TirerVirements(const TEcoleExemple& ecole, const TFacture& facture);
