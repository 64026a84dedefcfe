#pragma once
#include <vector>

#include "core/distributor.h"

/// One payment made under a group.
struct TGroupeFraisDetailPaiement {
  int EleveId = 0;
  QString Remarque;
  Currency MontantVerse;
};

/// A payment group: the payments of several pupils are gathered under it.
struct TGroupeFrais : TBaseObject {
  QString Libelle;

  using TDetails = std::vector<const TGroupeFraisDetailPaiement*>;
  /// Fills the list with the pupil's payments; how many. The payments of the group are read at the
  /// first call and not again: later ones are not seen. Raises Exception.
  int DetailsPaiement(TDetails& details, int eleve);
  /// The sum of the same payments.
  Currency TotalPaiement(int eleve);

 private:
  friend class TGroupesFrais;
  TDataModule1* base_ = nullptr;  // none before the group enters the collection
  std::vector<TGroupeFraisDetailPaiement> paiements_;
  bool lus_ = false;
};

/// A group under its text.
struct TLibelleGroupe {
  QString Libelle;
  TGroupeFrais* Groupe = nullptr;
};

/// The payment groups, of no school year in particular.
class TGroupesFrais : public TCollection<TGroupeFrais> {
 public:
  explicit TGroupesFrais(TDataModule1& base);

  /// Fills the list with every group, in the order of the collection.
  void LibellesGroupes(std::vector<TLibelleGroupe>& libelles) const;

 protected:
  void DefineQuery() override;
  void Indexer(TGroupeFrais& groupe) override { groupe.base_ = &Base(); }
};
