#pragma once
#include <unordered_map>
#include <unordered_set>

#include "payments/extraits.h"
#include "payments/releve_bancaire.h"

/// What is kept of a bank's statement.
struct TEmpreinteReleve {
  bool operator==(const TEmpreinteReleve&) const = default;

  QString Compte, Numero;  ///< of the school; "" when the bank gives none
  TDateTime DateAncienSolde = 0.0, DateNouveauSolde = 0.0;
  Currency AncienSolde, NouveauSolde;
  bool SoldesConnus = false;  ///< the two above are the bank's
};

/// A statement that has been taken.
struct TReleveConnu : TBaseObject, TEmpreinteReleve {};

/// Every statement that has been taken, of all years.
class TRelevesConnus : public TCollection<TReleveConnu> {
 public:
  explicit TRelevesConnus(TDataModule1& base);

  /// What speaks against taking these statements, each in a sentence: another account than the school's
  /// (not compared when empty), one that was taken before, one that does not follow the one before it.
  QStringList Doutes(const std::vector<TEnteteReleve>& entetes, const QString& compteEcole) const;
  /// The day is one of a statement that has been taken.
  bool Couvre(TDateTime jour) const;
  /// Keeps those that are not kept yet, and saves. Raises EDistributor.
  void Retenir(const std::vector<TEnteteReleve>& entetes);

 protected:
  void DefineQuery() override;

 private:
  std::vector<TEmpreinteReleve> Empreintes() const;
};

/// Movements that may be the same as another one: of its day, amount and account, whatever name and text
/// stand there; but two right communications that differ are two payments.
class TProches {
 public:
  /// Without the movements of those keys.
  void Ajouter(const TExtraits& extraits, const std::unordered_set<int>& sauf);
  bool Contient(const TExtrait& extrait) const;

 private:
  std::unordered_map<TCleExtrait, QStringList> communications_;  // of the movements of a day, amount, account
};
