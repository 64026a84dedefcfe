#pragma once
#include <QString>

#include "core/currency.h"

class TParametres;
class TRapport;
struct TNoeudRapport;

/// The code with which a telephone pays the school: EPC069-12, version 002, in UTF-8.
class TQrPaiement {
 public:
  explicit TQrPaiement(const TParametres& parametres);

  /// The text of the code; "" when nothing is to be paid, without structured communication, and when the
  /// account cannot be right.
  QString Texte(const QString& communication, Currency montant) const;
  /// Puts it beside the data of a pupil, as `QrPaiement`.
  void Ajouter(TNoeudRapport& eleve, const QString& communication, Currency montant) const;
  /// Says in the document that the account cannot be right. A school without account is told nothing.
  void Avertir(TRapport& rapport) const;

 private:
  QString nom_;
  QString compte_;  ///< without blanks
  bool valide_;
  bool reference_;  ///< the twelve digits in the line of references
};
