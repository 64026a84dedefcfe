#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Balance des comptes provisoire": what was charged and paid in the whole school year, and who owes whom.
TResultat BalanceProvisoire(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// "Balance des comptes définitive", which closes the year: the same with the account for the refund.
TResultat BalanceDefinitive(const TContexteDocument& contexte, const TDemandeDocument& demande);
