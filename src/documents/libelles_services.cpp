#include "documents/libelles_services.h"

QString LibelleFacture(TService service, const TContexteDocument& contexte) {
  switch (service) {
    case TService::Matin:
      return QStringLiteral("Garderies du matin");
    case TService::Midi:
      return QStringLiteral("Garderies du midi");
    case TService::Soir:
      return contexte.TitreGarderieSoir;
    case TService::Mercredi:
      return QStringLiteral("Garderies du mercredi");
    case TService::Etude:
      return QStringLiteral("Etudes");
    case TService::Repas:
      return QStringLiteral("Repas chaud");
    case TService::Soupe:
      return QStringLiteral("Soupes");
  }
  return {};
}
