#include "screens/commun/nom_de_liste.h"

#include "application/globals.h"
#include "core/mois.h"
#include "pupils/eleves.h"

namespace {

QString MoisEtAnnee(int mois, int annee) { return NomMoisCourant(mois) % u' ' % QString::number(annee); }

}  // namespace

QStringList NomDeListe(const QString& qui, int mois) {
  if (Globals.Eleves == nullptr) return {qui};
  if (mois == 0) return {qui, AnneeEnTexte(Globals.Eleves->AnneeScolaire)};
  return {qui, MoisEtAnnee(mois, Globals.Eleves->AnneeDuMois(mois))};
}

QStringList NomDeListeDu(const QString& qui, TDateTime jour) {
  const TJour date = DecodeDate(jour);
  return {qui, MoisEtAnnee(date.Mois, date.Annee)};
}
