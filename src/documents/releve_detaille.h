#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Relevé détaillé des services" as the office asks for it: the days of each service with their hours
/// and amounts, the pupils who were struck off left out. It says when there is nothing to print.
TResultat ReleveDetaille(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// The same after an invoice, silent when there is nothing to print, for those of the invoice's pupils
/// who get a detailed one and, when there were several, for those who were struck off.
TResultat DetailApresFacture(const TContexteDocument& contexte, const TDemandeDocument& demande);
