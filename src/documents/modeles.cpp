#include "documents/modeles.h"

#include <QDir>
#include <QFile>

#include "core/reglages_poste.h"

// The linker drops the resources of a static library that nothing names.
static void AttacherModeles() { Q_INIT_RESOURCE(modeles); }

QString DossierModeles(const TReglagesPoste& reglages) {
  return QDir(DossierPresences(reglages)).filePath(QStringLiteral("modeles"));
}

std::shared_ptr<const TModele> ModeleDocument(const QString& nom, const QString& dossier) {
  AttacherModeles();
  const QString fichier = nom + QStringLiteral(".xml");
  const bool ici = !dossier.isEmpty() && QFile::exists(QDir(dossier).filePath(fichier));
  if (!ici && !QFile::exists(QStringLiteral(":/modeles/") + fichier)) return nullptr;
  return ChargerModele(nom, dossier);
}
