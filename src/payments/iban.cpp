#include "payments/iban.h"

#include <QRegularExpression>

#include "core/modulo97.h"

using namespace Qt::StringLiterals;

QString IbanSansBlancs(const QString& compte) { return compte.simplified().remove(u' '); }

bool IbanValide(const QString& compte) {
  static const QRegularExpression forme(u"\\A[A-Z]{2}[0-9]{2}[A-Z0-9]{11,30}\\z"_s);
  if (!forme.match(compte).hasMatch()) return false;
  QString chiffres;
  for (const QChar c : QString(compte.sliced(4) % compte.first(4)))
    chiffres += c.isDigit() ? QString(c) : QString::number(c.unicode() - u'A' + 10);
  return Modulo97(chiffres) == 1;
}

bool IbanFautif(const QString& saisi) {
  static const QRegularExpression debut(u"\\A[A-Z]{2}[0-9]{2}"_s);
  const QString compte = IbanSansBlancs(saisi.toUpper());
  return debut.match(compte).hasMatch() && !IbanValide(compte);
}
