#pragma once
#include <QStringList>
#include <vector>

#include "core/distributor.h"

/// Whom a fee concerns.
enum class TTypeFrais : std::uint8_t { Ecole = 0, Classes = 1, Eleves = 2 };

// The texts by stored number.
const QStringList& TextesTypeFrais();         ///< "classe"
const QStringList& TextesTypeFraisPluriel();  ///< "classes"
const QStringList& TextesTypeFraisChoix();    ///< "une ou plusieurs classes"

/// A fee of the catalogue. The counts are of the year's lines in the database, other pupils' unsaved
/// ones not included.
struct TFrais : TBaseObject {
  QString Libelle;
  bool FlgRecurent = false;
  Currency Cout;  ///< for one pupil
  int Mois = 0;   ///< of imputation, 1 to 12; 0 when none
  TTypeFrais TypeFrais = TTypeFrais::Ecole;
  bool FlgPrevisionnel = false;  ///< listed, but in no total of a pupil
  bool FlgNonObligatoire = false;
  bool FlgService = false;  ///< counts with the month's services

  /// How many lines of pupils name this fee, asked each time. Raises Exception.
  int NombreElevesFrais() const;
  /// The keys of the pupils who owe it, as first read; read again after `InvalideElevesFrais`.
  const std::vector<int>& ElevesFrais();
  void InvalideElevesFrais() { relireEleves_ = true; }
  /// The cost of all its lines; 0 for a forecast.
  Currency TotalFrais() const;

 private:
  friend class TListeFrais;
  TDataModule1* base_ = nullptr;  // none before the fee enters a list
  std::vector<int> eleves_;
  bool relireEleves_ = true;
};

/// The fee catalogue of a school year.
class TListeFrais : public TCollection<TFrais> {
 public:
  TListeFrais(TDataModule1& base, int annee);

 protected:
  void DefineQuery() override;
  void Indexer(TFrais& frais) override { frais.base_ = &Base(); }

 private:
  int annee_;
};
