#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"

struct TChoixDocument;

/// The years of income whose sheets can be made, the latest first, and the usual one among them. Raises
/// Exception.
std::vector<int> AnneesRevenus(const TContexteDocument& contexte);
int AnneeRevenusUsuelle(const TContexteDocument& contexte);
/// Who gets a sheet by that choice beside those who are chosen, or who does not, in sentences: classes, and
/// the whole school, hold the children who are in the other school year only. Raises Exception.
QString PorteeFiches(const TContexteDocument& contexte, const TChoixDocument& choix);

/// "Fiche fiscale 281.86": the care of a year of income that was paid, a sheet for each pupil, whichever
/// school year is on display, and, of parents who live apart, for each who paid. What is missing is told by
/// pupil, and the sheets of the others are made; each gets its number, for good, when the document is made.
TResultat FicheFiscale(const TContexteDocument& contexte, const TDemandeDocument& demande);
