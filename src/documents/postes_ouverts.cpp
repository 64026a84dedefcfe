#include "documents/postes_ouverts.h"

#include "core/mois.h"
#include "documents/sections_frais.h"
#include "pupils/eleve.h"
#include "services/frais_eleve.h"

namespace {

bool SeCoupeAuCent(TService service) {
  return service == TService::Matin || service == TService::Soir || service == TService::Mercredi;
}

/// These services lose their own cost of a settled month, the others all that was paid for it.
bool PerdSonCout(TService service) {
  return service == TService::Matin || service == TService::Midi || service == TService::Soir;
}

}  // namespace

std::vector<const TFraisEleve*> FraisOuverts(const TEleve& eleve, const TPeriodeDocument& periode) {
  std::vector<const TFraisEleve*> ouverts = FraisDuCatalogue(eleve, periode);
  std::erase_if(ouverts, [](const TFraisEleve* ligne) {
    return ligne->Previsionnel() || ligne->MontantVerse == ligne->MontantFrais();
  });
  return ouverts;
}

TServicesOuverts::TServicesOuverts(const TEleve& eleve, const TPeriodeDocument& periode)
    : eleve_(eleve), periode_{periode.DateDebut, periode.DateFin} {
  for (const int mois : kMoisScolaires)
    if (periode.Commence(mois) && eleve.SoldeMois(mois, periode.Annee) == Currency())
      moisRegles_.push_back({BornesMois(mois, periode.Annee), eleve.PaiementsMois(mois)});
}

std::optional<Currency> TServicesOuverts::Montant(TService service, bool auCent) const {
  if (EstAccueil(service) && eleve_.Flg3eEnfant) return std::nullopt;
  TLignesService lignes;
  Currency montant = eleve_.CoutService(service, periode_, lignes);
  if (auCent && SeCoupeAuCent(service)) montant = montant.TronqueAuCent();
  for (const auto& [bornes, paiement] : moisRegles_) {
    const Currency cout = eleve_.CoutService(service, bornes, lignes);
    if (cout > Currency()) montant -= PerdSonCout(service) ? cout : paiement;
  }
  if (montant <= Currency()) return std::nullopt;
  return montant;
}
