#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Fiche fiscale 281.86": the care of a year of income that was paid, a sheet for each pupil and, of parents
/// who live apart, for each who paid. What is missing is told by pupil, and the sheets of the others are
/// made; each gets its number, for good, when the document is made.
TResultat FicheFiscale(const TContexteDocument& contexte, const TDemandeDocument& demande);
