#include "documents/entete_ecole.h"

#include "core/parametres.h"
#include "report/rapport.h"

void AjouterParametres(TRapport& rapport, const TParametres& parametres,
                       std::span<const TVariableParametre> variables) {
  for (const auto& [variable, parametre] : variables)
    rapport.AjouterVariable(variable, parametres.GetParametre(parametre));
}

QString NomEcoleEtSite(const TParametres& parametres) {
  const QString ecole = parametres.GetParametre(TParam::NomEcole);
  const QString site = parametres.GetParametre(TParam::NomImplantation);
  return site.isEmpty() ? ecole : QString(ecole % u" (" % site % u')');
}

void AjouterEnteteEcole(TRapport& rapport, const TParametres& parametres) {
  using enum TParam;
  static constexpr TVariableParametre kVariables[] = {
      {u"EcoleNom", NomEcole},           {u"ImplantationNom", NomImplantation},
      {u"EcoleAdresse", RueEcole},       {u"EcoleCodePostal", CodePostalEcole},
      {u"EcoleLocalite", LocaliteEcole}, {u"EcoleTelephone", TelephoneEcole},
      {u"CompteBanque", CompteBanque},
  };
  AjouterParametres(rapport, parametres, kVariables);
}
