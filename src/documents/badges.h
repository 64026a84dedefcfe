#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Badge d'identification": a card for each pupil with the register number as a bar code, on a page of
/// its own size. Those who were struck off are left out, unless there is only the one; a list without
/// pupils gives a report without pages.
TResultat Badge(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// The same card on a sheet for the card printer.
TResultat Xerox(const TContexteDocument& contexte, const TDemandeDocument& demande);
