#include "documents/services_factures.h"

#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

QString LibelleFacture(TService service, const QString& titreGarderieSoir) {
  switch (service) {
    case TService::Matin:
      return u"Garderies du matin"_s;
    case TService::Midi:
      return u"Garderies du midi"_s;
    case TService::Soir:
      return titreGarderieSoir;
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

void AjouterServices(TSection& section, std::span<const TService> services, const QString& titreGarderieSoir,
                     const TMontantService& montant) {
  for (const TService service : services)
    if (const std::optional<Currency> du = montant(service))
      section.Ajouter(LibelleFacture(service, titreGarderieSoir), *du);
}

TMontantService CoutsEntiers(const TEleve& eleve, const TPeriode& periode) {
  return [&eleve, periode](TService service) -> std::optional<Currency> {
    if (EstAccueil(service) && eleve.Flg3eEnfant) return std::nullopt;
    TLignesService lignes;
    const Currency cout = eleve.CoutService(service, periode, lignes);
    if (cout <= Currency()) return std::nullopt;
    return cout;
  };
}
