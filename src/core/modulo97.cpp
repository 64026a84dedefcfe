#include "core/modulo97.h"

int Modulo97(QStringView chiffres) {
  int reste = 0;
  for (const QChar chiffre : chiffres) reste = (reste * 10 + chiffre.digitValue()) % 97;
  return reste;
}
