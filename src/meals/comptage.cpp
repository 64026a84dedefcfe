#include "meals/comptage.h"

#include "core/conversions.h"

namespace {

constexpr int kNombreMaximum = 9999;

}  // namespace

Currency Total(const TComptage& comptage) {
  Currency total;
  for (std::size_t i = 0; i < kNombreCoupures; ++i)
    total += Currency::Brut(kCoupures[i].Centimes * 100LL) * comptage[i];
  return total;
}

int LireNombreCoupures(const QString& texte) {
  const int nombre = StrToIntDef(texte, 0);
  return nombre >= 0 && nombre <= kNombreMaximum ? nombre : 0;
}
