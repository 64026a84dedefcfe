#include "core/fichiers.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <memory>
#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kTailleMaximum = 64LL * 1024 * 1024;

// Flushes by itself: QSaveFile::commit lets a failure of its own flush pass and keeps half a file.
bool Ecrire(QFileDevice& fichier, QByteArrayView octets) {
  return fichier.open(QIODevice::WriteOnly) && fichier.write(octets.data(), octets.size()) == octets.size() &&
         fichier.flush();
}

[[noreturn]] void Refuser(const QString& chemin, const QFileDevice& fichier) {
  throw Exception(u"Impossible d'écrire le fichier « %1 » : %2"_s.arg(chemin, fichier.errorString()));
}

[[noreturn]] void RefuserOuverture(const QString& chemin, const QString& message, const QString& cause) {
  throw EOuvertureFichier(message.arg(chemin), cause);
}

/// Why a file did not open, with the system's number where the text does not hold it.
QString CauseOuverture(const QFile& fichier) {
#ifdef Q_OS_WIN
  return QString::number(GetLastError()) % u' ' % fichier.errorString();
#else
  return fichier.errorString();
#endif
}

}  // namespace

QByteArray LireFichier(const QString& chemin) {
  const QFileInfo infos(chemin);
  if (!infos.exists())
    RefuserOuverture(chemin, u"Le fichier « %1 » n'existe pas."_s, u"le fichier n'existe pas"_s);
  if (infos.isDir())
    RefuserOuverture(chemin, u"« %1 » est un dossier et non un fichier."_s, u"c'est un dossier"_s);
  if (!infos.isFile())
    RefuserOuverture(chemin, u"« %1 » n'est pas un fichier ordinaire."_s,
                     u"ce n'est pas un fichier ordinaire"_s);
  if (infos.size() > kTailleMaximum)
    throw Exception(
        u"Le fichier « %1 » est trop grand (plus de 64 Mo) : ce n'est pas le bon "
        "fichier."_s.arg(chemin));
  QFile fichier(chemin);
  if (!fichier.open(QIODevice::ReadOnly)) {
    const QString cause = CauseOuverture(fichier);
    throw EOuvertureFichier(u"Le fichier « %1 » ne peut pas être lu : %2"_s.arg(chemin, cause), cause);
  }
  const QByteArray octets = fichier.readAll();
  if (fichier.error() != QFileDevice::NoError)  // half a file would pass for a whole one
    throw Exception(u"Le fichier « %1 » ne peut pas être lu : %2"_s.arg(chemin, fichier.errorString()));
  return octets;
}

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

void EcrireFichiers(const std::vector<std::pair<QString, QByteArray>>& fichiers) {
  std::vector<std::unique_ptr<QSaveFile>> ecrits;
  for (const auto& [chemin, octets] : fichiers) {
    auto& fichier = *ecrits.emplace_back(std::make_unique<QSaveFile>(chemin));
    if (!Ecrire(fichier, octets)) Refuser(chemin, fichier);
  }
  for (const auto& fichier : ecrits)
    if (!fichier->commit()) Refuser(fichier->fileName(), *fichier);
}
