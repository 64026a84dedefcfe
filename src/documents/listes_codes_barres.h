#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Liste des élèves": the pupils with their register numbers as bar codes, a page for each class. A
/// class is headed again each time it follows another one, since the order of the pupils is kept. Those
/// who were struck off are left out, unless there is only the one; a list without pupils gives a report
/// without pages.
TResultat ListeCodesBarres(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// The same with larger codes, on a page on its side.
TResultat ListeCodesBarresLarge(const TContexteDocument& contexte, const TDemandeDocument& demande);
