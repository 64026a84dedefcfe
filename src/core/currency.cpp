#include "core/currency.h"

#include <cfenv>
#include <cmath>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

/// Decimal text of `unites` with `decimales` digits behind `separateur`.
QString Decimal(std::int64_t unites, int decimales, QChar separateur) {
  QString texte = QString::number(std::abs(unites)).rightJustified(decimales + 1, u'0');
  texte.insert(texte.size() - decimales, separateur);
  return unites < 0 ? u'-' + texte : texte;
}

}  // namespace

Currency Currency::Arrondi(long double euros) {
  // The default rounding mode of the processor is half to even, which is the rule of the type.
  const long double unites = std::nearbyint(euros * 10000.0L);
  if (!(std::abs(unites) < 9.2e18L)) throw EConvertError(u"Le montant est trop grand."_s);
  return Brut(static_cast<std::int64_t>(unites));
}

QString FormatDeuxDecimales(Currency montant) {
  const std::int64_t v = montant.EnBrut();
  const std::int64_t cents = (std::abs(v) + 50) / 100;
  return Decimal(v < 0 ? -cents : cents, 2, u',');
}

QString FormatPrix(Currency montant) {
  return montant == montant.TronqueAuCent() ? FormatDeuxDecimales(montant) : FormatNombre(montant);
}

QString FormatQuatreDecimales(Currency montant) { return Decimal(montant.EnBrut(), 4, u'.'); }

QString FormatNombre(Currency montant) {
  QString texte = Decimal(montant.EnBrut(), 4, u',');
  while (texte.endsWith(u'0')) texte.chop(1);
  if (texte.endsWith(u',')) texte.chop(1);
  return texte;
}
