#pragma once
#include "report/template/modele.h"

/// What no single element of a template shows: names that clash or lead nowhere, options that a band of
/// that kind does not have. Raises Exception with file, line and reason, in French.
void VerifierModele(const TModele& modele);
