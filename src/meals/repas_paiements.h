#pragma once
#include "core/calendrier_scolaire.h"
#include "core/distributor.h"
#include "core/index.h"
#include "meals/comptage.h"
#include "meals/eleve_jour.h"

/// How money came to a meal account. The numbers are stored.
enum class TPaiementRepas : int { Liquide = 0, Virement = 1, EnLigne = 2, Bancontact = 3, Borne = 4 };

/// Its text; "" for an unknown number.
QString Texte(TPaiementRepas type);

/// Money put on a pupil's meal account.
struct TRepasPaiement : TBaseObject {
  int EleveId = 0;
  Currency Montant;
  TPaiementRepas TypePaiement{};
  TDateTime DatePaiement = 0.0;
  QString Remarque;
  int ExtraitId = 0;    ///< the bank movement, 0 when none
  int PersonnelId = 0;  ///< the member of the staff, 0 when none
};

/// What a cash payment was made of.
struct TDetailPaiementLiquide : TBaseObject {
  int RepasPaiementId = 0;
  TComptage Comptage{};
};

/// The details of all cash payments.
class TDetailPaiementsLiquides : public TCollection<TDetailPaiementLiquide> {
 public:
  explicit TDetailPaiementsLiquides(TDataModule1& base);
  /// The first of that payment, or null.
  TDetailPaiementLiquide* DuPaiement(int paiement) const { return parPaiement_.Premier(paiement); }

 protected:
  void DefineQuery() override;
  void Indexer(TDetailPaiementLiquide& d) override { parPaiement_.Suivre(d, d.RepasPaiementId); }
  void Desindexer(TDetailPaiementLiquide& d) override { parPaiement_.Oublier(d); }

 private:
  TIndex<int, TDetailPaiementLiquide> parPaiement_;
};

/// The payments to the meal accounts around a period, 500 days more on each side, and their cash details. A
/// day outside is read when it is asked for.
class TRepasPaiements : public TCollection<TRepasPaiement> {
 public:
  TRepasPaiements(TDataModule1& base, const TPeriode& periode);

  /// The pupil's first payment of that day and kind, or null. Raises EDistributor.
  TRepasPaiement* PaiementDu(int eleve, TDateTime jour, TPaiementRepas type);
  /// The sum of the pupil's payments of a period, of whatever kind, as far as they are read.
  Currency Recu(int eleve, const TPeriode& periode) const;
  /// The same of a day, whichever it is. Raises EDistributor.
  Currency RecuLe(int eleve, TDateTime jour);
  /// The cash detail of a payment, or null.
  TDetailPaiementLiquide* Detail(const TRepasPaiement& paiement) const {
    return details_.DuPaiement(paiement.Id);
  }
  /// Another workstation has counted cash for the pupil on that day since the payments were read. Raises
  /// Exception.
  bool EstDepasse(int eleve, TDateTime jour);
  /// Cash counted for a pupil on a day: it takes the place of what was counted before on that day.
  /// Saves; raises EDistributor.
  void Encaisser(int eleve, TDateTime jour, const TComptage& comptage);

 protected:
  void DefineQuery() override;
  void Indexer(TRepasPaiement& p) override;
  void Desindexer(TRepasPaiement& p) override;

 private:
  void Lire(const TPeriode& periode);
  void LireJour(TDateTime jour);

  TPeriode periode_;  // what Charger reads
  std::vector<TPeriode> lues_;
  TDetailPaiementsLiquides details_;
  TIndex<TEleveJour, TRepasPaiement> parEleveJour_;
  TIndex<int, TRepasPaiement> parEleve_;
};
