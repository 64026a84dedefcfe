#pragma once
#include <QString>
#include <ostream>

using namespace Qt::StringLiterals;

/// How a failed comparison shows a text. Google Test finds it by its name.
inline void PrintTo(const QString& texte, std::ostream* sortie) {
  *sortie << '"' << texte.toStdString() << '"';
}
