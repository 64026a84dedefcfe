#pragma once

class TParametres;
class TRapport;

/// The variables that the header of a parents' document reads: `EcoleNom`, `ImplantationNom`,
/// `EcoleAdresse`, `EcoleCodePostal`, `EcoleLocalite`, `EcoleTelephone` and `CompteBanque`.
void AjouterEnteteEcole(TRapport& rapport, const TParametres& parametres);
