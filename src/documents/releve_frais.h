#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Relevé des frais effectifs": the fees of the period, paid or not, and the full cost of the services,
/// which the school may leave out but for the study.
TResultat ReleveFraisEffectifs(const TContexteDocument& contexte, const TDemandeDocument& demande);

/// "Liste prévisionnelle des frais": the fees of the period that are announced.
TResultat ListePrevisionnelle(const TContexteDocument& contexte, const TDemandeDocument& demande);
