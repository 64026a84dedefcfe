// The main of every test program: a private home, so that no test meets the user's own settings,
// locks or data.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  QTemporaryDir maison;
  const QByteArray chemin = QFile::encodeName(maison.path());
  for (const char* nom : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "FIREBIRD_LOCK", "TEMP"}) qputenv(nom, chemin);
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     maison.filePath(QStringLiteral("utilisateur")));
  QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                     maison.filePath(QStringLiteral("machine")));
  QLocale::setDefault(QLocale(QStringLiteral("fr_BE")));
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
