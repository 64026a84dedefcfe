#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Detail O.N.E. des accueils extrascolaires": the presences after school of the calendar quarter of the
/// first day, whatever the last one, by day, and how many children they are of. Counted in the database,
/// all pupils of the school together; a page a site when parameter 113 says that there are several.
TResultat AccueilOne(const TContexteDocument& contexte, const TDemandeDocument& demande);
