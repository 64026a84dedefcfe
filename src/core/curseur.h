#pragma once
#include <memory>
#include <vector>

#include "core/dates.h"
#include "core/valeur.h"

class TDataModule1;

/// A forward-only reading of a select statement, in a short read-only transaction of its own that
/// ends with the object: nothing blocks another workstation, and what others have committed is seen.
/// Columns are named as literals; a name that the statement does not give raises Exception.
class TCurseur {
 public:
  /// Raises Exception with the database's message.
  TCurseur(TDataModule1& base, const QString& sql);
  /// With a value for each "?": for what is read again and again by key. The statement stays prepared, in
  /// a read-only transaction of the connection that keeps no snapshot either.
  TCurseur(TDataModule1& base, const QString& sql, const std::vector<TValeur>& valeurs);
  ~TCurseur();
  TCurseur(const TCurseur&) = delete;
  TCurseur& operator=(const TCurseur&) = delete;

  /// The next row (the first one at the first call); false at the end.
  bool Suivant();

  /// 0 when NULL.
  int Entier(const char* colonne);
  /// True when the value is exactly 1, as a number or as a text.
  bool EstVrai(const char* colonne);
  /// "" when NULL; a fixed-width text comes without its padding.
  QString Texte(const char* colonne);
  /// 0 when NULL.
  Currency Montant(const char* colonne);
  /// Days without fraction; 0 when NULL.
  TDateTime Date(const char* colonne);
  /// Fraction of a day in whole milliseconds; 0 when NULL.
  TDateTime Heure(const char* colonne);
  /// Empty when NULL.
  QByteArray Octets(const char* colonne);

 private:
  struct TInterne;
  std::unique_ptr<TInterne> d_;
};
