#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

/// "Document de provision de compte": what each pupil's parents are asked to pay in advance, with a
/// transfer form.
TResultat DemandeProvision(const TContexteDocument& contexte, const TDemandeDocument& demande);
