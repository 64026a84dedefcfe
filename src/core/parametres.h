#pragma once
#include "core/distributor.h"
#include "core/param.h"
#include "core/regles_ecole.h"

/// One school-wide setting. `Id` is the setting's own number.
struct TParametre : TBaseObject {
  QString Valeur;
};

/// The numbered text settings of the school. Every caller of SetParametre saves right after.
class TParametres : public TCollection<TParametre> {
 public:
  explicit TParametres(TDataModule1& base);

  /// "" for a setting that has no row; nothing is created.
  QString GetParametre(TParam param) const;
  /// The value as a number or an amount, an empty one as the setting's rules say. Raises EConvertError,
  /// which names the setting.
  int Entier(TParam param) const;
  Currency Montant(TParam param) const;
  /// True when the value is exactly "1".
  bool EstVrai(TParam param) const { return GetParametre(param) == u"1"; }
  /// The school's account as it was typed, "" when it has none: that of the transfer form, else the other.
  QString CompteEcole() const;
  /// Marks the setting modified also when the value is the same.
  void SetParametre(TParam param, const QString& valeur);
  /// Null when there is no row.
  TParametre* FindParametre(TParam param) const { return ParCle(static_cast<int>(param)); }

  /// What the settings say of amounts and documents. Always the same object: whoever was given it sees what
  /// has been written since, if it converts; what waits for the year load, from the next `RelireRegles` on.
  const TReglesEcole& Regles() const { return regles_; }
  /// At each year load. Raises EConvertError as `LireReglesEcole`; the rules are then as they were.
  void RelireRegles();

 protected:
  void DefineQuery() override;
  void Indexer(TParametre&) override { SuivreRegles(); }
  void Desindexer(TParametre&) override { SuivreRegles(); }

 private:
  void SuivreRegles();

  TReglesEcole regles_;
  bool charge_ = false;
};
