// The desktop program.
#include <QScreen>

#include "ui/principal/application.h"
#include "ui/principal/programme.h"

#ifdef Q_OS_UNIX
#include <langinfo.h>
#endif
#include <clocale>
#include <cstring>

int main(int argc, char** argv) {
#ifdef Q_OS_UNIX
  // Without a locale the database engine takes no path with an accent.
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) qputenv("LC_ALL", "C.UTF-8");
#endif
  Application application(argc, argv);
  application.Preparer();
  const THorloge horloge;
  Programme programme(horloge);
  application.Dialogues = &programme.Dialogues;
  // On a smaller screen the columns fold, and nothing is out of reach.
  programme.Fenetre.setMinimumSize(
      programme.Fenetre.minimumSize().boundedTo(programme.Fenetre.screen()->availableSize()));
  programme.Fenetre.setWindowState(Qt::WindowMaximized);
  programme.Fenetre.Demarrer();
  const int code = QApplication::exec();
  application.Dialogues = nullptr;
  return code;
}
