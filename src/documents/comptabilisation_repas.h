#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Comptabilisation des repas et des soupes": how many days of each every pupil had in the period, by
/// class, and the sums of the school. A class stands there once, where its first pupil does.
TResultat ComptabilisationRepas(const TContexteDocument& contexte, const TDemandeDocument& demande);
