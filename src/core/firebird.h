#pragma once
#include <QString>
#include <QVariant>
#include <memory>

// What Qt's driver cannot do and the client library can. `attache` is QSqlDriver::handle().

namespace Firebird {

/// Creates an empty database file, UTF-8, user sysdba. Raises Exception with a French message.
void CreerBase(const QString& chemin);

/// Forced writes of a local file: off while a whole school is loaded, on for daily work. The setting
/// stays in the file. Raises Exception.
void EcrituresForcees(const QString& chemin, bool forcees);

/// The counters of one connection. Each key is taken in a short transaction of its own, which waits for
/// the other workstations instead of failing; the statements stay prepared from one key to the next.
class TCompteurs {
 public:
  /// `attache` must stay open as long as the object.
  explicit TCompteurs(const QVariant& attache);
  ~TCompteurs();
  TCompteurs(const TCompteurs&) = delete;
  TCompteurs& operator=(const TCompteurs&) = delete;

  /// Adds one to the counter and returns the new value; -1 when the counter does not exist. Raises
  /// Exception with the engine's message.
  int ProchaineCle(const QString& compteur);

 private:
  struct TInterne;
  std::unique_ptr<TInterne> d_;
};

}  // namespace Firebird

/// A French sentence that says what to do, with the driver's text below it.
QString MessageBaseDeDonnees(const QString& texteDuPilote, const QString& fichier = {});
