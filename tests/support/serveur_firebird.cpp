#include "support/serveur_firebird.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttenteDemarrageMs = 10'000;
constexpr int kAttenteFinMs = 5'000;

/// The folder of the server's own files; only the server and its set-up may know it.
QProcessEnvironment Environnement(const QString& racine) {
  QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
  for (const char* nom : {"FIREBIRD", "FIREBIRD_LOCK", "FIREBIRD_TMP"})
    environnement.insert(QString::fromLatin1(nom), racine);
  return environnement;
}

}  // namespace

quint16 PortLibre() {
  QTcpServer serveur;
  EXPECT_TRUE(serveur.listen(QHostAddress::LocalHost));
  return serveur.serverPort();
}

TServeurFirebird::TServeurFirebird(const QString& motDePasse) : port_(PortLibre()) {
  PreparerRacine();
  CreerSecurite(motDePasse);
  Demarrer();
}

TServeurFirebird::~TServeurFirebird() {
  serveur_.terminate();
  if (serveur_.waitForFinished(kAttenteFinMs)) return;
  serveur_.kill();
  serveur_.waitForFinished();
}

QString TServeurFirebird::Nom() const { return u"127.0.0.1/%1"_s.arg(port_); }

void TServeurFirebird::EcrireFichier(const QString& nom, const QString& contenu) const {
  QFile fichier(Chemin(nom));
  EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
  fichier.write(contenu.toUtf8());
}

void TServeurFirebird::PreparerRacine() const {
  const QDir installation(QStringLiteral(FIREBIRD_INSTALLATION));
  for (const char* nom : {"plugins", "intl", "lib", "firebird.msg", "plugins.conf"})
    EXPECT_TRUE(
        QFile::link(installation.filePath(QString::fromLatin1(nom)), Chemin(QString::fromLatin1(nom))));
  EXPECT_TRUE(QFile::copy(QStringLiteral(CALPENNE_MODELE), Chemin(u"presences.fdb"_s)));
  QFile::setPermissions(Chemin(u"presences.fdb"_s), QFile::ReadOwner | QFile::WriteOwner);
  EcrireFichier(u"firebird.conf"_s,
                uR"(
RemoteServicePort = %1
RemoteBindAddress = 127.0.0.1
RemoteAuxPort = 0
IpcName = CALPENNE_%1
SecurityDatabase = %2/securite.fdb
DatabaseAccess = None
AuthServer = Srp
AuthClient = Srp
UserManager = Srp
WireCrypt = Enabled
ServerMode = Super
Providers = Engine12
)"_s.arg(port_)
                    .arg(racine_.path()));
  EcrireFichier(u"databases.conf"_s,
                uR"(
PRESENCES = %1/presences.fdb
security.db = %1/securite.fdb
{
  RemoteAccess = false
}
)"_s.arg(racine_.path()));
}

void TServeurFirebird::CreerSecurite(const QString& motDePasse) const {
  QFile tables(QStringLiteral(FIREBIRD_SECURITE));
  EXPECT_TRUE(tables.open(QIODevice::ReadOnly));
  QProcess isql;
  isql.setProcessEnvironment(Environnement(racine_.path()));
  isql.start(QStringLiteral(FIREBIRD_ISQL), {u"-q"_s, u"-bail"_s});
  isql.write("CREATE DATABASE '" + Chemin(u"securite.fdb"_s).toUtf8() + "' USER 'sysdba';\n");
  isql.write(tables.readAll());
  isql.write("\nCOMMIT;\nCREATE OR ALTER USER sysdba PASSWORD '" + motDePasse.toUtf8() +
             "' USING PLUGIN Srp;\n");
  isql.closeWriteChannel();
  EXPECT_TRUE(isql.waitForFinished());
  EXPECT_EQ(0, isql.exitCode()) << isql.readAllStandardError().toStdString();
}

void TServeurFirebird::Demarrer() {
  serveur_.setProcessEnvironment(Environnement(racine_.path()));
  serveur_.setProcessChannelMode(QProcess::MergedChannels);
  serveur_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  serveur_.start(QStringLiteral(FIREBIRD_SERVEUR), QStringList());
  const QDeadlineTimer limite(kAttenteDemarrageMs);
  const auto repond = [this] {
    QTcpSocket prise;
    prise.connectToHost(QHostAddress::LocalHost, port_);
    return prise.waitForConnected(kAttenteFinMs);
  };
  while (!repond()) {
    if (serveur_.waitForFinished(20) || limite.hasExpired()) {
      ADD_FAILURE() << "the server does not start: " << serveur_.readAll().toStdString();
      return;
    }
  }
}
