#pragma once
#include "core/calendrier_scolaire.h"
#include "core/distributor.h"
#include "core/index.h"
#include "meals/commande.h"
#include "meals/eleve_jour.h"

/// The orders of the whole school. Days are read when they are first asked for: a school has years of them,
/// and a screen shows one.
class TCommandes : public TCollection<TCommande> {
 public:
  explicit TCommandes(TDataModule1& base);

  /// The order of a pupil and a day, or null. Raises EDistributor.
  TCommande* Trouver(int eleve, TDateTime jour);
  /// Those of a period, in the order in which they were read.
  std::vector<TCommande*> Periode(const TPeriode& periode);
  /// Reads a period in one statement; what is known already stays as it is. Raises EDistributor.
  void Lire(const TPeriode& periode);

  /// Stores an order, new or changed. When another workstation has made the row of that pupil and day in
  /// the meantime, that one takes its place and is returned; else null. Raises EDistributor.
  TCommande* Enregistrer(TCommande& commande);

 protected:
  void DefineQuery() override;
  void LoadItems(TCurseur& ligne) override;
  void Indexer(TCommande& c) override { parEleveJour_.Suivre(c, CleEleveJour(c.EleveId, c.DateCommande)); }
  void Desindexer(TCommande& c) override { parEleveJour_.Oublier(c); }

 private:
  bool EstLu(TDateTime jour) const;
  TCommande* RelireAutrePoste(TCommande& commande);

  TPeriode periode_;                // of the reading in hand
  std::vector<TPeriode> periodes_;  // read
  TIndex<TEleveJour, TCommande> parEleveJour_;
};
