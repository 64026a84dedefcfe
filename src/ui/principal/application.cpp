#include "ui/principal/application.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/dialogues.h"
#include "core/exceptions.h"
#include "ui/commun/theme.h"

bool Application::notify(QObject* objet, QEvent* evenement) {
  try {
    return QApplication::notify(objet, evenement);
  } catch (const Exception& e) {
    Montrer(e.Message);
  } catch (const std::bad_alloc&) {
    Montrer(QStringLiteral("La mémoire de cet ordinateur ne suffit pas pour cette opération."));
  } catch (const std::exception& e) {
    Montrer(QStringLiteral("Erreur inattendue : ") + QString::fromUtf8(e.what()));
  }
  return true;
}

void Application::Montrer(const QString& texte) {
  if (Dialogues != nullptr) Dialogues->Message(texte);
}

void Application::Preparer() {
  QLocale::setDefault(QLocale(QStringLiteral("fr_BE")));
  setApplicationName(QStringLiteral("Calpenne"));
  auto* traduction = new QTranslator(this);
  if (traduction->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTranslator(traduction);
  Theme::Appliquer(*this);
  setWindowIcon(Theme::Icone(QStringLiteral("system-users"), TRole::Accent));
}
