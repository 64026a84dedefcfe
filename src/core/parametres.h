#pragma once
#include "core/distributor.h"

/// One school-wide setting. `Id` is the setting's own number.
struct TParametre : TBaseObject {
  QString Valeur;
};

/// The numbered text settings of the school. Every caller of SetParametre saves right after.
class TParametres : public TCollection<TParametre> {
 public:
  explicit TParametres(TDataModule1& base);

  /// "" for an identifier that has no row; nothing is created.
  QString GetParametre(int id) const;
  /// The value as a number or an amount. Raises EConvertError, which names the setting.
  int Entier(int id) const;
  Currency Montant(int id) const;
  /// True when the value is exactly "1".
  bool EstVrai(int id) const { return GetParametre(id) == u"1"; }
  /// Marks the setting modified also when the value is the same.
  void SetParametre(int id, const QString& valeur);
  /// Null when there is no row.
  TParametre* FindParametre(int id) const;

 protected:
  void DefineQuery() override;
  void LoadItems(TCurseur& ligne) override;
  void StoreRecord(const TParametre& parametre, TLigne& ligne) const override;
};
