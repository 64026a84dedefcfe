#include "documents/entete_ecole.h"

#include "core/parametres.h"
#include "report/rapport.h"

void AjouterEnteteEcole(TRapport& rapport, const TParametres& parametres) {
  static constexpr struct {
    const char16_t* Variable;
    TParam Parametre;
  } kVariables[] = {
      {u"EcoleNom", TParam::NomEcole},           {u"ImplantationNom", TParam::NomImplantation},
      {u"EcoleAdresse", TParam::RueEcole},       {u"EcoleCodePostal", TParam::CodePostalEcole},
      {u"EcoleLocalite", TParam::LocaliteEcole}, {u"EcoleTelephone", TParam::TelephoneEcole},
      {u"CompteBanque", TParam::CompteBanque},
  };
  for (const auto& [variable, parametre] : kVariables)
    rapport.AjouterVariable(variable, parametres.GetParametre(parametre));
}
