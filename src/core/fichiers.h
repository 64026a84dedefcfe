#pragma once
#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <utility>
#include <vector>

#include "core/exceptions.h"

/// A file that cannot be opened. `Cause` is what the system answers, without the name of the file.
class EOuvertureFichier : public Exception {
 public:
  EOuvertureFichier(const QString& message, QString cause) : Exception(message), Cause(std::move(cause)) {}
  QString Cause;
};

/// The whole content of a file of at most 64 MB. Raises EOuvertureFichier, or Exception when it cannot be
/// read to its end.
QByteArray LireFichier(const QString& chemin);
/// The whole content of a file, which is replaced only once all of it is written: whoever reads it finds
/// the old content or the new. What is no ordinary file (a pipe, a device) keeps its place and is written
/// through. Raises Exception.
void EcrireFichier(const QString& chemin, QByteArrayView octets);

/// Several files of a folder, by name, that belong together: either all of them are replaced, or none. Raises
/// Exception, and leaves them as they were unless the exchange itself fails.
void EcrireFichiers(const QString& dossier, const std::vector<std::pair<QString, QByteArray>>& fichiers);
/// Ends an exchange of files of the folder that was cut off (power, a killed program); does nothing where
/// there is none. Raises Exception.
void AcheverFichiers(const QString& dossier);
