#pragma once
#include <array>
#include <map>
#include <vector>

#include "core/distributor.h"
#include "services/types_tarif.h"

/// A window of a service, how a scan in it is read, and what it costs.
struct TTarifGarderie : TBaseObject {
  TTypeFamille TypeFamille = TTypeFamille::Indefini;
  TTypeJour TypeJour = TTypeJour::Aucun;
  TTypeForfait TypeForfait = TTypeForfait::Aucun;
  TTypeScan TypeScan = TTypeScan::Aucun;
  TDateTime HeureDebutScan = 0.0;
  TDateTime HeureFinScan = 0.0;
  Currency Cout;          ///< of one unit
  Currency Cout2eEnfant;  ///< of one unit, for a second child
};

/// What the tariff table makes of a presence.
struct TClassement {
  TTypeFamille Famille = TTypeFamille::Indefini;  ///< Indefini: no service
  /// Of the row found. An exit that overrules the entry's row leaves Famille at Indefini, but these
  /// two as the entry gave them.
  TTypeScan Scan = TTypeScan::Aucun;
  const TTarifGarderie* Tarif = nullptr;
};

/// All tariff rows, at once the classifier and the price list of presences. A change of a row shows
/// in the next amount: none is kept.
///
/// Times are fractions of a day, 0 being "no scan"; the exit comes before the entry in arguments.
class TTarifsGarderies : public TCollection<TTarifGarderie> {
 public:
  explicit TTarifsGarderies(TDataModule1& base);

  /// The service of a presence, by the rows of the group that hold on that day. The row is that of
  /// the first window to end at or after the exit; without an exit, or when no window reaches it,
  /// that of the last window to start at or before the entry.
  TClassement ChercheFamille(TGroupe groupe, TDateTime sortie, TDateTime entree, TDateTime date) const;
  /// Whether `ChercheFamille` gives a family.
  bool TarifExiste(TGroupe groupe, TDateTime sortie, TDateTime entree, TDateTime date) const;

  /// The price of a presence in a family; the type of scan says what stands for a missing time.
  Currency CoutPresence(TTypeFamille famille, TTypeScan scan, bool deuxiemeEnfant, TDateTime sortie,
                        TDateTime entree) const;

  // The hours of exactly that family.
  /// Smallest start; 1.0 when there is no row.
  TDateTime PremiereHeureFamille(TTypeFamille famille) const;
  /// Greatest end; 0 when there is no row.
  TDateTime DerniereHeureFamille(TTypeFamille famille) const;
  /// End of the last row of the collection whose window holds the time, both ends included; 0 when
  /// there is none.
  TDateTime FinCreneau(TTypeFamille famille, TDateTime heure) const;
  /// Smallest start; 99999 when there is no row.
  TDateTime DebutFamille(TTypeFamille famille) const;
  /// Greatest end; 0 when there is no row.
  TDateTime FinFamille(TTypeFamille famille) const { return DerniereHeureFamille(famille); }

 protected:
  void DefineQuery() override;
  void Indexer(TTarifGarderie&) override { classe_ = false; }
  void Desindexer(TTarifGarderie&) override { classe_ = false; }

 private:
  using TLignes = std::vector<const TTarifGarderie*>;
  /// The rows of one group on one weekday by their boundaries, ascending; of rows that share one,
  /// the first of the collection.
  struct TBornes {
    TLignes ParDebut, ParFin;
  };
  struct TFamille {
    TLignes Lignes;    // in the order of the collection
    TLignes ParDebut;  // by start, to the minute
  };

  Currency CoutCreneau(TTypeFamille famille, bool deuxiemeEnfant, TTypeScan scan, TDateTime sortie,
                       TDateTime entree) const;
  /// The look-ups below, made again when the table has changed since.
  void Classer() const;
  const TFamille& Famille(TTypeFamille famille) const;
  const TBornes& Bornes(TGroupe groupe, TDateTime date) const;

  mutable bool classe_ = false;
  mutable std::map<TTypeFamille, TFamille> familles_;
  mutable std::map<TGroupe, std::array<TBornes, 5>> bornes_;  // Monday to Friday
};

/// Absolute difference of two times in minutes, not rounded.
double MinutesEntre(TDateTime a, TDateTime b);
/// The truncated value, plus 1 when there is a fraction.
std::int64_t ArrondiSuperieur(double nombre);
/// The price of the span between two times in the units of the row.
Currency CoutUnites(const TTarifGarderie& tarif, bool deuxiemeEnfant, TDateTime a, TDateTime b);
