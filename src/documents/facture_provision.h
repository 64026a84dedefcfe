#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

// The invoices of a school that asks for provisions. Each shows the month, all payments, and the account;
// none is asked for a payment date.

/// Day-care, meals and study, against the free payments of services. A pupil whose account is exactly
/// even gets none.
TResultat FactureProvision(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// The fees, against all that was paid on fee lines. Every pupil gets one.
TResultat FactureActivites(const TContexteDocument& contexte, const TDemandeDocument& demande);
