// The prices of the tariff rows.
#include <cmath>

#include "services/tarifs_garderies.h"

double MinutesEntre(TDateTime a, TDateTime b) { return std::abs(a - b) * 1440.0; }

std::int64_t ArrondiSuperieur(double nombre) {
  const double tronque = std::trunc(nombre);
  return static_cast<std::int64_t>(tronque) + (nombre - tronque > 0.0 ? 1 : 0);
}

Currency CoutUnites(const TTarifGarderie& tarif, bool deuxiemeEnfant, TDateTime a, TDateTime b) {
  const Currency prix = deuxiemeEnfant ? tarif.Cout2eEnfant : tarif.Cout;
  const double minutes = MinutesEntre(a, b);
  switch (tarif.TypeForfait) {
    case TTypeForfait::Periode:
      return prix;
    case TTypeForfait::Heure:
      return prix * ArrondiSuperieur(std::trunc(minutes) / 60.0);
    case TTypeForfait::DemiHeure:
      return prix * ArrondiSuperieur(minutes / 30.0);
    case TTypeForfait::QuartHeure:
      return prix * ArrondiSuperieur(minutes / 15.0);
    case TTypeForfait::Minute:
      return prix * static_cast<std::int64_t>(std::nearbyint(minutes));  // half to even
    case TTypeForfait::Aucun:
      break;
  }
  return {};
}

Currency TTarifsGarderies::CoutPresence(TTypeFamille famille, TTypeScan scan, bool deuxiemeEnfant,
                                        TDateTime sortie, TDateTime entree) const {
  if (entree == 0.0) {
    if (scan == TTypeScan::Presence) entree = sortie;
    if (scan == TTypeScan::Sortie) entree = PremiereHeureFamille(famille);
  } else if (sortie == 0.0) {
    if (scan == TTypeScan::Presence) sortie = entree;
    if (scan == TTypeScan::Entree) sortie = DerniereHeureFamille(famille);
  } else if (entree < 0.0 || sortie < 0.0) {
    return {};
  }
  return CoutCreneau(famille, deuxiemeEnfant, scan, sortie, entree);
}

namespace {

/// What a window adds to the price of a presence, and whether it is the last to do so.
struct TPart {
  Currency Montant;
  bool Dernier = false;
};

/// The pupil is scanned on leaving: the time spent is charged.
TPart PartSortie(const TTarifGarderie& tarif, bool deuxiemeEnfant, TDateTime sortie, TDateTime entree) {
  const TDateTime debut = tarif.HeureDebutScan, fin = tarif.HeureFinScan;
  const bool dernier = sortie <= fin;
  if (entree >= debut) return {CoutUnites(tarif, deuxiemeEnfant, dernier ? sortie : fin, entree), dernier};
  if (!dernier) return {CoutUnites(tarif, deuxiemeEnfant, sortie, entree), false};
  // An exit at the very start of a window still costs a unit.
  const TDateTime jusque = debut == sortie ? sortie + EncodeTime(0, 0, 1) : sortie;
  return {CoutUnites(tarif, deuxiemeEnfant, jusque, debut), true};
}

/// The pupil is scanned on arrival or in the course of the service: the charge runs to the end of
/// the window. A window that the presence spans on both sides adds nothing, unlike above.
TPart PartEntree(const TTarifGarderie& tarif, bool deuxiemeEnfant, TDateTime sortie, TDateTime entree) {
  const TDateTime debut = tarif.HeureDebutScan, fin = tarif.HeureFinScan;
  const bool dernier = sortie <= fin;
  if (entree >= debut && (dernier || entree < fin))
    return {CoutUnites(tarif, deuxiemeEnfant, fin, entree), dernier};
  if (entree < debut && dernier) return {CoutUnites(tarif, deuxiemeEnfant, fin, debut), true};
  return {};
}

}  // namespace

// The day plays no part here: the rows of all days are walked.
Currency TTarifsGarderies::CoutCreneau(TTypeFamille famille, bool deuxiemeEnfant, TTypeScan scan,
                                       TDateTime sortie, TDateTime entree) const {
  Currency total;
  for (const TTarifGarderie* tarif : Famille(famille).ParDebut) {
    const TPart part = scan == TTypeScan::Sortie ? PartSortie(*tarif, deuxiemeEnfant, sortie, entree)
                                                 : PartEntree(*tarif, deuxiemeEnfant, sortie, entree);
    total += part.Montant;
    if (part.Dernier) break;
  }
  return total;
}
