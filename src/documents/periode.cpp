#include "documents/periode.h"

#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

struct TTextesMois {
  const char* Nom;
  const char* DuMois;
};

constexpr TTextesMois kTextes[] = {
    {"Janvier", "du mois de janvier"},
    {"Février", "du mois de février"},
    {"Mars", "du mois de mars"},
    {"Avril", "du mois d'avril"},
    {"Mai", "du mois de mai"},
    {"Juin", "du mois de juin"},
    {"Juillet", "du mois de juillet"},
    {"Août", "du mois d'août"},
    {"Septembre", "du mois de septembre"},
    {"Octobre", "du mois d'octobre"},
    {"Novembre", "du mois de novembre"},
    {"Décembre", "du mois de décembre"},
};

bool EstUnMois(int mois) { return mois >= 1 && mois <= 12; }

}  // namespace

QString NomMois(int mois) { return QString::fromUtf8(kTextes[mois - 1].Nom); }

QString TexteDuMois(int mois) { return QString::fromUtf8(kTextes[mois - 1].DuMois); }

bool TPeriodeDocument::Commence(int mois) const {
  return EstUnMois(mois) && MoisDebuteDansPeriode(mois, Annee, DateDebut, DateFin);
}

bool TPeriodeDocument::Contient(int mois) const {
  return EstUnMois(mois) && MoisDansPeriode(mois, Annee, DateDebut, DateFin);
}

QString TPeriodeDocument::PeriodeTexte() const {
  if (const int mois = MoisFacture()) {
    // The text of July and August names the year in which the school year begins, although their
    // bounds lie in the next.
    const int annee = mois >= 7 ? Annee : Annee + 1;
    return TexteDuMois(mois) % u' ' % QString::number(annee);
  }
  if (EstAnneeComplete(Annee, DateDebut, DateFin))
    return u"de l'année scolaire %1 - %2"_s.arg(Annee).arg(Annee + 1);
  return u"du " % FormatDateLongue(DateDebut) % u" au " % FormatDateLongue(DateFin);
}
