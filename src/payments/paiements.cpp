#include "payments/paiements.h"

#include <algorithm>
#include <iterator>

#include "core/curseur.h"

using namespace Qt::StringLiterals;

namespace {

/// How often a pupil may have a payment of a type.
struct TRegle {
  int type;
  bool parMois;   ///< once a month, otherwise once
  bool remplace;  ///< a second one replaces the amount of the first, otherwise it is dropped
};

constexpr TRegle kRegles[] = {
    {1, true, false}, {2, false, false}, {3, false, true},
    {5, true, true},  {6, true, false},  {kPaiementServices, true, false},
};

using namespace Colonne;

constexpr TColonne<TPaiement> kColonnes[] = {
    Entier<&TPaiement::EleveId>("ELEVE_ID"), Entier<&TPaiement::TypePaiement>("TYPE_PAIEMENT"),
    Entier<&TPaiement::Mois>("MOIS"),        Entier<&TPaiement::Annee>("ANNEE"),
    Montant<&TPaiement::Montant>("MONTANT"),
};

}  // namespace

TPaiements::TPaiements(TDataModule1& base, int annee) : TCollection(base), AnneeScolaire(annee) { Charger(); }

void TPaiements::DefineQuery() {
  SelectSql = u"SELECT * FROM PAIEMENTS WHERE ANNEE_SCOLAIRE =" % QString::number(AnneeScolaire);
  TableName = u"PAIEMENTS"_s;
  KeyField = "PAIEMENT_ID";
  CounterName = u"PAIEMENTS"_s;
  Colonnes = kColonnes;
  Communes = {{"ANNEE_SCOLAIRE", AnneeScolaire}};
}

TPaiement* TPaiements::AjoutePaiement(std::unique_ptr<TPaiement> paiement) {
  const auto regle = std::ranges::find(kRegles, paiement->TypePaiement, &TRegle::type);
  if (regle == std::end(kRegles)) return nullptr;
  for (TPaiement* deja : parEleve_.Tous(paiement->EleveId)) {
    if (deja->TypePaiement != paiement->TypePaiement || (regle->parMois && deja->Mois != paiement->Mois))
      continue;
    if (!regle->remplace) return nullptr;
    deja->Montant = paiement->Montant;
    return &Add(*deja);
  }
  return &Add(std::move(paiement));
}

TPaiement* TPaiements::MarquePaye(std::unique_ptr<TPaiement> paiement) {
  paiement->TypePaiement = kPaiementServices;
  return AjoutePaiement(std::move(paiement));
}

std::unique_ptr<TPaiement> TPaiements::MarqueImpaye(TPaiement& paiement) {
  auto impaye = std::make_unique<TPaiement>();
  impaye->EleveId = paiement.EleveId;
  impaye->Mois = paiement.Mois;
  impaye->Annee = paiement.Annee;
  impaye->Montant = paiement.Montant;
  Remove(paiement);
  return impaye;
}

bool TPaiements::EstPayeEnBase(int eleveId, int mois) const {
  return TCurseur(Base(),
                  u"SELECT PAIEMENT_ID FROM PAIEMENTS WHERE ELEVE_ID = ? AND ANNEE_SCOLAIRE = ? AND "
                  "TYPE_PAIEMENT = ? AND MOIS = ?"_s,
                  {eleveId, AnneeScolaire, kPaiementServices, mois})
      .Suivant();
}

TPaiement* TPaiements::PaiementMois(int eleveId, int mois) const {
  TPaiement* dernier = nullptr;
  for (TPaiement* paiement : parEleve_.Tous(eleveId))
    if (paiement->TypePaiement == kPaiementServices && paiement->Mois == mois) dernier = paiement;
  return dernier;
}

Currency TPaiements::TotalPaiements(int eleveId) const {
  Currency total;
  for (const TPaiement* paiement : parEleve_.Tous(eleveId))
    if (paiement->TypePaiement == kPaiementServices) total += paiement->Montant;
  return total;
}

Currency TPaiements::MontantMois(int eleveId, int mois) const {
  const TPaiement* paiement = PaiementMois(eleveId, mois);
  return paiement != nullptr ? paiement->Montant : Currency();
}
