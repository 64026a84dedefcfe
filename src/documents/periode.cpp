#include "documents/periode.h"

#include "core/formats.h"
#include "core/mois.h"

using namespace Qt::StringLiterals;

namespace {

bool EstUnMois(int mois) { return mois >= 1 && mois <= 12; }

}  // namespace

QString FautePeriode(const TPeriode& periode) {
  return periode.Premier > periode.Dernier ? u"La première date est après la seconde."_s : QString();
}

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
  if (EstAnneeComplete(Annee, DateDebut, DateFin)) return u"de l'année scolaire " % AnneeEnTexte(Annee);
  return u"du " % FormatDateLongue(DateDebut) % u" au " % FormatDateLongue(DateFin);
}
