#include "core/chaines.h"

#include <algorithm>

#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

QString Remplacer(const QString& texte, const QString& ancien, const QString& nouveau) {
  if (ancien.isEmpty()) return texte;
  const QString enUnePasse = QString(texte).replace(ancien, nouveau);
  if (nouveau.contains(ancien)) return enUnePasse;

  QString resultat = texte;
  // A shorter text takes at most one replacement a character; only a pair that feeds itself without
  // holding itself ("ab" to "bbaa") needs more.
  qsizetype essais = texte.size();
  qsizetype pos = resultat.indexOf(ancien);
  for (; pos >= 0 && essais > 0; --essais) {
    resultat.replace(pos, ancien.size(), nouveau);
    // Nothing stood before `pos`: a new occurrence ends behind it at the earliest.
    pos = resultat.indexOf(ancien, std::max<qsizetype>(0, pos - ancien.size() + 1));
  }
  return pos < 0 ? resultat : enUnePasse;
}

QString SansRetourLigne(const QString& texte) { return QString(texte).replace(u"\r\n"_s, u" "_s); }

QString MajusculesSansAccents(const QString& texte) {
  QString resultat = texte;
  for (QChar& c : resultat)
    if (c >= u'a' && c <= u'z') c = QChar(c.unicode() - (u'a' - u'A'));
  return resultat;
}

void Decouper(const QString& texte, QChar separateur, QStringList& liste) {
  liste += texte.split(separateur, Qt::SkipEmptyParts);
}

void DecouperStrict(const QString& texte, QChar separateur, QStringList& liste) {
  QStringList champs = texte.split(separateur);
  if (champs.last().isEmpty()) champs.removeLast();
  for (const QString& champ : champs) liste += champ.isEmpty() ? kChampVide.toString() : champ;
}

bool EstEntier(const QString& texte) {
  try {
    StrToInt(texte);
    return true;
  } catch (const EConvertError&) {
    return false;
  }
}

bool EstChiffres(const QString& texte) {
  return !texte.isEmpty() && std::ranges::all_of(texte, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

int IndexChaine(const QStringList& tableau, const QString& valeur) {
  return static_cast<int>(tableau.indexOf(valeur));
}

int IndexEntier(std::span<const int> tableau, int valeur) {
  const auto trouve = std::ranges::find(tableau, valeur);
  return trouve == tableau.end() ? -1 : static_cast<int>(trouve - tableau.begin());
}
