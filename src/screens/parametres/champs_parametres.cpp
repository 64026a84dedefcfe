#include "screens/parametres/champs_parametres.h"

#include <algorithm>

#include "core/exceptions.h"
#include "screens/commun/refus.h"

using namespace Qt::StringLiterals;

namespace {

TGenreChamp GenreDuChamp(TGenreParam genre) {
  switch (genre) {
    case TGenreParam::Lignes:
      return TGenreChamp::Lignes;
    case TGenreParam::Montant:
      return TGenreChamp::TexteMontant;
    case TGenreParam::OuiNon:
      return TGenreChamp::Coche;
    case TGenreParam::Secret:
      return TGenreChamp::Secret;
    default:
      return TGenreChamp::Texte;
  }
}

}  // namespace

TChampDe<TParametres> Reglage(TParam param, TChamp champ) {
  champ.Genre = GenreDuChamp(Regles(param).Genre);
  if (champ.Genre == TGenreChamp::Coche)
    return {std::move(champ),
            {[param](const TParametres& p) { return static_cast<int>(p.EstVrai(param)); },
             [param](TParametres& p, const TValeurVue& valeur) {
               p.SetParametre(param, ValeurEn<int>(valeur) == 1 ? u"1"_s : u"0"_s);
             }}};
  champ.Longueur = kParametreMaximum;
  return {std::move(champ),
          {[param](const TParametres& p) { return p.GetParametre(param); },
           [param](TParametres& p, const TValeurVue& valeur) {
             p.SetParametre(param, ValeurEn<QString>(valeur).trimmed());
           }}};
}

TChampDe<TParametres> ReglageChoix(TParam param, const QStringList& valeurs, TChamp champ) {
  champ.Genre = TGenreChamp::Choix;
  return {std::move(champ),
          {[param, valeurs](const TParametres& p) {
             return std::max(0, static_cast<int>(valeurs.indexOf(p.GetParametre(param))));
           },
           [param, valeurs](TParametres& p, const TValeurVue& valeur) {
             p.SetParametre(param, valeurs.value(ValeurEn<int>(valeur)));
           }}};
}

TChampsParametres::TChampsParametres(TContexteEcran& contexte, TTableChamps<TParametres> table)
    : TChampsDe(std::move(table), Aussitot), contexte_(contexte) {
  EcrireToujours = true;
  SurEnregistrer = [this](const TChamp& champ) { Enregistrer(champ); };
  refus_ = AnnoncerRefus(*this, contexte.Principal);
}

void TChampsParametres::Sauver() {
  try {
    Globals.Parametres->Save();
  } catch (...) {
    Globals.Parametres->Remettre();
    throw;
  }
}

void TChampsParametres::Enregistrer(const TChamp& champ) {
  if (Avant) Avant(champ);
  Sauver();
  const int indice = Indice(champ.Nom);
  if (Lire(indice) == Valeur(indice)) return;  // nothing was typed: nothing to tell
  const QString nom = NomDuChamp(champ);
  const QString avis = Avis ? Avis(champ, TexteDuChamp(champ, Lire(indice))) : QString();
  if (avis.isEmpty())
    contexte_.Principal.Etat(TNiveauEtat::Succes, u"Enregistré : " % nom);
  else
    contexte_.Principal.Etat(TNiveauEtat::Alerte, nom % u" : " % avis);
}
