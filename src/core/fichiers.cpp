#include "core/fichiers.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <filesystem>
#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// Of a file that waits to take its place, and of the list of those that do.
const QString kNouveau = u".nouveau"_s;
const QString kListe = u"/remplacement.txt"_s;
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

/// Over the file that is there.
void Remplacer(const QString& nouveau, const QString& chemin) {
  std::error_code faute;
  std::filesystem::rename(nouveau.toStdU16String(), chemin.toStdU16String(), faute);
  if (faute)
    throw Exception(u"Impossible d'écrire le fichier « %1 » : %2"_s.arg(
        chemin, QString::fromLocal8Bit(faute.message().c_str())));
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

// All the new ones stand beside the old ones, and are listed, before the first takes its place: whoever is
// cut off behind the list only has renames to do again.
void EcrireFichiers(const QString& dossier, const std::vector<std::pair<QString, QByteArray>>& fichiers) {
  QByteArray noms;
  for (const auto& [nom, octets] : fichiers) {
    EcrireFichier(dossier % u'/' % nom % kNouveau, octets);
    noms += nom.toUtf8() + '\n';
  }
  EcrireFichier(dossier % kListe, noms);
  AcheverFichiers(dossier);
}

void AcheverFichiers(const QString& dossier) {
  const QString liste = dossier % kListe;
  if (!QFileInfo::exists(liste)) return;
  for (const QString& nom : QString::fromUtf8(LireFichier(liste)).split(u'\n', Qt::SkipEmptyParts))
    if (const QString chemin = dossier % u'/' % QFileInfo(nom).fileName(); QFile::exists(chemin % kNouveau))
      Remplacer(chemin % kNouveau, chemin);
  QFile::remove(liste);
}
