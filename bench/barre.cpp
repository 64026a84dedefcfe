#include "bench/barre.h"

#include <malloc.h>

#include <QFile>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

double Etat(const QByteArray& nom) {
  QFile fichier(u"/proc/self/status"_s);
  if (!fichier.open(QIODevice::ReadOnly)) return 0.0;
  for (const QByteArray& ligne : fichier.readAll().split('\n'))
    if (ligne.startsWith(nom))
      return ligne.mid(nom.size()).trimmed().split(' ').first().toDouble() * 1024.0 / 1e6;
  return 0.0;
}

}  // namespace

void Barre(const char* nom, double mesure, double barre, bool auPlus) {
  const bool tenue = auPlus ? mesure <= barre : mesure >= barre;
  std::printf("%s;%.2f;%.1f;%s\n", nom, mesure, barre, tenue ? "ok" : "short");
  std::fflush(stdout);
}

// Resident memory would count what an earlier subject left free, and show nothing of what is put there.
double Memoire() {
  const struct mallinfo2 tas = mallinfo2();
  return static_cast<double>(tas.uordblks + tas.hblkhd) / 1e6;
}

void OublierMaximum() {
  malloc_trim(0);
  QFile maximum(u"/proc/self/clear_refs"_s);
  if (maximum.open(QIODevice::WriteOnly)) maximum.write("5");
}

double MemoireMaximale() { return Etat("VmHWM:"); }
