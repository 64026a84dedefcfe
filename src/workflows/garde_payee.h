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
/// on the record or told by its payment, pays the days of that month in their order. What is left of it and
/// all other money pays what is left, the oldest day first. A day is paid whole or not at all. A debt of the
/// year before is paid before anything that no month tells; general payments and balances that were carried
/// then pay the fees, before any care.
class TCompteGarde {
 public:
  TCompteGarde(const TEleve& eleve, const TReglesFiscales& regles, const TPayeurs& payeurs);

  /// What was paid in this account of the debt of the year before.
  const TParPayeur& DettePayee() const { return dettePayee_; }
  /// What the year after paid of the debt that this account handed over: an older debt first, then its fees.
  void Recevoir(TParPayeur dettePayee);
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
  void PayerMois();
  void PayerDettes();
  void PayerFrais(TParPayeur& caisse);
  void PayerDette(TParPayeur& caisse);
  int Payeur(const TFraisEleve& ligne) const;
  static bool Payer(TDu& du, TParPayeur& caisse);

  const TEleve& eleve_;
  const TReglesFiscales& regles_;
  const TPayeurs& payeurs_;
  const int payeur_;  // of what no movement tells
  std::vector<TDu> dus_;
  std::array<TParPayeur, 13> recettes_{};  // by month, at 0 of none
  TParPayeur general_{};                   // may pay fees
  TParPayeur frais_{};                     // was paid on fees
  Currency fraisImpayes_;
  bool reporte_ = false;  // the balance of the year left for another
  Currency detteCedee_;   // the part of it that was owed: money that this account never had
  Currency detteRecue_;   // of the year before, not yet paid
  TParPayeur dettePayee_{};
};
