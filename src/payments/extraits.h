#pragma once
#include <memory>

#include "core/calendrier_scolaire.h"
#include "core/distributor.h"
#include "core/index.h"

/// A movement of the school's bank account.
struct TExtrait : TBaseObject {
  QString DonneurOrdre;            ///< who pays, as the bank writes it
  TDateTime DateVirement = 0.0;    ///< value date
  Currency Montant;                ///< negative when the school pays
  QString Communication;           ///< normalised
  QString NumCptDonneur;           ///< as in the file
  bool FlgIgnore = false;          ///< hidden
  bool DeAnneePrecedente = false;  ///< found again in the list of the year before; never stored
  int TypeResponsable = 0;         ///< 1 or 2: which responsible person paid; 0 when nobody has said
};

/// The five fields by which a movement is recognised. Letters a to z count as capitals.
struct TCleExtrait {
  TCleExtrait() = default;
  explicit TCleExtrait(const TExtrait& extrait);
  bool operator==(const TCleExtrait&) const = default;

  QString DonneurOrdre, Communication, NumCptDonneur;
  TDateTime DateVirement = 0.0;
  Currency Montant;
};

template <>
struct std::hash<TCleExtrait> {
  std::size_t operator()(const TCleExtrait& cle) const noexcept;
};

/// The movements of a school year.
class TExtraits : public TCollection<TExtrait> {
 public:
  TExtraits(TDataModule1& base, int annee);

  /// The movement with that key, or null.
  TExtrait* TrouverParId(int id) const { return parId_.Premier(id); }
  /// The first movement that has the same five fields, or null.
  TExtrait* Identique(const TExtrait& extrait) const { return parCle_.Premier(TCleExtrait(extrait)); }
  /// All of them, in the order of the collection.
  const std::vector<TExtrait*>& Identiques(const TExtrait& extrait) const {
    return parCle_.Tous(TCleExtrait(extrait));
  }
  /// The same in the year before, which is loaded at the first call; the one found is marked so.
  TExtrait* IdentiqueAnneePrecedente(const TExtrait& extrait);
  /// Another workstation has stored some since, or moved some to or from this year.
  bool EstPerime() const;
  /// First and last value date; 0 and 0 without movements.
  TPeriode BornesDates() const;
  /// Gives a stored movement to another school year: its row changes, and it leaves this collection.
  /// Raises Exception, and then it stays.
  void Deplacer(TExtrait& extrait, int annee);

  const int AnneeScolaire;

 protected:
  void DefineQuery() override;
  void Indexer(TExtrait& extrait) override;
  void Desindexer(TExtrait& extrait) override;

 private:
  TIndex<int, TExtrait> parId_;
  TIndex<TCleExtrait, TExtrait> parCle_;
  std::unique_ptr<TExtraits> precedente_;
};
