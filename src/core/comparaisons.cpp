#include "core/comparaisons.h"

#include <QCollator>
#include <algorithm>

#include "core/formats.h"

QString Simplifier(const QString& texte) {
  QString simple = texte.normalized(QString::NormalizationForm_KD).toLower();
  simple.removeIf([](QChar c) { return c.isMark(); });
  return simple;
}

bool ContientMots(const QString& texte, const QString& cherche) {
  const QString simple = Simplifier(texte);
  const QStringList mots = Simplifier(cherche).simplified().split(u' ', Qt::SkipEmptyParts);
  return std::ranges::all_of(mots, [&](const QString& mot) { return simple.contains(mot); });
}

int ComparerTextes(const QString& a, const QString& b) {
  static const QCollator ordre(LocaleEcole());
  return ordre.compare(a, b);
}
