#include "core/comparaisons.h"

#include <QCollator>

#include "core/formats.h"

QString Simplifier(const QString& texte) {
  QString simple = texte.normalized(QString::NormalizationForm_KD).toLower();
  simple.removeIf([](QChar c) { return c.isMark(); });
  return simple;
}

int ComparerTextes(const QString& a, const QString& b) {
  static const QCollator ordre(LocaleEcole());
  return ordre.compare(a, b);
}
