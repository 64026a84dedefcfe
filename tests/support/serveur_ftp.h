#pragma once
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// A real FTP server on the loopback over a folder of its own, ended with its object. What goes wrong is told
/// in serveur_ftp.py.
class TServeurFtp {
 public:
  explicit TServeurFtp(const QString& mode = {}) {
    serveur_.start(QStringLiteral(PYTHON_FTP),
                   {QStringLiteral(SERVEUR_FTP), dossier_.path(), u"ecole"_s, u"secret"_s, mode});
    EXPECT_TRUE(serveur_.waitForStarted()) << serveur_.errorString().toStdString();
    while (!serveur_.canReadLine() && serveur_.waitForReadyRead(60'000)) {
    }
    port_ = QString::fromLatin1(serveur_.readLine()).trimmed();
    EXPECT_FALSE(port_.isEmpty()) << serveur_.readAllStandardError().toStdString();
  }
  ~TServeurFtp() {
    serveur_.closeWriteChannel();
    if (!serveur_.waitForFinished(5'000)) serveur_.kill(), serveur_.waitForFinished();
  }
  TServeurFtp(const TServeurFtp&) = delete;
  TServeurFtp& operator=(const TServeurFtp&) = delete;

  QString Hote() const { return u"127.0.0.1:"_s + port_; }
  void Poser(const QString& nom, const QByteArray& contenu) const {
    QFile fichier(dossier_.filePath(nom));
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(contenu);
  }
  /// The files that are there.
  QString Fichiers() const { return QDir(dossier_.path()).entryList(QDir::Files, QDir::Name).join(u' '); }

 private:
  QTemporaryDir dossier_;
  QProcess serveur_;
  QString port_;
};
