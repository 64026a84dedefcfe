#pragma once
#include <QString>
#include <span>

#include "core/param.h"

class TParametres;
class TRapport;

/// A variable of a report and the parameter whose value it is.
struct TVariableParametre {
  const char16_t* Variable;
  TParam Parametre;
};

/// Each variable takes the text of its parameter.
void AjouterParametres(TRapport& rapport, const TParametres& parametres,
                       std::span<const TVariableParametre> variables);

/// The name of the school, with its site between brackets when one is set: "École (Haut)".
QString NomEcoleEtSite(const TParametres& parametres);

/// The variables that the header of a parents' document reads: `EcoleNom`, `ImplantationNom`,
/// `EcoleAdresse`, `EcoleCodePostal`, `EcoleLocalite`, `EcoleTelephone` and `CompteBanque`.
void AjouterEnteteEcole(TRapport& rapport, const TParametres& parametres);
