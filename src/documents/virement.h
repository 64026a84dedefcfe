#pragma once
#include <optional>

#include "core/currency.h"

class QString;
class TParametres;
class TRapport;
struct TNoeudRapport;

// The boxes of the credit-transfer form, a character each, named by a stem and a number from 1.

/// The school as beneficiary, as variables of the document: `CB`, `BIC`, `NOM`, `1ADRESSE`, `2ADRESSE`,
/// blank past the end of their text. One that is longer than its boxes is a fault of the document.
void RemplirBeneficiaire(TRapport& rapport, const TParametres& parametres);

/// `COMMUNICATION`, as many as the text is long, and `EURO`: the cents in the last two boxes, blanks
/// before the first digit, all blank without an amount.
void RemplirVirement(TNoeudRapport& noeud, const QString& communication, std::optional<Currency> montant);

/// Whether the amount has room in the boxes `EURO`.
bool TientDansVirement(Currency montant);
