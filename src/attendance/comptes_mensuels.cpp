// What the school's month counts, in whole euros.
#include <cmath>

#include "attendance/dates_vues.h"
#include "attendance/presences.h"
#include "attendance/presences_particulieres.h"

namespace {

/// The time so many minutes later, in the one form of a time.
TDateTime Decaler(TDateTime heure, int minutes) {
  return (std::round(heure * 86400000.0) + minutes * 60000.0) / 86400000.0;
}

/// A quick in and out costs nothing.
bool DureeSuffit(const TPresence& p) { return p.HeureSortie - p.HeureEntree > EncodeTime(0, 5); }

constexpr int kMercredi = 3;
constexpr int kForfaitMidi = 15;
constexpr int kForfaitEtude = 25;

}  // namespace

/// The frame of the two evening counts: `valeur` is added for each day, while the lines and the
/// ceiling are those of the first evening row in both.
template <class Condition>
int TPresences::CompterSoir(int eleve, const TPeriode& mois, int valeur, bool compte, TLignesService& lignes,
                            Condition dansLaLigne) const {
  lignes.clear();
  const TParametreService& affiche = ParametreService(TLigneParametreService::Soir1);
  int total = 0;
  Currency montant;
  TDatesVues vues;
  for (TPresence* p : PresencesEleve(eleve, mois)) {
    const int jour = JourLundi1(p->DateReleve);
    const bool concernee = p->TypePresence == TTypePresence::Garderie && jour <= 5 && jour != kMercredi;
    if (!concernee || vues.Contient(p->DateReleve) || !dansLaLigne(p->HeureEntree, p->HeureSortie)) continue;
    if (compte && DureeSuffit(*p)) {
      total += valeur;
      vues.Ajouter(p->DateReleve);
      montant = Currency::Euros(total > affiche.ServiceMaximum ? 0 : affiche.ServiceValeur);
    }
    lignes.push_back({montant, p});
  }
  return std::min(total, affiche.ServiceMaximum);
}

int TPresences::ServiceSoir1(int eleve, int mois, int annee, const TPresencesParticulieres& marques,
                             TLignesService& lignes) const {
  const TParametreService& service = ParametreService(TLigneParametreService::Soir1);
  const TDateTime debut = service.ServiceHeureDebut, fin = service.ServiceHeureFin;
  const TDateTime tot = Decaler(debut, -15);
  return CompterSoir(eleve, BornesMois(mois, annee), service.ServiceValeur,
                     !marques.MarqueMoisEtude(eleve, mois), lignes, [&](TDateTime entree, TDateTime sortie) {
                       return (entree < sortie && tot <= entree && fin >= sortie) ||
                              (debut >= entree && fin <= sortie) ||
                              (debut <= entree && fin <= sortie && entree < sortie && fin > entree);
                     });
}

int TPresences::ServiceSoir2(int eleve, int mois, int annee, TLignesService& lignes) const {
  const TParametreService& service = ParametreService(TLigneParametreService::Soir2);
  const TDateTime debut = service.ServiceHeureDebut, fin = service.ServiceHeureFin;
  const TDateTime tard = Decaler(fin, 15);
  return CompterSoir(eleve, BornesMois(mois, annee), service.ServiceValeur, true, lignes,
                     [&](TDateTime entree, TDateTime sortie) {
                       return (entree < sortie && debut <= entree && tard >= sortie) ||
                              (debut >= entree && fin <= sortie) ||
                              (debut >= entree && fin >= sortie && entree < sortie && debut < sortie);
                     });
}

TMercrediMois TPresences::ServiceMercredi(int eleve, int mois, int annee, TLignesService& lignes) const {
  lignes.clear();
  const TParametreService& courte = ParametreService(TLigneParametreService::Mercredi1);
  const TParametreService& longue = ParametreService(TLigneParametreService::Mercredi2);
  const TDateTime tot = Decaler(courte.ServiceHeureDebut, -15);
  TMercrediMois compte;
  Currency montant;
  TDatesVues vues;
  for (TPresence* p : PresencesEleve(eleve, BornesMois(mois, annee))) {
    if (p->TypePresence != TTypePresence::Garderie || JourLundi1(p->DateReleve) != kMercredi ||
        vues.Contient(p->DateReleve) || p->HeureEntree >= p->HeureSortie || tot > p->HeureEntree)
      continue;
    if (DureeSuffit(*p)) {
      vues.Ajouter(p->DateReleve);
      int valeur = 0;
      if (courte.ServiceHeureFin >= p->HeureSortie) {
        compte.Total += courte.ServiceValeur;
        if (courte.ServiceMaximum >= compte.Total) {
          valeur = courte.ServiceValeur;
          ++compte.Courts;
        }
      } else {
        // The one that reaches over the ceiling is shown whole, but is not among the counted.
        const int apres = compte.Total + longue.ServiceValeur;
        if (apres <= longue.ServiceMaximum) ++compte.Longs;
        if (apres <= longue.ServiceMaximum || compte.Total < longue.ServiceMaximum)
          valeur = longue.ServiceValeur;
        compte.Total = apres;
      }
      montant = Currency::Euros(valeur);
    }
    lignes.push_back({montant, p});
  }
  compte.Total = std::min(compte.Total, courte.ServiceMaximum);
  return compte;
}

int TPresences::ForfaitMidiMois(int eleve, int mois, const TPresencesParticulieres& marques) const {
  return marques.MarqueMoisMidi(eleve, mois) || marques.MarqueMoisForfait(eleve, mois) ? 0 : kForfaitMidi;
}

int TPresences::ForfaitEtudeMois(int eleve, int mois, const TPresencesParticulieres& marques) const {
  return marques.MarqueMoisEtude(eleve, mois) ? kForfaitEtude : 0;
}
