#pragma once
#include "documents/contexte.h"
#include "report/rapport.h"

// What the tax papers share.

/// `NomResponsable`, `PrenomResponsable`, `AdresseResponsable`, `CPResponsable` and `LocaliteResponsable` of
/// the first responsible person, or of the second.
void EcrireResponsable(const TEleve& eleve, bool second, TValeurs& valeurs);

/// Who signs, for which school, and the day: `NomEcoleOfficiel`, `AdresseEcole`, `CPEcole`, `LocaliteEcole`,
/// `NomDirection`, `Titre` and `DateJour`.
void AjouterSignataire(TRapport& rapport, const TContexteDocument& contexte);
