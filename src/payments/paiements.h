#pragma once
#include "core/distributor.h"
#include "core/index.h"

/// Type of a month of services that is paid, the one type that the screens make; 1, 2, 3, 5 and 6
/// are rows of earlier years. An object that stands for a month not yet paid has type 0.
inline constexpr int kPaiementServices = 7;

/// Money that a pupil paid, for a month.
struct TPaiement : TBaseObject {
  int EleveId = 0;
  int TypePaiement = 0;
  int Mois = 0;   ///< calendar month, 1 to 12
  int Annee = 0;  ///< school year
  Currency Montant;
};

/// The payments of a school year.
class TPaiements : public TCollection<TPaiement> {
 public:
  TPaiements(TDataModule1& base, int annee);

  /// Adds a payment by the rule of its type: kept out by a row of its key, or its amount copied to
  /// that row, or refused. Returns the row that now stands for it, null when it was dropped.
  TPaiement* AjoutePaiement(std::unique_ptr<TPaiement> paiement);
  /// Makes it the payment of the services of its month; null when the month is paid already.
  TPaiement* MarquePaye(std::unique_ptr<TPaiement> paiement);
  /// Takes a month's row out; handed back is an object of type 0 that stands for the unpaid month.
  std::unique_ptr<TPaiement> MarqueImpaye(TPaiement& paiement);

  /// The table says that the services of that month are paid, be it by another workstation since the load.
  bool EstPayeEnBase(int eleveId, int mois) const;

  /// The payment of the services of that month, or null. Of two, which only two workstations can make, the
  /// last one: it is its amount that counts.
  TPaiement* PaiementMois(int eleveId, int mois) const;
  /// Sum of the pupil's payments of services.
  Currency TotalPaiements(int eleveId) const;
  /// Its amount; 0 if there is none.
  Currency MontantMois(int eleveId, int mois) const;

  const int AnneeScolaire;

 protected:
  void DefineQuery() override;
  void Indexer(TPaiement& paiement) override { parEleve_.Suivre(paiement, paiement.EleveId); }
  void Desindexer(TPaiement& paiement) override { parEleve_.Oublier(paiement); }

 private:
  TIndex<int, TPaiement> parEleve_;
};
