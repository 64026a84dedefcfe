// A workstation that does nothing but take keys: SERVER COUNTER NUMBER. It says that it is connected,
// waits for a line, so that all start together, and prints its keys one a line.
#include <QCoreApplication>
#include <cstdio>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "support/dialogues_scenario.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = application.arguments();
  TDialoguesScenario dialogues;
  TReglagesPoste reglages;
  TDataModule1 base(dialogues, reglages);
  base.ServerName = arguments.value(1);
  try {
    base.Connecter();
  } catch (const Exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  std::puts("prêt");
  std::fflush(stdout);
  std::getchar();
  for (int reste = arguments.value(3).toInt(); reste > 0; --reste)
    std::printf("%d\n", base.GetNextId(arguments.value(2)));
  for (const QString& message : dialogues.Dits) std::fprintf(stderr, "%s\n", qPrintable(message));
  return dialogues.Dits.isEmpty() ? 0 : 1;
}
