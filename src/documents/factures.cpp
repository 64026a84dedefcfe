#include "documents/factures.h"

#include "core/parametres.h"
#include "documents/facture.h"
#include "documents/facture_compte.h"
#include "documents/facture_provision.h"
#include "documents/releve_detaille.h"
#include "pupils/eleves.h"

namespace {

struct TRegle {
  bool AvecDate;
  bool AvecDetail;
  TResultat (*Construire)(const TContexteDocument&, const TDemandeDocument&);
};

/// In the order of the enumeration.
constexpr TRegle kRegles[] = {
    {true, true, FactureFraisEffectifs},
    {false, true, FactureProvision},
    {false, false, FactureActivites},
    {true, true, FactureCompteCourant},
};

const TRegle& Regle(TGeneration generation) { return kRegles[static_cast<std::size_t>(generation)]; }

}  // namespace

std::vector<TGeneration> GenerationsFacture(const TParametres& parametres) {
  if (parametres.Regles().CompteCourant) return {TGeneration::CompteCourant};
  if (!parametres.Regles().ModeProvision) return {TGeneration::PostesOuverts};
  if (parametres.Regles().CommunicationRepas) return {TGeneration::Provision};
  return {TGeneration::Provision, TGeneration::Activites};
}

bool EstModeleFacture(QStringView modele) {
  return modele.startsWith(u"Facture") || modele.startsWith(u"ReleveFacture");
}

bool FactureDemandeDate(const TParametres& parametres) {
  return parametres.Regles().DatePaiement && Regle(GenerationsFacture(parametres).front()).AvecDate;
}

TResultat Factures(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TDemandeDocument retenue = demande;
  if (!FactureDemandeDate(contexte.Parametres))
    retenue.DatePaiement.reset();
  else if (!retenue.DatePaiement)
    return {};

  contexte.Eleves.LireFrais(demande.Eleves);
  TResultat resultat;
  for (const TGeneration generation : GenerationsFacture(contexte.Parametres)) {
    const TRegle& regle = Regle(generation);
    resultat.Ajouter(regle.Construire(contexte, retenue));
    if (regle.AvecDetail) resultat.Ajouter(DetailApresFacture(contexte, retenue));
  }
  return resultat;
}
