#include <QCoreApplication>
#include <QFile>
#include <cstdio>

#include "bench/sujets.h"
#include "core/exceptions.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QTemporaryDir dossier;
  qputenv("FIREBIRD_LOCK", QFile::encodeName(dossier.path()));
  try {
    TEcole ecole(dossier, 500, 250000);
    MesurerChargement(ecole);
    MesurerFactures(ecole, dossier);  // before the larger school takes memory
    MesurerTarification(ecole, dossier);
  } catch (const Exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  return 0;
}
