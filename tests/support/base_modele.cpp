// Makes the empty database that the tests copy.
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "support/dialogues_scenario.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QString chemin = application.arguments().value(1);
  qputenv("FIREBIRD_LOCK", QFile::encodeName(QFileInfo(chemin).absolutePath()));
  QFile::remove(chemin);
  TDialoguesScenario dialogues;
  TReglagesPoste reglages;
  TDataModule1 base(dialogues, reglages);
  base.ServerName = chemin;
  try {
    base.Connecter();
    base.Deconnecter();
    base.EcrituresForcees(false);  // a test's database need not outlive a power cut
  } catch (const Exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  return 0;
}
