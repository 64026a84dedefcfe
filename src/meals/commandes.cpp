#include "meals/commandes.h"

#include <algorithm>

#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TCommande> kColonnes[] = {
    Entier<&TCommande::EleveId>("ELEVE_ID"),
    Date<&TCommande::DateCommande>("DATE_COMMANDE"),
    OuiNon<&TCommande::FlgRepas>("FLG_REPAS"),
    OuiNon<&TCommande::FlgDago>("FLG_DAGO"),
    OuiNon<&TCommande::FlgSandwich>("FLG_SANDWICH"),
    OuiNon<&TCommande::FlgJambon>("FLG_JAMBON"),
    OuiNon<&TCommande::FlgFromage>("FLG_FROMAGE"),
    OuiNon<&TCommande::FlgJambonFromage>("FLG_JAMBON_FROMAGE"),
    OuiNon<&TCommande::FlgBeurre>("FLG_BEURRE"),
    OuiNon<&TCommande::FlgMayonnaise>("FLG_MAYONNAISE"),
};

}  // namespace

TCommandes::TCommandes(TDataModule1& base) : TCollection(base) { DefineQuery(); }

// Sorted, not walked along the primary key: that would go through the orders of all years.
void TCommandes::DefineQuery() {
  SelectSql = u"SELECT * FROM COMMANDE WHERE DATE_COMMANDE >= " % FormatDateSql(periode_.Premier) %
              u" AND DATE_COMMANDE <= " % FormatDateSql(periode_.Dernier) % u" ORDER BY COMMANDE_ID + 0";
  TableName = u"COMMANDE"_s;
  KeyField = "COMMANDE_ID";
  CounterName = u"COMMANDE"_s;
  Colonnes = kColonnes;
}

// A day may be read more than once.
void TCommandes::LoadItems(TCurseur& ligne) {
  if (ParCle(ligne.Entier("COMMANDE_ID")) == nullptr) TCollection::LoadItems(ligne);
}

bool TCommandes::EstLu(TDateTime jour) const {
  return std::ranges::any_of(periodes_,
                             [&](const TPeriode& p) { return p.Premier <= jour && jour <= p.Dernier; });
}

void TCommandes::Lire(const TPeriode& periode) {
  const bool dejaLue = std::ranges::any_of(periodes_, [&](const TPeriode& p) {
    return p.Premier <= periode.Premier && periode.Dernier <= p.Dernier;
  });
  if (dejaLue) return;
  periode_ = periode;
  Charger();
  periodes_.push_back(periode);
}

TCommande* TCommandes::Trouver(int eleve, TDateTime jour) {
  if (!EstLu(jour)) Lire({jour, jour});
  return parEleveJour_.Premier(CleEleveJour(eleve, jour));
}

std::vector<TCommande*> TCommandes::Periode(const TPeriode& periode) {
  Lire(periode);
  std::vector<TCommande*> commandes;
  for (TCommande& commande : *this)
    if (commande.DateCommande >= periode.Premier && commande.DateCommande <= periode.Dernier)
      commandes.push_back(&commande);
  return commandes;
}

TCommande* TCommandes::Enregistrer(TCommande& commande) {
  const bool nouvelle = commande.Status == TStatus::Nouveau;
  try {
    Save();
  } catch (const EDistributor&) {
    TCommande* autre = nouvelle ? RelireAutrePoste(commande) : nullptr;
    if (autre == nullptr) throw;
    return autre;
  }
  return nullptr;
}

// The order that could not be inserted leaves, whether or not there is another: the next click makes a new
// one.
TCommande* TCommandes::RelireAutrePoste(TCommande& commande) {
  const int eleve = commande.EleveId;
  const TDateTime jour = commande.DateCommande;
  Forget(commande);
  periode_ = {jour, jour};
  Charger();
  return parEleveJour_.Premier(CleEleveJour(eleve, jour));
}
