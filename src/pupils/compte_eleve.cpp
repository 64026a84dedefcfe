// What a family owes and has paid. Nothing is kept: each amount is computed from the data as they stand.
#include <algorithm>

#include "attendance/presences.h"
#include "payments/paiements.h"
#include "pupils/eleve.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

Currency TEleve::CoutService(TService service, const TPeriode& periode, TLignesService& lignes) const {
  lignes.clear();
  if (Eleves->Presences == nullptr) return {};
  const TPresences& presences = *Eleves->Presences;
  switch (service) {
    case TService::Matin:
      return presences.CoutGarderieMatin(Id, periode, Flg2eEnfant, lignes);
    case TService::Midi:
      return presences.CoutGarderieMidi(Id, periode, Flg2eEnfant, lignes);
    case TService::Soir:
      return presences.CoutGarderieSoir(Id, periode, Flg2eEnfant, presences.Regles.ActivitesExt,
                                        Eleves->ActivitesEleves, lignes);
    case TService::Mercredi:
      return presences.CoutGarderieMercredi(Id, periode, Flg2eEnfant, presences.Regles.ActivitesExt,
                                            Eleves->ActivitesEleves, lignes);
    case TService::Etude:
      return presences.CoutEtude(Id, periode, Flg2eEnfant, lignes);
    case TService::Repas:
      return presences.CoutRepas(Id, periode, static_cast<int>(Categorie()), lignes);
    case TService::Soupe:
      return presences.CoutSoupe(Id, periode, lignes);
  }
  return {};
}

Currency TEleve::TotalServices(const TPeriode& periode) const {
  Currency total;
  TLignesService lignes;
  for (const TService service : kServices)
    if (!EstAccueil(service) || !Flg3eEnfant) total += CoutService(service, periode, lignes);
  return total;
}

Currency TEleve::TotalGarderies(const TPeriode& periode) const {
  if (Flg3eEnfant) return {};
  Currency total;
  TLignesService lignes;
  for (const TService service : {TService::Matin, TService::Soir, TService::Mercredi, TService::Etude})
    total += CoutService(service, periode, lignes);
  return total;
}

Currency TEleve::CoutServicesPeriode(const TPeriode& periode) const { return TotalServices(periode); }

// A service costs a month what its records of that month cost: none is priced by those of another month.
std::array<Currency, kMoisScolaires.size()> TEleve::CoutsServicesMois() const {
  std::array<TDateTime, kMoisScolaires.size()> fins;
  std::ranges::transform(kMoisScolaires, fins.begin(),
                         [this](int mois) { return BornesMois(mois, Eleves->AnneeScolaire).Dernier; });
  std::array<Currency, kMoisScolaires.size()> couts;
  TLignesService lignes;
  for (const TService service : kServices) {
    if (EstAccueil(service) && Flg3eEnfant) continue;
    CoutService(service, BornesAnnee(Eleves->AnneeScolaire), lignes);
    for (const TLigneService& ligne : lignes) {
      const auto mois = std::ranges::lower_bound(fins, ligne.Presence->DateReleve) - fins.begin();
      couts[static_cast<std::size_t>(mois)] += ligne.Montant;
    }
  }
  return couts;
}

Currency TEleve::FraisServicesPeriode(const TPeriode& periode) const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalServicesPeriode(periode) : Currency();
}

Currency TEleve::FraisPeriode(const TPeriode& periode) const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalFraisMoisPeriode(periode) : Currency();
}

Currency TEleve::FraisHorsServicesPeriode(const TPeriode& periode) const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalFraisPeriode(periode) : Currency();
}

Currency TEleve::VersementsPeriode(const TPeriode& periode) const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalVersePeriode(periode) : Currency();
}

Currency TEleve::CoutMois(int mois, int annee) const {
  const TPeriode bornes = BornesMois(mois, annee);
  return CoutServicesPeriode(bornes) + FraisServicesPeriode(bornes);
}

Currency TEleve::FraisMois(int mois, int annee) const {
  return FraisServicesPeriode(BornesMois(mois, annee));
}

Currency TEleve::PaiementsMois(int mois) const {
  return Eleves->Paiements != nullptr ? Eleves->Paiements->MontantMois(Id, mois) : Currency();
}

Currency TEleve::SoldeMois(int mois, int annee) const { return CoutMois(mois, annee) - PaiementsMois(mois); }

Currency TEleve::CoutAnnee() const {
  const TPeriode bornes = BornesAnnee(Eleves->AnneeScolaire);
  return CoutServicesPeriode(bornes) + FraisServicesPeriode(bornes);
}

Currency TEleve::FraisAnnee() const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalFrais() : Currency();
}

Currency TEleve::FraisPayes() const {
  const TAllFraisEleve* frais = GetAllFrais();
  return frais != nullptr ? frais->TotalVerse() : Currency();
}

Currency TEleve::PaiementsAnnee() const {
  return Eleves->Paiements != nullptr ? Eleves->Paiements->TotalPaiements(Id) : Currency();
}

std::vector<TFraisEleve*> TEleve::VersementsLibres(TTypeFamilleFrais famille) const {
  std::vector<TFraisEleve*> lignes;
  if (const TAllFraisEleve* frais = GetAllFrais()) frais->PaiementsLibres(lignes);
  std::erase_if(lignes, [&](const TFraisEleve* ligne) { return ligne->TypeFamilleFrais != famille; });
  return lignes;
}

namespace {

Currency SommeVersee(const std::vector<TFraisEleve*>& lignes) {
  Currency somme;
  for (const TFraisEleve* ligne : lignes) somme += ligne->MontantVerse;
  return somme;
}

}  // namespace

Currency TEleve::VersementsServices() const {
  return SommeVersee(VersementsLibres(TTypeFamilleFrais::Services));
}

Currency TEleve::VersementsFrais() const { return SommeVersee(VersementsLibres(TTypeFamilleFrais::Frais)); }

Currency TEleve::Solde(bool avecFrais, bool avecServices) const {
  const bool provision = Eleves->Regles != nullptr && Eleves->Regles->ModeProvision;
  Currency solde;
  if (avecFrais) solde += (provision ? VersementsFrais() : FraisPayes()) - FraisAnnee();
  if (avecServices) solde += SoldeServices(CoutServicesPeriode(BornesAnnee(Eleves->AnneeScolaire)));
  return solde;
}

Currency TEleve::SoldeServices(Currency services) const {
  const bool provision = Eleves->Regles != nullptr && Eleves->Regles->ModeProvision;
  const Currency du = services + FraisServicesPeriode(BornesAnnee(Eleves->AnneeScolaire));
  return (provision ? VersementsServices() : PaiementsAnnee()) - du;
}

Currency TEleve::SoldeCourant(int mois, int annee, bool avecServices, bool avecFrais) const {
  Currency solde;
  const TAllFraisEleve* frais = avecFrais ? GetAllFrais() : nullptr;
  if (frais != nullptr) solde += frais->SoldeFraisMois(mois, annee);
  if (avecServices) solde += PaiementsMois(mois) - CoutMois(mois, annee);
  return solde;
}
