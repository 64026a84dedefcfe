#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Attestation fiscale": what was paid for care in the tax year, a sheet for each pupil, two for parents
/// who live apart. A pupil who gets a sheet gets its number, for good, when the document is made.
TResultat AttestationFiscale(const TContexteDocument& contexte, const TDemandeDocument& demande);
