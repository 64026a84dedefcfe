#include "core/reglages_poste.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QSettings Ouvrir(TRacine racine) {
  return QSettings(QSettings::NativeFormat,
                   racine == TRacine::Machine ? QSettings::SystemScope : QSettings::UserScope, u"Tarnvale"_s,
                   u"Orbelin"_s);
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
  return Creer(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Calpenne"_s);
}

QString DossierPresences(const TReglagesPoste& reglages) {
  const QString choisi = reglages.Lire(TRacine::Utilisateur, u"DossierPresences"_s).trimmed();
  if (!choisi.isEmpty()) return Creer(choisi);
#ifdef Q_OS_WIN
  return Creer(u"C:/Presences"_s);
#else
  return Creer(DossierDonnees() + u"/Presences"_s);
#endif
}

QString DossierTemporaire() {
  for (const char* nom : {"TEMP", "TMP", "USERPROFILE"}) {
    const QString dossier = qEnvironmentVariable(nom).trimmed();
    if (!dossier.isEmpty()) return QDir::cleanPath(dossier);
  }
  return QDir::tempPath();
}
