#include <QFile>
#include <cstdio>

#include "bench/sujets.h"
#include "core/exceptions.h"
#include "ui/principal/application.h"

using namespace Qt::StringLiterals;

// Everything, or the subjects that are named.
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  application.Preparer();
  const QTemporaryDir dossier;
  qputenv("FIREBIRD_LOCK", QFile::encodeName(dossier.path()));
  try {
    TEcole ecole(dossier, 500, 250000);
    const auto voulu = [&](const QString& sujet) {
      const QStringList noms = QCoreApplication::arguments().mid(1);
      return noms.isEmpty() || noms.contains(sujet);
    };
    if (voulu(u"chargement"_s)) MesurerChargement(ecole);
    if (voulu(u"factures"_s)) MesurerFactures(ecole, dossier);  // before the larger school takes memory
    if (voulu(u"statistiques"_s)) MesurerStatistiques(ecole);
    if (voulu(u"ecran"_s)) MesurerEcran(ecole, dossier);
    if (voulu(u"repas"_s)) MesurerRepas(ecole, dossier);
    if (voulu(u"banque"_s)) MesurerBanque(ecole, dossier);
    if (voulu(u"tarification"_s)) MesurerTarification(ecole, dossier);
  } catch (const Exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  return 0;
}
