#include "core/lecture_dates.h"

#include <QStringList>
#include <algorithm>

#include "core/chaines.h"
#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

/// The digits at a fixed place. A field cut short is refused: "201609 1" is no day.
int Champ(const QString& texte, qsizetype debut, qsizetype longueur) {
  const QString champ = texte.mid(debut, longueur);
  if (champ.size() != longueur || !EstChiffres(champ))
    throw EConvertError(u"« %1 » n'est pas une date ou une heure."_s.arg(texte.left(60)));
  return StrToInt(champ);
}

TDateTime LireJourMoisAnnee(const QString& texte, QChar separateur) {
  const QStringList champs = texte.split(separateur);
  if (champs.size() != 3) return 0.0;
  try {
    return std::max(0.0, EncodeDate(StrToInt(champs[2]), StrToInt(champs[1]), StrToInt(champs[0])));
  } catch (const Exception&) {
    return 0.0;
  }
}

}  // namespace

TDateTime LireDateCompacte(const QString& texte) {
  return EncodeDate(Champ(texte, 0, 4), Champ(texte, 4, 2), Champ(texte, 6, 2));
}

TDateTime LireHeureCompacte(const QString& texte) {
  return EncodeTime(Champ(texte, 0, 2), Champ(texte, 2, 2));
}

TDateTime LireDateBarre(const QString& texte) { return LireJourMoisAnnee(texte, u'/'); }

TDateTime LireDateTiret(const QString& texte) { return LireJourMoisAnnee(texte, u'-'); }
