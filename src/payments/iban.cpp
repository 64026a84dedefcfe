#include "payments/iban.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString IbanSansBlancs(const QString& compte) { return compte.simplified().remove(u' '); }

bool IbanValide(const QString& compte) {
  static const QRegularExpression forme(u"\\A[A-Z]{2}[0-9]{2}[A-Z0-9]{11,30}\\z"_s);
  if (!forme.match(compte).hasMatch()) return false;
  int reste = 0;
  for (const QChar c : QString(compte.sliced(4) % compte.first(4))) {
    const int valeur = c.isDigit() ? c.digitValue() : c.unicode() - u'A' + 10;
    reste = (reste * (valeur < 10 ? 10 : 100) + valeur) % 97;
  }
  return reste == 1;
}
