// What day-care and study cost.
#include <cmath>

#include "attendance/presences.h"
#include "services/activites.h"
#include "services/tarifs_garderies.h"

namespace {

constexpr Currency kUnEuro = Currency::Euros(1);

}  // namespace

/// What the price of an evening or a Wednesday depends on beside the record.
struct TPresences::TAccueil {
  TTypeFamille Famille;
  bool DeuxiemeEnfant;
  TTypeActivitesExt ActivitesExt;
  const TActivitesEleves* Activites;
};

/// The frame of the services that tariffs price: the table decides which service prices a record.
template <class Prix>
Currency TPresences::Facturer(int eleve, const TPeriode& periode, TTypePresence type, TTypeFamille famille,
                              TLignesService& lignes, Prix prix) const {
  lignes.clear();
  Currency total;
  if (Tarifs == nullptr) return total;
  for (TPresence* p : PresencesEleve(eleve, periode)) {
    if (p->TypePresence != type) continue;
    const TClassement classement =
        Tarifs->ChercheFamille(GroupeDe(type), p->HeureSortie, p->HeureEntree, p->DateReleve);
    if (classement.Famille != famille) continue;
    const Currency montant = prix(*p, classement.Scan);
    total += montant;
    lignes.push_back({montant, p});
  }
  return total;
}

Currency TPresences::CoutGarderieMatin(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                                       TLignesService& lignes) const {
  constexpr TTypeFamille famille = TTypeFamille::Matin;
  return Facturer(eleve, periode, TTypePresence::Garderie, famille, lignes,
                  [&](const TPresence& p, TTypeScan scan) {
                    return Tarifs->CoutPresence(famille, scan, deuxiemeEnfant, p.HeureSortie, p.HeureEntree);
                  });
}

Currency TPresences::CoutGarderieMidi(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                                      TLignesService& lignes) const {
  constexpr TTypeFamille famille = TTypeFamille::Midi;
  return Facturer(
      eleve, periode, TTypePresence::Garderie, famille, lignes, [&](const TPresence& p, TTypeScan scan) {
        Currency montant = Tarifs->CoutPresence(famille, scan, deuxiemeEnfant, p.HeureSortie, p.HeureEntree);
        if (Regles.GarderieUnique && montant > Currency() &&
            ExisteAutrePresence(eleve, nullptr, TTypeFamille::Matin, p.DateReleve))
          montant -= kUnEuro;
        return montant;
      });
}

Currency TPresences::CoutGarderieSoir(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                                      TTypeActivitesExt activitesExt, const TActivitesEleves* activites,
                                      TLignesService& lignes) const {
  const TAccueil accueil{TTypeFamille::Soir, deuxiemeEnfant, activitesExt, activites};
  return Facturer(eleve, periode, TTypePresence::Garderie, accueil.Famille, lignes,
                  [&](const TPresence& p, TTypeScan scan) {
                    Currency montant = Tarifs->CoutPresence(accueil.Famille, scan, deuxiemeEnfant,
                                                            p.HeureSortie, EntreeSoir(p));
                    montant = DeduireActivite(montant, p, scan, accueil);
                    if (Regles.GarderieUnique && montant > Currency() &&
                        (ExisteAutrePresence(eleve, nullptr, TTypeFamille::Matin, p.DateReleve) ||
                         ExisteAutrePresence(eleve, nullptr, TTypeFamille::Midi, p.DateReleve)))
                      montant -= kUnEuro;
                    return montant;
                  });
}

Currency TPresences::CoutGarderieMercredi(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                                          TTypeActivitesExt activitesExt, const TActivitesEleves* activites,
                                          TLignesService& lignes) const {
  const TAccueil accueil{TTypeFamille::Mercredi, deuxiemeEnfant, activitesExt, activites};
  return Facturer(
      eleve, periode, TTypePresence::Garderie, accueil.Famille, lignes,
      [&](const TPresence& p, TTypeScan scan) {
        Currency montant =
            Tarifs->CoutPresence(accueil.Famille, scan, deuxiemeEnfant, p.HeureSortie, p.HeureEntree);
        montant = DeduireActivite(montant, p, scan, accueil);
        if (Regles.GarderieUnique && montant > Currency() && ScanMatinAvantDix(eleve, p.DateReleve))
          montant -= kUnEuro;
        return montant;
      });
}

Currency TPresences::CoutEtude(int eleve, const TPeriode& periode, bool deuxiemeEnfant,
                               TLignesService& lignes) const {
  constexpr TTypeFamille famille = TTypeFamille::Etude;
  return Facturer(eleve, periode, TTypePresence::Etude, famille, lignes,
                  [&](const TPresence& p, TTypeScan scan) {
                    return Tarifs->CoutPresence(famille, scan, deuxiemeEnfant, p.HeureSortie, p.HeureEntree);
                  });
}

/// The entry from which an evening is priced: one minute after the end of the study, when its time
/// is not to be paid twice.
TDateTime TPresences::EntreeSoir(const TPresence& presence) const {
  if (!Regles.DeductionEtude) return presence.HeureEntree;
  const auto etude = HeureEtude(presence.EleveId, presence.DateReleve);
  if (!etude) return presence.HeureEntree;
  return (Tarifs->FinCreneau(TTypeFamille::Etude, *etude) * 1440.0 + 1.0) / 1440.0;
}

/// A pupil in an outside activity does not pay day-care for its time.
Currency TPresences::DeduireActivite(Currency montant, const TPresence& presence, TTypeScan scan,
                                     const TAccueil& accueil) const {
  if (accueil.Activites == nullptr) return montant;
  const TDateTime date = presence.DateReleve;
  if (accueil.ActivitesExt != TTypeActivitesExt::Aucune) {
    const auto [premier, dernier] = PeriodeActivitesExt(accueil.ActivitesExt);
    const bool due = accueil.Activites->ActiviteDuJour(presence.EleveId, date) != nullptr &&
                     premier <= date && date <= dernier && montant > kUnEuro;
    return due ? montant - kUnEuro : montant;
  }
  const TActiviteEnCours enCours = accueil.Activites->ActiviteEnCours(presence.EleveId, date);
  if (enCours.Inscription == nullptr) return montant;
  switch (Regles.ModeDeduction) {
    case TModeDeduction::UnEuro:
      return montant > kUnEuro ? montant - kUnEuro : montant;
    case TModeDeduction::DeuxEuroQuarante:
      // More is taken off than is asked for: an evening can come out below 0.
      return montant > kUnEuro ? montant - Currency::Brut(24000) : montant;
    case TModeDeduction::Minutes:
    case TModeDeduction::QuartsHeure:
      return SelonSortie(montant, presence, scan, accueil, *enCours.Activite);
  }
  return montant;
}

/// Modes 0 and 3: who stays through the activity is let off its time; who leaves before it pays as
/// if there were none, and who leaves during it pays up to its start. The last two price the record's
/// own entry, also when the evening was priced from the end of the study.
Currency TPresences::SelonSortie(Currency montant, const TPresence& presence, TTypeScan scan,
                                 const TAccueil& accueil, const TActivite& activite) const {
  const TDateTime debut = activite.HeureDebut, fin = activite.HeureFin;
  const TDateTime entree = presence.HeureEntree, sortie = presence.HeureSortie;
  if (sortie >= fin) {
    const double minutes = MinutesEntre(debut, fin);
    if (Regles.ModeDeduction == TModeDeduction::QuartsHeure)
      return montant - Currency::Brut(2000) * ArrondiSuperieur(minutes / 15.0);
    const Currency parMinute = Currency::Brut(accueil.DeuxiemeEnfant ? 125 : 250);
    return montant - parMinute * static_cast<std::int64_t>(std::nearbyint(minutes));
  }
  const bool avant = entree < debut && sortie < debut;
  return Tarifs->CoutPresence(accueil.Famille, scan, accueil.DeuxiemeEnfant, avant ? sortie : debut, entree);
}

TDateTime TPresences::FinServiceMatinMidi(TTypeFamille famille) const {
  const bool concernee = famille == TTypeFamille::Matin || famille == TTypeFamille::Midi;
  return Tarifs != nullptr && concernee ? Tarifs->FinFamille(famille) : 0.0;
}

TDateTime TPresences::DebutServiceSoirEtude(TTypeFamille famille) const {
  const bool concernee =
      famille == TTypeFamille::Soir || famille == TTypeFamille::Mercredi || famille == TTypeFamille::Etude;
  return Tarifs != nullptr && concernee ? Tarifs->DebutFamille(famille) : 0.0;
}

std::optional<TDateTime> TPresences::HeureEtude(int eleve, TDateTime date) const {
  for (const auto& [jour, presence] : Index().Periode(eleve, date, date))
    if (presence->TypePresence == TTypePresence::Etude)
      return presence->HeureEntree != 0.0 ? presence->HeureEntree : presence->HeureSortie;
  return std::nullopt;
}

bool TPresences::ScanMatinAvantDix(int eleve, TDateTime date) const {
  const TDateTime dixHeures = EncodeTime(10, 0);
  for (const auto& [jour, presence] : Index().Periode(eleve, date, date))
    if (presence->TypePresence == TTypePresence::Garderie && presence->HeureEntree > 0.0 &&
        presence->HeureEntree < dixHeures)
      return true;
  return false;
}
