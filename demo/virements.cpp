#include "demo/virements.h"

#include <algorithm>

#include "demo/calendrier.h"
#include "demo/tirage.h"

namespace {

/// Invoices go out in the first days of the following month.
QDate DateFacture(int mois) {
  return QDate(mois < 9 ? kAnneeExemple + 1 : kAnneeExemple, mois, 5).addMonths(1);
}

Currency Partie(Currency montant, int pourCent) {
  return Currency::Brut(montant.EnBrut() / 10000 * pourCent * 100);
}

/// A tenth of the year's invoices, rounded up to five euros.
Currency MontantRond(int eleve, const TFacture& facture) {
  std::int64_t total = 0;
  for (const int mois : kMoisScolaires) total += facture(eleve, mois).EnBrut();
  return Currency::Euros((total / 500000 + 1) * 5);
}

class TPayements {
 public:
  TPayements(const TEcoleExemple& ecole, const TFacture& facture)
      : ecole_(ecole), facture_(facture), tirage_(ecole.Graine, 6) {}

  void Payer(int eleve) {
    const auto& fiche = ecole_.Eleves[static_cast<std::size_t>(eleve)];
    const TPayeur payeur = ecole_.Familles[static_cast<std::size_t>(fiche.Famille)].Payeur;
    const Currency rond = payeur == TPayeur::Arrondi ? MontantRond(eleve, facture_) : Currency();
    Currency enAttente;
    for (std::size_t m = 0; m + 1 < kMoisScolaires.size(); ++m) {
      const int mois = kMoisScolaires[m];
      const Currency du = facture_(eleve, mois);
      switch (payeur) {
        case TPayeur::Ponctuel:
          Verser(eleve, mois, du, 4, 17);
          break;
        case TPayeur::Arrondi:
          Verser(eleve, mois, rond, -4, 0);
          break;
        case TPayeur::Tardif:
          enAttente += du;
          if (m % 2 == 0) break;
          Verser(eleve, mois, enAttente, 12, 25);
          enAttente = Currency();
          break;
        case TPayeur::Negligent:
          if (tirage_.Chance(450)) Verser(eleve, mois, Partie(du, 10 * tirage_.Entier(4, 10)), 15, 25);
          break;
        case TPayeur::Caisse:
          break;
      }
    }
  }

  std::vector<TVirementExemple> Prendre() {
    std::stable_sort(virements_.begin(), virements_.end(),
                     [](const auto& a, const auto& b) { return a.Date < b.Date; });
    return std::move(virements_);
  }

 private:
  /// Between `premier` and `dernier` days after the invoice.
  void Verser(int eleve, int mois, Currency montant, int premier, int dernier) {
    if (montant <= Currency()) return;
    virements_.push_back({eleve, mois, DateFacture(mois).addDays(tirage_.Entier(premier, dernier)), montant});
  }

  const TEcoleExemple& ecole_;
  const TFacture& facture_;
  TTirage tirage_;
  std::vector<TVirementExemple> virements_;
};

}  // namespace

std::vector<TVirementExemple> TirerVirements(const TEcoleExemple& ecole, const TFacture& facture) {
  TPayements payements(ecole, facture);
  for (std::size_t e = 0; e < ecole.Eleves.size(); ++e) payements.Payer(static_cast<int>(e));
  return payements.Prendre();
}
