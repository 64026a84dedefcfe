#include "ui/principal/application.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/dialogues.h"
#include "core/exceptions.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

bool Application::notify(QObject* objet, QEvent* evenement) {
  try {
    return QApplication::notify(objet, evenement);
  } catch (const Exception& e) {
    Montrer(e.Message);
  } catch (const std::bad_alloc&) {
    Montrer(u"La mémoire de cet ordinateur ne suffit pas pour cette opération."_s);
  } catch (const std::exception& e) {
    Montrer(u"Erreur inattendue : "_s + QString::fromUtf8(e.what()));
  }
  return true;
}

void Application::Montrer(const QString& texte) {
  if (Dialogues != nullptr) Dialogues->Message(texte);
}

void Application::Preparer() {
  QLocale::setDefault(QLocale(u"fr_BE"_s));
  setApplicationName(u"Calpenne"_s);
  auto* traduction = new QTranslator(this);
  if (traduction->load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTranslator(traduction);
  Theme::Appliquer(*this);
  setWindowIcon(Theme::Icone(u"system-users"_s, TRole::Accent));
}
