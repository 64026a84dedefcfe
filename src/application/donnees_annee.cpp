#include "application/donnees_annee.h"

#include "core/calendrier_scolaire.h"
#include "core/parametres.h"
#include "services/tarifs_garderies.h"

namespace {

struct TPrixRepas {
  TParam parametre;
  std::size_t categorie;
};

constexpr TPrixRepas kPrixRepas[] = {
    {TParam::RepasMaternel, 1}, {TParam::RepasPrimaire, 2}, {TParam::RepasPersonnel, 3}};

void LireParametresPresences(const TParametres& parametres, TPresences& presences) {
  for (const TPrixRepas& prix : kPrixRepas)
    presences.PrixRepas[prix.categorie] = parametres.Montant(prix.parametre);
  presences.ModeDeduction = static_cast<TModeDeduction>(parametres.Entier(TParam::ModeDeduction));
  presences.GarderieUnique = parametres.EstVrai(TParam::GarderieUnique);
}

}  // namespace

std::unique_ptr<TDonneesAnnee> ChargerDonneesAnnee(TDataModule1& base, int annee,
                                                   const TParametres& parametres, TTarifsGarderies& tarifs) {
  auto donnees = std::make_unique<TDonneesAnnee>();
  donnees->Eleves = std::make_unique<TEleves>(base, annee);
  TEleves& eleves = *donnees->Eleves;
  eleves.SynchroniserImplantations();

  donnees->Presences =
      std::make_unique<TPresences>(base, BornesAnnee(annee), parametres.EstVrai(TParam::DeductionEtude));
  donnees->PresencesParticulieres = std::make_unique<TPresencesParticulieres>(base, annee);
  donnees->Paiements = std::make_unique<TPaiements>(base, annee);
  donnees->ListeFrais = std::make_unique<TListeFrais>(base, annee);
  eleves.ListeFrais = donnees->ListeFrais.get();
  eleves.Paiements = donnees->Paiements.get();
  donnees->Activites = std::make_unique<TActivites>(base, annee);
  donnees->ActivitesEleves = std::make_unique<TActivitesEleves>(base, *donnees->Activites);

  TPresences& presences = *donnees->Presences;
  presences.Tarifs = &tarifs;
  eleves.ModeProvision = parametres.EstVrai(TParam::ModeProvision);
  LireParametresPresences(parametres, presences);
  eleves.Presences = &presences;
  eleves.ActivitesEleves = donnees->ActivitesEleves.get();
  eleves.TypeActivitesExt = LireTypeActivitesExt(parametres.GetParametre(TParam::ActivitesExt));
  return donnees;
}
