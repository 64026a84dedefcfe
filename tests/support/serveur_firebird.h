#pragma once
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

/// A real Firebird server of the test's own, on a free port of the loopback, that knows one database
/// and one user. The database, PRESENCES, is an empty one with the present layout. The server ends
/// with its object, and also with a test program that dies.
class TServeurFirebird {
 public:
  /// `motDePasse` is that of sysdba, by default the one that the program uses. A server that does
  /// not come up fails the test.
  explicit TServeurFirebird(const QString& motDePasse = u"corvusnet"_s);
  ~TServeurFirebird();
  TServeurFirebird(const TServeurFirebird&) = delete;
  TServeurFirebird& operator=(const TServeurFirebird&) = delete;

  /// "127.0.0.1/PORT", as the program takes it in ServerName.
  QString Nom() const;

 private:
  QString Chemin(const QString& nom) const { return racine_.filePath(nom); }
  void EcrireFichier(const QString& nom, const QString& contenu) const;
  void PreparerRacine() const;
  void CreerSecurite(const QString& motDePasse) const;
  void Demarrer();

  QTemporaryDir racine_;
  QProcess serveur_;
  quint16 port_;
};

/// A port of 127.0.0.1 that nobody listens on at this moment.
quint16 PortLibre();
