#pragma once
#include <array>
#include <unordered_map>
#include <vector>

#include "core/calendrier_scolaire.h"
#include "core/currency.h"

class TEleve;
struct TFraisEleve;
struct TReglesFiscales;

/// Amounts by who paid: at 0 nobody knows, at 1 and 2 the responsible persons.
using TParPayeur = std::array<Currency, 3>;

/// Which responsible person (1 or 2) made a bank movement, by its key.
using TPayeurs = std::unordered_map<int, int>;

/// A day on which a pupil was cared for.
struct TJourGarde {
  TDateTime Date = 0.0;
  Currency Cout;      ///< of the care alone, above 0
  bool Paye = false;  ///< all services of the day are paid
  TParPayeur Recu{};  ///< what was paid of `Cout`
};

/// The services of a pupil's school year day by day, and the money that pays them. Money of a month, marked
/// on the record or told by its payment, pays the days of that month in their order; what is left of it and
/// all other money pays what is left, the oldest day first. A day is paid whole or not at all. General
/// payments and carried balances pay the fees first.
class TCompteGarde {
 public:
  TCompteGarde(const TEleve& eleve, const TReglesFiscales& regles, const TPayeurs& payeurs);

  /// What was owed at the end of the year and carried to the next one: money that this account never had.
  Currency DetteCedee() const { return detteCedee_; }
  /// What this account can pay of such a debt of the year before, which is the first thing it pays.
  Currency PaieDette(Currency dette) const;
  /// Money of no month, of the payer that the attestation is for.
  void Recevoir(Currency montant);
  /// The days of care in their order.
  std::vector<TJourGarde> Solder();

 private:
  /// A day, or what a month owes beside its days.
  struct TDu {
    TDateTime Date = 0.0;
    int Mois = 0;
    Currency Total;
    TJourGarde Jour = {};
  };

  void LireServices();
  void LireSupplements();
  void LireMois();
  void LireLignes();
  void LirePaiement(const TFraisEleve& ligne);
  int Payeur(const TFraisEleve& ligne) const;
  static bool Payer(TDu& du, TParPayeur& caisse);

  const TEleve& eleve_;
  const TReglesFiscales& regles_;
  const TPayeurs& payeurs_;
  const int payeur_;  // of what no movement tells
  std::vector<TDu> dus_;
  std::array<TParPayeur, 13> recettes_{};  // by month, at 0 of none
  TParPayeur general_{};                   // may pay fees
  Currency fraisPayes_;
  Currency detteCedee_;
};
