#include "workflows/prix_repas.h"

#include "application/globals.h"
#include "meals/generation_repas.h"

namespace {

/// None for a kind without a price.
std::optional<TParam> ParametrePrix(TCategorie categorie) {
  switch (categorie) {
    case TCategorie::Maternelle:
      return TParam::RepasMaternel;
    case TCategorie::Primaire:
      return TParam::RepasPrimaire;
    default:
      return std::nullopt;
  }
}

}  // namespace

QString TextePrixSection(TCategorie categorie) {
  const auto parametre = ParametrePrix(categorie);
  return parametre ? Globals.Parametres->GetParametre(*parametre) : QString();
}

Currency PrixSection(TCategorie categorie) {
  const auto parametre = ParametrePrix(categorie);
  return parametre ? Globals.Parametres->Montant(*parametre) : Currency();
}

Currency PrixCommande(const TEleve& eleve, const TGenerationRepas& generation) {
  return PrixSection(generation.PrixParSection ? eleve.Categorie() : TCategorie::Primaire);
}
