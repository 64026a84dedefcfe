#include "core/comparaisons.h"

#include <QCollator>

#include "core/formats.h"

int ComparerTextes(const QString& a, const QString& b) {
  static const QCollator ordre(LocaleEcole());
  return ordre.compare(a, b);
}
