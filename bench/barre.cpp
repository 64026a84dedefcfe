#include "bench/barre.h"

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

double Memoire() { return Etat("VmRSS:"); }
double MemoireMaximale() { return Etat("VmHWM:"); }
