#pragma once
#include <QDate>
#include <string>

#include "core/conversions.h"

using namespace Qt::StringLiterals;

/// "07:30" or "07:30:15"; "" is 0, no time.
inline TDateTime H(const char* texte) {
  const QString t = QString::fromLatin1(texte);
  return t.isEmpty() ? 0.0 : StrToTime(t);
}
/// "2016-10-03"
inline TDateTime J(const char* texte) { return DateDeQt(QDate::fromString(texte, Qt::ISODate)); }
/// "1.5000", which Google Test can show.
inline std::string Euros(Currency montant) { return FormatQuatreDecimales(montant).toStdString(); }
