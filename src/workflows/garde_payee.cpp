#include "workflows/garde_payee.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "pupils/eleves.h"
#include "services/frais_eleve.h"
#include "workflows/regles_fiscales.h"
#include "workflows/transfert_soldes.h"

namespace {

Currency Somme(const TParPayeur& caisse) { return std::accumulate(caisse.begin(), caisse.end(), Currency()); }

/// What one payer has below 0 is taken from the others, as far as it goes.
void Compenser(TParPayeur& caisse) {
  for (Currency& trou : caisse)
    for (Currency& autre : caisse)
      if (trou < Currency() && autre > Currency()) {
        const Currency pris = std::min(-trou, autre);
        trou += pris;
        autre -= pris;
      }
}

void Verser(const TParPayeur& de, TParPayeur& vers) {
  for (std::size_t i = 0; i < de.size(); ++i) vers[i] += de[i];
}

/// Takes that much, or what there is; gives whose money it was.
TParPayeur Prendre(TParPayeur& caisse, Currency montant) {
  Compenser(caisse);
  TParPayeur pris{};
  for (const std::size_t payeur : {1U, 2U, 0U}) {
    pris[payeur] = std::min(montant, std::max(Currency(), caisse[payeur]));
    caisse[payeur] -= pris[payeur];
    montant -= pris[payeur];
  }
  return pris;
}

bool EstMois(int mois) { return mois >= 1 && mois <= 12; }

}  // namespace

TCompteGarde::TCompteGarde(const TEleve& eleve, const TReglesFiscales& regles, const TPayeurs& payeurs)
    : eleve_(eleve), regles_(regles), payeurs_(payeurs), payeur_(eleve.FlgImpotRespons2 ? 2 : 1) {
  LireServices();
  LireSupplements();
  LireMois();
  LireLignes();
  PayerMois();
  PayerDettes();
}

// A day that comes out below 0, by what an activity takes off, is money for its month.
void TCompteGarde::LireServices() {
  std::map<TDateTime, TDu> jours;
  TLignesService lignes;
  for (const TService service : kServices) {
    if (EstAccueil(service) && eleve_.Flg3eEnfant) continue;
    eleve_.CoutService(service, BornesAnnee(eleve_.Eleves->AnneeScolaire), lignes);
    for (const TLigneService& ligne : lignes) {
      TDu& du = jours[ligne.Presence->DateReleve];
      du.Total += ligne.Montant;
      if (regles_.EstGarde(service)) du.Jour.Cout += ligne.Montant;
    }
  }
  for (auto& [date, du] : jours) {
    du.Date = du.Jour.Date = date;
    du.Mois = DecodeDate(date).Mois;
    if (du.Total > Currency())
      dus_.push_back(du);
    else
      recettes_[static_cast<std::size_t>(du.Mois)][static_cast<std::size_t>(payeur_)] -= du.Total;
  }
}

/// Fees that count with the services of their month come after its days.
void TCompteGarde::LireSupplements() {
  const TAllFraisEleve* lignes = eleve_.GetAllFrais();
  if (lignes == nullptr) return;
  for (const TFraisEleve& ligne : *lignes) {
    const Currency du = ligne.MontantFrais() - ligne.MontantVerse;
    if (!ligne.FraisService() || ligne.Previsionnel() || !EstMois(ligne.MoisFrais()) || du <= Currency())
      continue;
    const TDateTime fin = BornesMois(ligne.MoisFrais(), eleve_.Eleves->AnneeScolaire).Dernier;
    dus_.push_back({fin, ligne.MoisFrais(), du});
  }
  std::ranges::stable_sort(dus_, {}, &TDu::Date);
}

// In provision mode a month that is marked moves no balance.
void TCompteGarde::LireMois() {
  if (eleve_.Eleves->Regles != nullptr && eleve_.Eleves->Regles->ModeProvision) return;
  for (int mois = 1; mois <= 12; ++mois)
    recettes_[static_cast<std::size_t>(mois)][static_cast<std::size_t>(payeur_)] +=
        eleve_.PaiementsMois(mois);
}

void TCompteGarde::LireLignes() {
  const TAllFraisEleve* lignes = eleve_.GetAllFrais();
  if (lignes == nullptr) return;
  const bool provision = eleve_.Eleves->Regles != nullptr && eleve_.Eleves->Regles->ModeProvision;
  for (const TFraisEleve& ligne : *lignes) {
    if (ligne.EstLibre())
      LirePaiement(ligne);
    else if (!provision && !ligne.Previsionnel())
      frais_[static_cast<std::size_t>(Payeur(ligne))] +=
          ligne.FraisService() ? std::max(Currency(), ligne.MontantVerse - ligne.MontantFrais())
                               : ligne.MontantVerse;
  }
  fraisImpayes_ = std::max(Currency(), lignes->TotalFrais());
  // Reductions above the fees are the debtor's money.
  frais_[static_cast<std::size_t>(payeur_)] += fraisImpayes_ - lignes->TotalFrais();
}

void TCompteGarde::LirePaiement(const TFraisEleve& ligne) {
  const TReport report = ReportDe(ligne);
  const auto payeur = static_cast<std::size_t>(Payeur(ligne));
  reporte_ = reporte_ || report == TReport::Parti || report == TReport::DetteParti;
  if (report == TReport::DetteParti)
    detteCedee_ += ligne.MontantVerse;
  else if (report == TReport::Arrive && ligne.MontantVerse < Currency())
    detteRecue_ -= ligne.MontantVerse;
  else if (report != TReport::Aucun || ligne.TypeFamilleFrais == TTypeFamilleFrais::General)
    general_[payeur] += ligne.MontantVerse;
  else if (ligne.TypeFamilleFrais == TTypeFamilleFrais::Services)
    recettes_[EstMois(ligne.Mois) ? static_cast<std::size_t>(ligne.Mois) : 0][payeur] += ligne.MontantVerse;
  else
    frais_[payeur] += ligne.MontantVerse;
}

int TCompteGarde::Payeur(const TFraisEleve& ligne) const {
  if (!eleve_.FlgParentSepare || ligne.ExtraitId < 1) return payeur_;
  const auto connu = payeurs_.find(ligne.ExtraitId);
  return connu == payeurs_.end() ? 0 : connu->second;
}

void TCompteGarde::PayerMois() {
  for (std::size_t mois = 1; mois < recettes_.size(); ++mois) {
    Compenser(recettes_[mois]);
    for (TDu& du : dus_)
      if (du.Mois == static_cast<int>(mois) && !Payer(du, recettes_[mois])) break;
    Verser(recettes_[mois], recettes_[0]);
  }
}

// What was paid too much on fees joins the services in a balance that was carried, and where nothing was left
// to carry. A family that owes leaves it on the fees; what was given back of them is owed again.
void TCompteGarde::PayerDettes() {
  PayerFrais(frais_);
  const Currency surplus = Somme(frais_);
  if (surplus < Currency()) fraisImpayes_ -= surplus;
  if (surplus > Currency() && (reporte_ || eleve_.Solde(true, true) >= Currency())) Verser(frais_, general_);
  PayerDette(general_);
  PayerFrais(general_);
  Verser(general_, recettes_[0]);
  PayerDette(recettes_[0]);
}

void TCompteGarde::PayerFrais(TParPayeur& caisse) { fraisImpayes_ -= Somme(Prendre(caisse, fraisImpayes_)); }

void TCompteGarde::PayerDette(TParPayeur& caisse) {
  const TParPayeur paye = Prendre(caisse, detteRecue_);
  detteRecue_ -= Somme(paye);
  Verser(paye, dettePayee_);
}

void TCompteGarde::Recevoir(TParPayeur dettePayee) {
  TParPayeur recu = Prendre(dettePayee, detteCedee_);
  PayerDette(recu);
  PayerFrais(recu);
  Verser(recu, recettes_[0]);
}

/// The care of the day is paid before its meals.
bool TCompteGarde::Payer(TDu& du, TParPayeur& caisse) {
  if (Somme(caisse) < du.Total) return false;
  const TParPayeur parts = Prendre(caisse, du.Total);
  Currency garde = du.Jour.Cout;
  for (const std::size_t payeur : {1U, 2U, 0U}) {
    du.Jour.Recu[payeur] = std::min(parts[payeur], garde);
    garde -= du.Jour.Recu[payeur];
  }
  du.Jour.Paye = true;
  return true;
}

std::vector<TJourGarde> TCompteGarde::Solder() {
  for (TDu& du : dus_)
    if (!du.Jour.Paye && !Payer(du, recettes_[0])) break;
  std::vector<TJourGarde> jours;
  for (const TDu& du : dus_)
    if (du.Jour.Cout > Currency()) jours.push_back(du.Jour);
  return jours;
}
