#pragma once
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// A private home for a test program, so that no test meets the user's own settings, locks or data.
/// Made before the application object.
class TMaison {
 public:
  TMaison() {
    const QByteArray chemin = QFile::encodeName(dossier_.path());
    for (const char* nom : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "FIREBIRD_LOCK", "TEMP"})
      qputenv(nom, chemin);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, dossier_.filePath(u"utilisateur"_s));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, dossier_.filePath(u"machine"_s));
    QLocale::setDefault(QLocale(u"fr_BE"_s));
  }

 private:
  QTemporaryDir dossier_;
};
