#pragma once
#include <QString>

// The files of the database, and what the engine says of them.

namespace Firebird {

/// Creates an empty database file, UTF-8, user sysdba. Raises Exception with a French message.
void CreerBase(const QString& chemin);

/// Forced writes of a local file: off while a whole school is loaded, on for daily work. The setting
/// stays in the file. Raises Exception.
void EcrituresForcees(const QString& chemin, bool forcees);

}  // namespace Firebird

/// A French sentence that says what to do, with the driver's text below it.
QString MessageBaseDeDonnees(const QString& texteDuPilote, const QString& fichier = {});
