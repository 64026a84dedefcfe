#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// The invoice by open items: fees and services of the period that are not paid, what is left of the
/// time before, and what was paid meanwhile. A pupil who owes exactly nothing gets none. The payment
/// date is printed when it is given.
TResultat FactureFraisEffectifs(const TContexteDocument& contexte, const TDemandeDocument& demande);
