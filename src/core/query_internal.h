#pragma once
#include <map>
#include <memory>

#include "core/valeur.h"

class TDataModule1;

namespace Firebird {
class TInstruction;
}

/// A statement written by hand outside the collections: user data travel as named parameters, and
/// the statement commits by itself. It stays prepared from one run to the next. Selects are read
/// through TCurseur.
class TQueryInternal {
 public:
  TQueryInternal(TDataModule1& base, const QString& sql);
  ~TQueryInternal();

  /// ":nom" in the text, in any case of its letters; one that is given no value is NULL.
  TQueryInternal& Parametre(const QString& nom, const TValeur& valeur);
  /// Rows written. Raises Exception with the database's message.
  int Executer();

 private:
  TDataModule1& base_;
  QString sql_;         // with "?" for each name
  QStringList places_;  // their names, in order
  std::map<QString, TValeur> valeurs_;
  std::unique_ptr<Firebird::TInstruction> instruction_;
};
