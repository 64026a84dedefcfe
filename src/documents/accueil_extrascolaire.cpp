#include "documents/accueil_extrascolaire.h"

#include <span>

#include "attendance/presences.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/parametres.h"
#include "pupils/eleves.h"
#include "services/activites.h"

using namespace Qt::StringLiterals;

namespace {

/// The hours between which an exit is worth a figure, both included; no figure outside of all rows.
struct TRegleSortie {
  TDateTime Debut;
  TDateTime Fin;
  const char16_t* Chiffre;
};

constexpr TDateTime Heure(int heures, int minutes) { return (heures * 60 + minutes) * 60000 / 86400000.0; }

constexpr TRegleSortie kSansEtude[] = {{Heure(16, 0), Heure(17, 30), u"1"},
                                       {Heure(16, 0), Heure(20, 0), u"3"}};
constexpr TRegleSortie kAvecEtude[] = {{Heure(17, 0), Heure(17, 30), u"2"},
                                       {Heure(17, 0), Heure(20, 0), u"4"}};

QString SelonSortie(TDateTime sortie, std::span<const TRegleSortie> regles) {
  for (const TRegleSortie& regle : regles)
    if (regle.Debut <= sortie && sortie <= regle.Fin) return QString::fromUtf16(regle.Chiffre);
  return {};
}

QString Matin(const TEleve&, const TPresence& p) { return p.HeureEntree >= Heure(8, 0) ? u"2"_s : u"1"_s; }

QString Mercredi(const TEleve& eleve, const TPresence& p) {
  const TActivitesEleves* activites = eleve.Eleves->ActivitesEleves;
  const bool occupe = activites != nullptr && activites->ActiviteDuJour(eleve.Id, p.DateReleve) != nullptr;
  return !occupe && p.HeureEntree <= Heure(16, 0) ? u"1"_s : QString();
}

QString SoirDuMercredi(const TEleve&, const TPresence& p) { return SelonSortie(p.HeureSortie, kSansEtude); }

QString Soir(const TEleve& eleve, const TPresence& p) {
  const bool etude = eleve.Eleves->Presences->HeureEtude(eleve.Id, p.DateReleve).has_value();
  return etude ? SelonSortie(p.HeureSortie, kAvecEtude) : SelonSortie(p.HeureSortie, kSansEtude);
}

/// The records of a service, and the figure of one; "" leaves its day as it is.
struct TPassage {
  TService Service;
  QString (*Chiffre)(const TEleve&, const TPresence&);
};

constexpr TPassage kMatin[] = {{TService::Matin, Matin}};
constexpr TPassage kMercredi[] = {{TService::Mercredi, Mercredi}};
constexpr TPassage kSoir[] = {{TService::Mercredi, SoirDuMercredi}, {TService::Soir, Soir}};

struct TSectionAccueil {
  const char16_t* Nom;
  const char16_t* Titre;
  std::span<const TPassage> Passages;  ///< a later one goes over an earlier one
};

constexpr TSectionAccueil kSections[] = {
    {u"Matin", u"Garderies du matin", kMatin},
    {u"Mercredi", u"Garderies du mercredi", kMercredi},
    {u"Soir", u"Garderies du Soir", kSoir},
};

QString Case(TDateTime date) { return u'J' % QString::number(DecodeDate(date).Jour); }

/// The line of a pupil who has records in the month; none for the others.
std::optional<TNoeudRapport> LigneEleve(const TEleve& eleve, const TSectionAccueil& section,
                                        const TPeriode& mois) {
  TNoeudRapport noeud(eleve.NomComplet());
  noeud.Valeurs.Ecrire(u"NomEleve", eleve.NomComplet());
  bool present = false;
  TLignesService lignes;
  for (const auto& [service, chiffre] : section.Passages) {
    eleve.CoutService(service, mois, lignes);
    present = present || !lignes.empty();
    for (const TLigneService& ligne : lignes) {
      const QString valeur = chiffre(eleve, *ligne.Presence);
      if (!valeur.isEmpty()) noeud.Valeurs.Ecrire(Case(ligne.Presence->DateReleve), valeur);
    }
  }
  if (!present) return std::nullopt;
  return noeud;
}

TNoeudRapport NoeudSection(const TEleves& eleves, const TSectionAccueil& section, const TPeriode& mois) {
  TNoeudRapport noeud(QString::fromUtf16(section.Nom));
  noeud.Valeurs.Ecrire(u"TypeReleve", QString::fromUtf16(section.Titre));
  for (const TEleve& eleve : eleves)
    if (auto ligne = LigneEleve(eleve, section, mois)) noeud.Enfants.push_back(std::move(*ligne));
  return noeud;
}

}  // namespace

TResultat AccueilExtraScolaire(const TContexteDocument& contexte, int mois) {
  if (mois == 0) {
    TResultat resultat;
    resultat.Messages += u"Veuillez choisir un mois dans la liste déroulante"_s;
    return resultat;
  }
  const TPeriode bornes = BornesMois(mois, contexte.Eleves.AnneeScolaire);
  TRapport rapport(u"Accueil extrascolaire"_s, u"AccueilExtraScolaire"_s);
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  rapport.AjouterVariable(u"MoisReleve",
                          NomMoisCourant(mois) % u' ' % QString::number(DecodeDate(bornes.Premier).Annee));
  for (TDateTime date = bornes.Premier; date <= bornes.Dernier; ++date)
    if (JourLundi1(date) > 5) rapport.AjouterVariable(Case(date), u"C"_s);
  TArbreRapport arbre;
  for (const TSectionAccueil& section : kSections)
    arbre.push_back(NoeudSection(contexte.Eleves, section, bornes));
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}
