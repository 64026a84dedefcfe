#pragma once
#include <memory>
#include <unordered_map>
#include <vector>

#include "core/calendrier_scolaire.h"
#include "services/liste_frais.h"

class TAllFraisEleve;

/// What a free payment is for.
enum class TTypeFamilleFrais : std::uint8_t { General = 0, Frais = 1, Services = 2 };

/// A line of a pupil's ledger: a fee of the catalogue, with what was paid on it, or a free payment.
struct TFraisEleve : TBaseObject {
  int ListeFraisId = 0;  ///< 0 or less: a free payment
  QString Remarque;
  Currency MontantVerse;
  TDateTime DateVersement = 0.0;  ///< 0 when none
  int Mois = 0;                   ///< of a free payment, 1 to 12; 0 when none
  int ExtraitId = 0;              ///< the bank movement that paid it, 0 when none
  TTypeFamilleFrais TypeFamilleFrais = TTypeFamilleFrais::General;
  int GroupeFraisId = 0;  ///< payment group, 0 when none
  bool FlgPart = false;   ///< of the bank movement it has its own amount only, the rest may be others'

  bool EstLibre() const { return ListeFraisId < 1; }
  /// Any amount other than 0 counts as paid.
  bool EstPaye() const { return MontantVerse != Currency(); }
  void MarquePaye() { MontantVerse = MontantFrais(); }
  void MarqueImpaye() { MontantVerse = Currency(); }

  /// The fee in the catalogue; null for a free payment, and when it is not there.
  const TFrais* Frais() const;
  // Of the fee; 0, "" or false without one.
  int MoisFrais() const;
  QString LibelleFrais() const;
  Currency MontantFrais() const;
  bool Previsionnel() const;
  bool NonObligatoire() const;
  bool FraisService() const;

 private:
  friend class TAllFraisEleve;
  const TAllFraisEleve* lignes_ = nullptr;  // none before the line enters a collection
};

/// The lines of one pupil for one school year. Lines of forecast fees are in no total. Months are
/// those of the school year.
class TAllFraisEleve : public TCollection<TFraisEleve> {
  struct TSansLire {};

 public:
  /// `catalogue` may be null: then no line has a fee. It must outlive the collection.
  TAllFraisEleve(TDataModule1& base, int eleve, int annee, const TListeFrais* catalogue);
  /// Not loaded: for `LireEnsemble`.
  TAllFraisEleve(TDataModule1& base, int eleve, int annee, const TListeFrais* catalogue, TSansLire);
  /// The same collections for many pupils, by key, in one reading of the year. Raises EDistributor.
  static std::unordered_map<int, std::unique_ptr<TAllFraisEleve>> LireEnsemble(TDataModule1& base,
                                                                               const std::vector<int>& eleves,
                                                                               int annee,
                                                                               const TListeFrais* catalogue);

  const TListeFrais* Catalogue() const { return catalogue_; }
  /// The first line of that fee, or null.
  TFraisEleve* LigneFrais(int frais) const;
  /// Whether a line has that bank movement.
  bool ExisteExtrait(int extrait) const;
  /// Fills the list with the free payments; how many.
  int PaiementsLibres(std::vector<TFraisEleve*>& liste) const;

  // What is owed: COUT of the fees.
  /// Those that are not services.
  Currency TotalFrais() const;
  /// The same, for the fees whose month contains the period.
  Currency TotalFraisPeriode(const TPeriode& periode) const;
  /// Those without any flag.
  Currency TotalObligatoires() const;
  /// Those whose only flag is "not compulsory".
  Currency TotalNonObligatoires() const;
  /// All those whose month lies in the period, services or not.
  Currency TotalFraisMoisPeriode(const TPeriode& periode) const;
  /// The services among them.
  Currency TotalServicesPeriode(const TPeriode& periode) const;

  // What was paid: MONTANT_VERSE.
  /// Of all lines, fees that are no longer in the catalogue included.
  Currency TotalVerse() const;
  /// Of the lines whose fee's month contains the period and, once more, of those whose own month
  /// does: a line with both counts twice.
  Currency TotalVersePeriode(const TPeriode& periode) const;
  /// The sum of `TotalVersePeriode` over the months of the school year up to the last one that does
  /// not start after the date.
  Currency TotalCumuleVerse(int annee, TDateTime date) const;
  /// Of the lines with no fee at all (key exactly 0) whose own month starts in the period.
  Currency TotalLibresPeriode(const TPeriode& periode, int annee) const;

  // Positive when more was paid than is owed.
  /// `TotalVerse` less `TotalFrais`.
  Currency SoldeFrais() const;
  /// The same of a month (1 to 12, else EConvertError).
  Currency SoldeFraisMois(int mois, int annee) const;

 protected:
  void DefineQuery() override;
  void Indexer(TFraisEleve& frais) override { frais.lignes_ = this; }
  void Desindexer(TFraisEleve& frais) override { frais.lignes_ = nullptr; }

 private:
  /// The sum of COUT of the fees that are no forecast and that the condition holds for.
  template <class Condition>
  Currency TotalDu(Condition condition) const;
  bool MoisContient(int mois, const TPeriode& periode) const;
  bool MoisDans(int mois, const TPeriode& periode) const;

  int eleve_;
  int annee_;
  const TListeFrais* catalogue_;
};
