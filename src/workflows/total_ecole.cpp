#include "workflows/total_ecole.h"

#include "application/globals.h"
#include "attendance/parametres_service.h"
#include "core/calendrier_scolaire.h"
#include "pupils/service.h"

Currency CalculTotalEleve(const TEleve& eleve, int mois, const TPresences& presences,
                          const TPresencesParticulieres& marques) {
  const int annee = eleve.Eleves->AnneeScolaire;
  const TPeriode periode = BornesMois(mois, annee);
  TLignesService lignes;
  Currency total;
  const auto ajouter = [&](Currency montant) {
    if (montant > Currency{}) total += montant;
  };
  if (!eleve.Flg3eEnfant) {
    ajouter(eleve.CoutService(TService::Matin, periode, lignes));
    ajouter(Currency::Euros(presences.ServiceSoir1(eleve.Id, mois, annee, marques, lignes)));
    ajouter(Currency::Euros(presences.ServiceSoir2(eleve.Id, mois, annee, lignes)));
    ajouter(Currency::Euros(presences.ServiceMercredi(eleve.Id, mois, annee, lignes).Total));
    ajouter(Currency::Euros(presences.ForfaitMidiMois(eleve.Id, mois, marques)));
  }
  ajouter(eleve.CoutService(TService::Repas, periode, lignes));
  ajouter(Currency::Euros(presences.ForfaitEtudeMois(eleve.Id, mois, marques)));
  return total;
}

Currency CalculTotalEcole(int mois) {
  InitialiseTableParametreService(*Globals.Presences);
  Currency total;
  for (const TEleve& eleve : *Globals.Eleves)
    total += CalculTotalEleve(eleve, mois, *Globals.Presences, *Globals.PresencesParticulieres);
  return total;
}
