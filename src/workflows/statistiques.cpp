#include "workflows/statistiques.h"

#include <array>

#include "application/globals.h"
#include "core/mois.h"
#include "services/frais_eleve.h"
#include "workflows/total_ecole.h"

namespace {

Currency SoldeDuMois(const TEleve& eleve, const TCriteresImpayes& criteres, int mois) {
  return eleve.SoldeCourant(mois, eleve.Eleves->AnneeScolaire, criteres.Services, criteres.Frais);
}

bool ParProvision(const TEleves& eleves) { return eleves.Regles != nullptr && eleves.Regles->ModeProvision; }

Currency SoldeEtendue(const TEleve& eleve, const TCriteresImpayes& criteres) {
  if (criteres.Etendue != TEtendue::Annee && criteres.Mois == 0) return {};
  if (criteres.Etendue == TEtendue::Mois && !ParProvision(*eleve.Eleves))
    return SoldeDuMois(eleve, criteres, criteres.Mois);
  Currency solde = eleve.Solde(criteres.Frais, criteres.Services);
  if (criteres.Etendue != TEtendue::Jusque) return solde;
  for (auto mois = kMoisScolaires.rbegin(); mois != kMoisScolaires.rend() && *mois != criteres.Mois; ++mois)
    solde -= SoldeDuMois(eleve, criteres, *mois);
  return solde;
}

/// Free payments of services of that month.
Currency ServicesVersesEn(const TEleve& eleve, int mois) {
  Currency total;
  for (const TFraisEleve* ligne : eleve.VersementsLibres(TTypeFamilleFrais::Services))
    if (ligne->Mois == mois) total += ligne->MontantVerse;
  return total;
}

Currency PayePourLaGarde(const TEleve& eleve, const TPeriode& periode) {
  Currency total;
  for (int mois = 1; mois <= 12; ++mois)
    if (MoisDebuteDansPeriode(mois, eleve.Eleves->AnneeScolaire, periode.Premier, periode.Dernier))
      total += eleve.PaiementsMois(mois) + ServicesVersesEn(eleve, mois);
  return total;
}

/// Of the pupils of a kind, in the whole year.
int RepasFactures(const TEleves& eleves, TCategorie categorie) {
  const TPeriode annee = BornesAnnee(eleves.AnneeScolaire);
  std::size_t nombre = 0;
  TLignesService lignes;
  for (const TEleve& eleve : eleves) {
    if (eleve.Categorie() != categorie) continue;
    eleve.CoutService(TService::Repas, annee, lignes);
    nombre += lignes.size();
  }
  return static_cast<int>(nombre);
}

}  // namespace

std::vector<TMontantEleve> Impayes(const TEleves& eleves, const TCriteresImpayes& criteres) {
  eleves.LireFrais(eleves.Tous());
  std::vector<TMontantEleve> lignes;
  for (TEleve& eleve : eleves) {
    const Currency solde = SoldeEtendue(eleve, criteres);
    if (solde < Currency()) lignes.push_back({&eleve, solde.Absolu()});
  }
  return lignes;
}

std::vector<TMontantEleve> BalancesPositives(const TEleves& eleves, bool frais, bool services) {
  eleves.LireFrais(eleves.Tous());
  std::vector<TMontantEleve> lignes;
  for (TEleve& eleve : eleves) {
    const Currency solde = eleve.Solde(frais, services);
    if (solde > Currency()) lignes.push_back({&eleve, solde});
  }
  return lignes;
}

std::vector<TEleve*> ElevesPresents(const TEleves& eleves, const TPeriode& periode) {
  std::vector<TEleve*> presents;
  for (TEleve& eleve : eleves)
    if (!eleves.Presences->PresencesEleve(eleve.Id, periode).empty()) presents.push_back(&eleve);
  return presents;
}

TReleveAnnuel ReleveAnnuel() {
  TReleveAnnuel releve;
  for (const int mois : kMoisScolaires) {
    const Currency montant = CalculTotalEcole(mois);
    releve.Mois.emplace_back(mois, montant);
    releve.Total += montant;
  }
  releve.RepasMaternelle = RepasFactures(*Globals.Eleves, TCategorie::Maternelle);
  releve.RepasPrimaire = RepasFactures(*Globals.Eleves, TCategorie::Primaire);
  return releve;
}

std::vector<TPaiementsEleve> PaiementsDuGroupe(const TEleves& eleves, TGroupeFrais& groupe) {
  std::vector<TPaiementsEleve> lignes;
  TGroupeFrais::TDetails details;
  for (TEleve& eleve : eleves)
    if (groupe.DetailsPaiement(details, eleve.Id) > 0)
      lignes.push_back({&eleve, groupe.TotalPaiement(eleve.Id), details});
  return lignes;
}

std::vector<TLigneFiscale> StatistiquesFiscales(const TEleves& eleves, const TPeriode& periode) {
  eleves.LireFrais(eleves.Tous());
  std::vector<TLigneFiscale> lignes;
  for (TEleve& eleve : eleves) {
    const Currency du = eleve.TotalGarderies(periode);
    const Currency paye = PayePourLaGarde(eleve, periode);
    if (du < paye) lignes.push_back({&eleve, du, paye});
  }
  return lignes;
}

std::vector<TLigneFrais> StatistiqueFrais(const TListeFrais& liste) {
  std::vector<TLigneFrais> lignes;
  for (TFrais& frais : liste) {
    const int eleves = frais.NombreElevesFrais();
    lignes.push_back({&frais, eleves, frais.FlgPrevisionnel ? Currency() : frais.Cout * eleves});
  }
  return lignes;
}
