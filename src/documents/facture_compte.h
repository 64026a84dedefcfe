#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// The invoice of a running account: the month, and all that was charged and paid since September, with a
/// transfer form for who owes. Where only debtors get one, nobody else does. The payment date is printed
/// when it is given.
TResultat FactureCompteCourant(const TContexteDocument& contexte, const TDemandeDocument& demande);
