#include "core/dates.h"

#include <cmath>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kJulienOrigine = 2415019;  // 30 December 1899
constexpr double kMillisecondesParJour = 86400000.0;

}  // namespace

TDateTime EncodeDate(int annee, int mois, int jour) {
  const QDate date(annee, mois, jour);
  if (!date.isValid() || annee < 1 || annee > 9999)
    throw EConvertError(u"La date %1/%2/%3 n'existe pas."_s.arg(jour).arg(mois).arg(annee));
  return DateDeQt(date);
}

TDateTime EncodeTime(int heure, int minute, int seconde, int milliseconde) {
  const QTime temps(heure, minute, seconde, milliseconde);
  if (!temps.isValid())
    throw EConvertError(u"L'heure %1:%2 n'existe pas."_s.arg(heure).arg(minute, 2, 10, QChar(u'0')));
  return HeureDeQt(temps);
}

TJour DecodeDate(TDateTime date) {
  const QDate d = QDate::fromJulianDay(kJulienOrigine + static_cast<qint64>(std::floor(date)));
  return {d.year(), d.month(), d.day()};
}

TDateTime DateDeQt(const QDate& date) {
  return date.isValid() ? static_cast<double>(date.toJulianDay() - kJulienOrigine) : 0.0;
}

TDateTime HeureDeQt(const QTime& heure) {
  return heure.isValid() ? heure.msecsSinceStartOfDay() / kMillisecondesParJour : 0.0;
}

TDateTime HeureAuMilliseconde(TDateTime heure) {
  return std::round((heure - std::floor(heure)) * kMillisecondesParJour) / kMillisecondesParJour;
}

QDate DateVersQt(TDateTime date) {
  if (date == 0.0) return {};
  return QDate::fromJulianDay(kJulienOrigine + static_cast<qint64>(std::floor(date)));
}

QTime HeureVersQt(TDateTime heure) {
  const double fraction = heure - std::floor(heure);
  const auto ms = static_cast<int>(std::round(fraction * kMillisecondesParJour)) % 86400000;
  return QTime::fromMSecsSinceStartOfDay(ms);
}

int JourLundi1(TDateTime date) {
  const auto jours = static_cast<qint64>(std::floor(date));
  return static_cast<int>(((jours + 5) % 7 + 7) % 7) + 1;  // day 2 (1 January 1900) was a Monday
}
