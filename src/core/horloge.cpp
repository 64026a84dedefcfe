#include "core/horloge.h"

#include <QDateTime>
#include <cmath>

TDateTime THorloge::Maintenant() const {
  const QDateTime maintenant = QDateTime::currentDateTime();
  return DateDeQt(maintenant.date()) + HeureDeQt(maintenant.time());
}

TDateTime THorloge::Aujourdhui() const { return std::floor(Maintenant()); }
