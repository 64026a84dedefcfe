#include "documents/libelles_services.h"

#include "core/parametres.h"

using namespace Qt::StringLiterals;

QString LibelleFacture(TService service, const TContexteDocument& contexte) {
  switch (service) {
    case TService::Matin:
      return u"Garderies du matin"_s;
    case TService::Midi:
      return u"Garderies du midi"_s;
    case TService::Soir:
      return contexte.Parametres.Regles().TitreGarderieSoir();
    case TService::Mercredi:
      return u"Garderies du mercredi"_s;
    case TService::Etude:
      return u"Etudes"_s;
    case TService::Repas:
      return u"Repas chaud"_s;
    case TService::Soupe:
      return u"Soupes"_s;
  }
  return {};
}
