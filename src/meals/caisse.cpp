#include "meals/caisse.h"

#include "core/curseur.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

TCaisse LireCaisse(TDataModule1& base, TDateTime jour) {
  QString sommes;
  for (const TCoupure& c : Coupures()) sommes += u", SUM(D.%1) %1"_s.arg(QLatin1String(c.Colonne));
  TCurseur ligne(base, u"SELECT SUM(P.MONTANT) MONTANT" % sommes %
                           u" FROM REPAS_PAIEMENT P LEFT JOIN DETAIL_PAIEMENT_LIQUIDE D ON "
                           "D.REPAS_PAIEMENT_ID = P.REPAS_PAIEMENT_ID WHERE P.TYPE_PAIEMENT = 0 AND "
                           "P.DATE_PAIEMENT = " %
                           FormatDateSql(jour));
  TCaisse caisse;
  if (!ligne.Suivant()) return caisse;
  for (std::size_t i = 0; i < kNombreCoupures; ++i) caisse.Comptage[i] = ligne.Entier(kCoupures[i].Colonne);
  caisse.SansDetail = ligne.Montant("MONTANT") - Total(caisse.Comptage);
  return caisse;
}
