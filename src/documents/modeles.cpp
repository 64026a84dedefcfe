#include "documents/modeles.h"

#include <QDir>
#include <QFile>

#include "core/reglages_poste.h"

using namespace Qt::StringLiterals;

// The linker drops the resources of a static library that nothing names.
static void AttacherModeles() { Q_INIT_RESOURCE(modeles); }

QString DossierModeles(const TReglagesPoste& reglages) {
  return QDir(DossierPresences(reglages)).filePath(u"modeles"_s);
}

std::shared_ptr<const TModele> ModeleDocument(const QString& nom, const QString& dossier) {
  AttacherModeles();
  const QString fichier = nom + u".xml"_s;
  const bool ici = !dossier.isEmpty() && QFile::exists(QDir(dossier).filePath(fichier));
  if (!ici && !QFile::exists(u":/modeles/"_s + fichier)) return nullptr;
  return ChargerModele(nom, dossier);
}
