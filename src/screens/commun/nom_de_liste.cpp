#include "screens/commun/nom_de_liste.h"

#include "application/globals.h"
#include "core/mois.h"
#include "pupils/eleves.h"

QStringList NomDeListe(const QString& qui, int mois) {
  if (Globals.Eleves == nullptr) return {qui};
  if (mois == 0) return {qui, AnneeEnTexte(Globals.Eleves->AnneeScolaire)};
  return {qui, NomMoisCourant(mois) % u' ' % QString::number(Globals.Eleves->AnneeDuMois(mois))};
}
