#include "documents/entete_ecole.h"

#include "core/parametres.h"
#include "report/rapport.h"

void AjouterEnteteEcole(TRapport& rapport, const TParametres& parametres) {
  static constexpr struct {
    const char16_t* Variable;
    int Parametre;
  } kVariables[] = {
      {u"EcoleNom", 1},      {u"ImplantationNom", 9}, {u"EcoleAdresse", 2},  {u"EcoleCodePostal", 3},
      {u"EcoleLocalite", 4}, {u"EcoleTelephone", 5},  {u"CompteBanque", 11},
  };
  for (const auto& [variable, parametre] : kVariables)
    rapport.AjouterVariable(variable, parametres.GetParametre(parametre));
}
