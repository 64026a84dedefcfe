#include "documents/accueil_one.h"

#include <algorithm>
#include <array>
#include <functional>

#include "core/formats.h"
#include "core/mois.h"
#include "core/parametres.h"
#include "documents/comptes_one.h"
#include "documents/entete_ecole.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kCases = 25;  // of a month: five weeks of working days
constexpr int kVendredi = 5;
constexpr int kMercredi = 3;
/// The site that is on no form.
constexpr QStringView kSiteExclu = u"6103";

/// The totals of a place of care.
struct TTotauxOne {
  int Maternelle = 0;
  int Primaire = 0;
  int Eleves = 0;
  int Mercredi = 0;
  int Trimestre = 0;

  TTotauxOne& operator+=(const TTotauxOne& a) {
    Maternelle += a.Maternelle;
    Primaire += a.Primaire;
    Eleves += a.Eleves;
    Mercredi += a.Mercredi;
    Trimestre += a.Trimestre;
    return *this;
  }
};

constexpr struct {
  const char16_t* Nom;
  int TTotauxOne::*Total;
} kTotaux[] = {
    {u"TOTMATERNEL", &TTotauxOne::Maternelle},   {u"TOTPRIMAIRE", &TTotauxOne::Primaire},
    {u"TOTALELEVE", &TTotauxOne::Eleves},        {u"TOTALMERCREDI", &TTotauxOne::Mercredi},
    {u"TOTALTRIMESTRE", &TTotauxOne::Trimestre},
};

/// `ecrire` takes each name with `suffixe` behind it, and its number.
template <class TEcrire>
void EcrireTotaux(const TTotauxOne& totaux, const QString& suffixe, TEcrire ecrire) {
  for (const auto& [nom, total] : kTotaux) ecrire(QString(nom % suffixe), QString::number(totaux.*total));
}

/// The three months of a quarter, a box a working day.
class TGrilleOne {
 public:
  using TEcrire = std::function<void(const QString& nom, const QString& valeur)>;
  TGrilleOne(const TComptesJours& jours, TEcrire ecrire) : jours_(jours), ecrire_(std::move(ecrire)) {}

  void Remplir(const TPeriode& trimestre);

  int Mercredis = 0;
  int Total = 0;

 private:
  void CommencerMois(TDateTime premier);
  void FinirMois() const { ecrire_(u"TOTALM" % QString::number(mois_), QString::number(totalMois_)); }
  void Jour(TDateTime date);

  const TComptesJours& jours_;
  TEcrire ecrire_;
  int mois_ = 0;
  int case_ = 0;
  int totalMois_ = 0;
  std::array<int, kCases> totaux_{};
};

// A month that starts on a weekend starts in the first box.
void TGrilleOne::CommencerMois(TDateTime premier) {
  ++mois_;
  totalMois_ = 0;
  const int jour = JourLundi1(premier);
  case_ = jour <= kVendredi ? jour : 1;
  ecrire_(u"Mois" % QString::number(mois_), NomMoisCourant(DecodeDate(premier).Mois));
}

void TGrilleOne::Jour(TDateTime date) {
  const auto trouve = jours_.find(date);
  const int nombre = trouve == jours_.end() ? 0 : trouve->second;
  const QString place = QString::number(mois_) % u'J' % QString::number(case_);
  ecrire_(u"DATM" % place, QString::number(DecodeDate(date).Jour));
  ecrire_(u"TOTM" % place, QString::number(nombre));
  totalMois_ += nombre;
  totaux_.at(static_cast<std::size_t>(case_ - 1)) += nombre;
  if (JourLundi1(date) == kMercredi) Mercredis += nombre;
  ++case_;
}

void TGrilleOne::Remplir(const TPeriode& trimestre) {
  for (TDateTime date = trimestre.Premier; date <= trimestre.Dernier; ++date) {
    if (DecodeDate(date).Jour == 1) {
      if (mois_ > 0) FinirMois();
      CommencerMois(date);
    }
    if (JourLundi1(date) <= kVendredi) Jour(date);
  }
  FinirMois();
  for (std::size_t i = 0; i < kCases; ++i) {
    ecrire_(u"TOTALJ" % QString::number(i + 1), QString::number(totaux_[i]));
    Total += totaux_[i];
  }
}

using TCompterEnfants = std::function<TEnfantsOne(const TPeriode&)>;

/// The children of the quarter, or those of its busiest day (the earliest of several).
void CompterEnfantsDu(const TPeriode& trimestre, const TComptesJours& jours, bool maximumParJour,
                      const TCompterEnfants& compter, TTotauxOne& totaux) {
  TPeriode periode = trimestre;
  if (maximumParJour) {
    const auto plein = std::ranges::max_element(jours, {}, [](const auto& jour) { return jour.second; });
    if (plein == jours.end()) return;
    totaux.Eleves = plein->second;
    periode = {plein->first, plein->first};
  }
  const TEnfantsOne enfants = compter(periode);
  totaux.Maternelle = enfants.Maternelle;
  totaux.Primaire = enfants.Primaire;
  if (!maximumParJour) totaux.Eleves = enfants.Maternelle + enfants.Primaire;
}

/// Grid and counts of a place under their plain names.
TTotauxOne RemplirLieu(const TPeriode& trimestre, const TComptesJours& jours, bool maximumParJour,
                       const TCompterEnfants& compter, const TGrilleOne::TEcrire& ecrire) {
  TTotauxOne totaux;
  TGrilleOne grille(jours, ecrire);
  grille.Remplir(trimestre);
  totaux.Mercredi = grille.Mercredis;
  totaux.Trimestre = grille.Total;
  CompterEnfantsDu(trimestre, jours, maximumParJour, compter, totaux);
  EcrireTotaux(totaux, {}, ecrire);
  return totaux;
}

void AjouterVariables(TRapport& rapport, const TParametres& parametres, int trimestre, int annee) {
  using enum TParam;
  static constexpr TVariableParametre kVariables[] = {
      {u"NomEcole", NomEcole},
      {u"Implantation", NomImplantation},
      {u"NomDirection", NomDirection},
      {u"PrenomDirection", PrenomDirection},
      {u"TitreDirection", TitreDirection},
      {u"EmailEcole", EmailEcole},
      {u"TelEcole", TelephoneEcole},
      {u"HeureFinLMJV", HeureFinLMJV},
      {u"MinuteFinLMJV", MinuteFinLMJV},
      {u"HeureFinMercredi", HeureFinMercredi},
      {u"MinuteFinMercredi", MinuteFinMercredi},
  };
  rapport.AjouterVariable(u"ADRESSE", parametres.GetParametre(RueEcole) % u' ' %
                                          parametres.GetParametre(CodePostalEcole) % u' ' %
                                          parametres.GetParametre(LocaliteEcole));
  AjouterParametres(rapport, parametres, kVariables);
  rapport.AjouterVariable(u"Trimestre", QString::number(trimestre) % (trimestre == 1 ? u"er" : u"e"));
  rapport.AjouterVariable(u"Annee", QString::number(annee));
}

/// The whole school: all is in the variables, and the page prints once.
TArbreRapport UnLieu(const TContexteDocument& contexte, const TPeriode& trimestre, bool maximumParJour,
                     TRapport& rapport) {
  TDataModule1& base = contexte.Eleves.BaseDeDonnees();
  RemplirLieu(
      trimestre, CompterJours(base, trimestre), maximumParJour,
      [&](const TPeriode& periode) { return CompterEnfants(base, periode); },
      [&](const QString& nom, const QString& valeur) { rapport.AjouterVariable(nom, valeur); });
  return TArbreRapport(1);
}

/// A page a site; their counts, and the sums, are also variables.
TArbreRapport PlusieursLieux(const TContexteDocument& contexte, const TPeriode& trimestre,
                             bool maximumParJour, TRapport& rapport) {
  TDataModule1& base = contexte.Eleves.BaseDeDonnees();
  const auto jours = CompterJoursParSite(base, trimestre);
  const auto variable = [&](const QString& nom, const QString& valeur) {
    rapport.AjouterVariable(nom, valeur);
  };
  TArbreRapport arbre;
  TTotauxOne somme;
  for (const TImplantation& site : *contexte.Eleves.Implantations) {
    const QString code = CodeSite(site.Code);
    if (code == kSiteExclu) continue;
    const QString nom = contexte.Eleves.LibelleImplantation(site.Code);
    TValeurs& valeurs = arbre.emplace_back(nom).Valeurs;
    valeurs.Ecrire(u"TitreLieu",
                   contexte.Parametres.GetParametre(TParam::NomEcole) % u" - Implantation " % nom);
    valeurs.Ecrire(u"AdresseLieu", site.AdresseComplete());
    const TTotauxOne totaux = RemplirLieu(
        trimestre, jours.value(code), maximumParJour,
        [&](const TPeriode& periode) {
          return CompterEnfantsParSite(base, periode, contexte.Eleves.AnneeScolaire).value(code);
        },
        [&](const QString& nom, const QString& valeur) { valeurs.Ecrire(nom, valeur); });
    const QString suffixe = QString::number(arbre.size());
    EcrireTotaux(totaux, suffixe, variable);
    variable(u"Implantation" % suffixe, site.LibelleCourt);
    variable(u"Adresse" % suffixe, site.AdresseComplete());
    somme += totaux;
  }
  EcrireTotaux(somme, u"GLOBAL"_s, variable);
  variable(u"TOTALGENERAL"_s, QString::number(somme.Trimestre));
  return arbre;
}

}  // namespace

TResultat AccueilOne(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  const bool plusieurs = contexte.Parametres.Regles().PlusieursImplantations;
  const bool maximumParJour = contexte.Parametres.EstVrai(TParam::MaximumParJour);
  const TDateTime debut = demande.Periode.DateDebut;
  const int trimestre = Trimestre(debut);
  const int annee = DecodeDate(debut).Annee;
  const TPeriode bornes = BornesTrimestre(trimestre, annee);
  TRapport rapport(u"Document O.N.E."_s, plusieurs ? u"ONEMulti"_s : u"ONE"_s);
  AjouterVariables(rapport, contexte.Parametres, trimestre, annee);
  if (maximumParJour) rapport.AjouterVariable(u"MaximumParJour", u"1"_s);
  TArbreRapport arbre = plusieurs ? PlusieursLieux(contexte, bornes, maximumParJour, rapport)
                                  : UnLieu(contexte, bornes, maximumParJour, rapport);
  return Presenter(std::move(rapport), std::move(arbre), TexteRienAImprimer());
}
