// What meals and soup cost: once a day, from Monday to Friday.
#include "attendance/dates_vues.h"
#include "attendance/presences.h"
#include "services/tarifs_garderies.h"

namespace {

bool EnSemaine(TDateTime date) { return JourLundi1(date) <= 5; }

}  // namespace

Currency TPresences::CoutRepas(int eleve, const TPeriode& periode, int categorie,
                               TLignesService& lignes) const {
  lignes.clear();
  const Currency prix =
      categorie >= 1 && categorie <= 3 ? Regles.PrixRepas[static_cast<std::size_t>(categorie)] : Currency();
  Currency total;
  TDatesVues vues;
  for (TPresence* p : PresencesEleve(eleve, periode)) {
    if (p->TypePresence != TTypePresence::Repas || !EnSemaine(p->DateReleve) || vues.Contient(p->DateReleve))
      continue;
    total += prix;
    vues.Ajouter(p->DateReleve);
    lignes.push_back({prix, p});
  }
  return total;
}

// Soup has its own rows, and one price for all children.
Currency TPresences::CoutSoupe(int eleve, const TPeriode& periode, TLignesService& lignes) const {
  lignes.clear();
  Currency total;
  if (Tarifs == nullptr) return total;
  constexpr TTypeFamille famille = TTypeFamille::Soupe;
  TDatesVues vues;
  for (TPresence* p : PresencesEleve(eleve, periode)) {
    if (p->TypePresence != TTypePresence::Soupe || !EnSemaine(p->DateReleve) || vues.Contient(p->DateReleve))
      continue;
    const TClassement classement =
        Tarifs->ChercheFamille(TGroupe::Soupe, p->HeureSortie, p->HeureEntree, p->DateReleve);
    if (classement.Famille != famille) continue;
    const Currency montant =
        Tarifs->CoutPresence(famille, classement.Scan, false, p->HeureSortie, p->HeureEntree);
    total += montant;
    vues.Ajouter(p->DateReleve);
    lignes.push_back({montant, p});
  }
  return total;
}
