#pragma once
#include "core/calendrier_scolaire.h"
#include "documents/contexte.h"
#include "documents/resultat.h"

class TGrille;

/// "Récapitulatif des tickets disponibles par classe", as they stand on that day.
TResultat TicketsParClasse(const TContexteDocument& contexte, const TElevesChoisis& eleves, TDateTime jour);
/// "Récapitulatif des tickets pour les parents": a page a pupil, with what each ticket paid.
TResultat TicketsParents(const TContexteDocument& contexte, const TElevesChoisis& eleves, TDateTime jour);
/// "Tickets vendus": the days of the period, what the bank brought, then cash. A list without days is left
/// out.
TResultat TicketsVendus(const TContexteDocument& contexte, const TPeriode& periode);
/// The pupils of that list, who have less than three tickets on that day.
TResultat ListeSousTrois(const TContexteDocument& contexte, const TGrille& liste, TDateTime jour);

// The same as the catalogue asks for them.
TResultat TicketsParClasse(const TContexteDocument& contexte, const TDemandeDocument& demande);
TResultat TicketsParents(const TContexteDocument& contexte, const TDemandeDocument& demande);
TResultat TicketsVendus(const TContexteDocument& contexte, const TDemandeDocument& demande);
