#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Caisse des repas": what the till of the meal accounts holds of a day, note by note over all pupils.
TResultat CaisseDesRepas(const TContexteDocument& contexte, TDateTime jour);

/// The same as the catalogue asks for it.
TResultat CaisseDesRepas(const TContexteDocument& contexte, const TDemandeDocument& demande);
