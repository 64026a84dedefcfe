#include "core/conversions.h"

#include <QRegularExpression>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

/// "« 12x » n'est pas ..." with the text cut to a length that a message box can hold.
[[noreturn]] void Refuser(const QString& texte, const QString& attendu) {
  QString montre = texte.left(60);
  for (QChar& c : montre)
    if (!c.isPrint()) c = u'?';
  if (texte.size() > 60) montre += u'…';
  throw EConvertError(u"« %1 » n'est pas %2."_s.arg(montre, attendu));
}

bool SontChiffres(QStringView texte) {
  if (texte.isEmpty()) return false;
  for (QChar c : texte)
    if (c < u'0' || c > u'9') return false;
  return true;
}

}  // namespace

int StrToInt(const QString& texte) {
  const QString t = texte.trimmed();
  QStringView chiffres = t;
  if (t.startsWith(u'-') || t.startsWith(u'+')) chiffres = chiffres.mid(1);
  bool ok = SontChiffres(chiffres);
  const int valeur = ok ? t.toInt(&ok) : 0;
  if (!ok) Refuser(texte, u"un nombre entier"_s);
  return valeur;
}

int StrToIntDef(const QString& texte, int defaut) {
  try {
    return StrToInt(texte);
  } catch (const EConvertError&) {
    return defaut;
  }
}

Currency StrToCurr(const QString& texte) {
  static const QRegularExpression forme(u"^([+-]?)([0-9]*)(?:,([0-9]*))?$"_s);
  const auto lu = forme.match(texte.trimmed());
  const QString entiers = lu.captured(2), decimales = lu.captured(3);
  const QString attendu = u"un montant (par exemple 2,20)"_s;
  if (!lu.hasMatch() || (entiers.isEmpty() && decimales.isEmpty()) || entiers.size() > 14)
    Refuser(texte, attendu);
  const QString chiffres = entiers + decimales.left(4).leftJustified(4, u'0');
  qint64 unites = chiffres.toLongLong();
  const QString reste = decimales.mid(4);
  if (!reste.isEmpty()) {
    const bool auDela = reste[0] > u'5' || (reste[0] == u'5' && reste.mid(1).count(u'0') < reste.size() - 1);
    if (auDela || (reste[0] == u'5' && unites % 2 == 1)) ++unites;
  }
  return Currency::Brut(lu.captured(1) == u"-" ? -unites : unites);
}

double StrToFloat(const QString& texte) {
  static const QRegularExpression forme(u"^[+-]?([0-9]+(,[0-9]*)?|,[0-9]+)$"_s);
  const QString t = texte.trimmed();
  if (!forme.match(t).hasMatch()) Refuser(texte, u"un nombre (par exemple 2,20)"_s);
  return QString(t).replace(u',', u'.').toDouble();
}

TDateTime StrToDate(const QString& texte) {
  static const QRegularExpression forme(u"^([0-9]{1,2})/([0-9]{1,2})/([0-9]{4}|[0-9]{2})$"_s);
  const auto lu = forme.match(texte.trimmed());
  int annee = lu.captured(3).toInt();
  if (lu.capturedLength(3) == 2) annee += annee < 80 ? 2000 : 1900;
  const QDate date(annee, lu.captured(2).toInt(), lu.captured(1).toInt());
  if (!lu.hasMatch() || !date.isValid() || annee < 1) Refuser(texte, u"une date (jj/mm/aaaa)"_s);
  return DateDeQt(date);
}

TDateTime StrToTime(const QString& texte) {
  static const QRegularExpression forme(u"^([0-9]{1,2}):([0-9]{1,2})(?::([0-9]{1,2}))?$"_s);
  const auto lu = forme.match(texte.trimmed());
  const QTime heure(lu.captured(1).toInt(), lu.captured(2).toInt(), lu.captured(3).toInt());
  if (!lu.hasMatch() || !heure.isValid()) Refuser(texte, u"une heure (hh:mm)"_s);
  return HeureDeQt(heure);
}
