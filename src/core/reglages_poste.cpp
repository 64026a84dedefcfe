#include "core/reglages_poste.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {

QSettings Ouvrir(TRacine racine) {
  return QSettings(QSettings::NativeFormat,
                   racine == TRacine::Machine ? QSettings::SystemScope : QSettings::UserScope,
                   QStringLiteral("Tarnvale"), QStringLiteral("Orbelin"));
}

QString Creer(const QString& dossier) {
  QDir().mkpath(dossier);
  return QDir::cleanPath(dossier);
}

}  // namespace

QString TReglagesPoste::Lire(TRacine racine, const QString& nom) const {
  QSettings reglages = Ouvrir(racine);
  reglages.setFallbacksEnabled(false);
  return reglages.value(nom).toString();
}

bool TReglagesPoste::Ecrire(TRacine racine, const QString& nom, const QString& valeur) {
  QSettings reglages = Ouvrir(racine);
  reglages.setFallbacksEnabled(false);
  if (!reglages.isWritable()) return false;
  reglages.setValue(nom, valeur);
  reglages.sync();
  return reglages.status() == QSettings::NoError;
}

bool TReglagesPoste::MachineInscriptible() const { return Ouvrir(TRacine::Machine).isWritable(); }

QString DossierDonnees() {
  return Creer(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
               QStringLiteral("/Calpenne"));
}

QString DossierPresences(const TReglagesPoste& reglages) {
  const QString choisi = reglages.Lire(TRacine::Utilisateur, QStringLiteral("DossierPresences")).trimmed();
  if (!choisi.isEmpty()) return Creer(choisi);
#ifdef Q_OS_WIN
  return Creer(QStringLiteral("C:/Presences"));
#else
  return Creer(DossierDonnees() + QStringLiteral("/Presences"));
#endif
}

QString DossierTemporaire() {
  for (const char* nom : {"TEMP", "TMP", "USERPROFILE"}) {
    const QString dossier = qEnvironmentVariable(nom).trimmed();
    if (!dossier.isEmpty()) return QDir::cleanPath(dossier);
  }
  return QDir::tempPath();
}
