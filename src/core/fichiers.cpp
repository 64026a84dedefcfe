#include "core/fichiers.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "core/exceptions.h"

namespace {

bool Ecrire(QFileDevice& fichier, QIODevice::OpenMode mode, QByteArrayView octets) {
  return fichier.open(mode) && fichier.write(octets.data(), octets.size()) == octets.size();
}

[[noreturn]] void Refuser(const QString& chemin, const QFileDevice& fichier) {
  throw Exception(
      QStringLiteral("Impossible d'écrire le fichier « %1 » : %2").arg(chemin, fichier.errorString()));
}

}  // namespace

void EcrireFichier(const QString& chemin, QByteArrayView octets) {
  const QFileInfo info(chemin);
  if (info.exists() && !info.isFile() && !info.isDir()) {
    QFile fichier(chemin);
    if (!Ecrire(fichier, QIODevice::WriteOnly | QIODevice::Unbuffered, octets)) Refuser(chemin, fichier);
    return;
  }
  QSaveFile fichier(chemin);
  if (!Ecrire(fichier, QIODevice::WriteOnly, octets) || !fichier.commit()) Refuser(chemin, fichier);
}
