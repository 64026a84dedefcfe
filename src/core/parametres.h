#pragma once
#include "core/distributor.h"
#include "core/param.h"

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
  /// Marks the setting modified also when the value is the same.
  void SetParametre(TParam param, const QString& valeur);
  /// Null when there is no row.
  TParametre* FindParametre(TParam param) const;

 protected:
  void DefineQuery() override;
  void LoadItems(TCurseur& ligne) override;
  void StoreRecord(const TParametre& parametre, TLigne& ligne) const override;
};
