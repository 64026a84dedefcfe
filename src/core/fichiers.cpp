#include "core/fichiers.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

// Flushes by itself: QSaveFile::commit lets a failure of its own flush pass and keeps half a file.
bool Ecrire(QFileDevice& fichier, QByteArrayView octets) {
  return fichier.open(QIODevice::WriteOnly) && fichier.write(octets.data(), octets.size()) == octets.size() &&
         fichier.flush();
}

[[noreturn]] void Refuser(const QString& chemin, const QFileDevice& fichier) {
  throw Exception(u"Impossible d'écrire le fichier « %1 » : %2"_s.arg(chemin, fichier.errorString()));
}

}  // namespace

void EcrireFichier(const QString& chemin, QByteArrayView octets) {
  const QFileInfo info(chemin);
  if (info.exists() && !info.isFile() && !info.isDir()) {
    QFile fichier(chemin);
    if (!Ecrire(fichier, octets)) Refuser(chemin, fichier);
    return;
  }
  QSaveFile fichier(chemin);
  if (!Ecrire(fichier, octets) || !fichier.commit()) Refuser(chemin, fichier);
}
