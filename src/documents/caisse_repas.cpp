#include "documents/caisse_repas.h"

#include "core/formats.h"
#include "core/parametres.h"
#include "forms/grille.h"
#include "meals/caisse.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

TGrille GrilleCaisse(const TCaisse& caisse) {
  TGrille grille(
      {{u"Coupure"_s, 200}, {u"Nombre"_s, 90, TGenre::Entier}, {u"Montant"_s, 110, TGenre::Montant}});
  for (std::size_t i = 0; i < kNombreCoupures; ++i)
    grille.Ajouter({QString::fromUtf16(kCoupures[i].Libelle), caisse.Comptage[i],
                    Currency::Brut(kCoupures[i].Centimes * 100LL) * caisse.Comptage[i]});
  if (caisse.SansDetail != Currency()) grille.Ajouter({u"Sans détail"_s, {}, caisse.SansDetail});
  grille.Ajouter({u"Total"_s, {}, caisse.Montant()});
  return grille;
}

}  // namespace

TResultat CaisseDesRepas(const TContexteDocument& contexte, TDateTime jour) {
  TRapport rapport(u"Caisse des repas"_s, u"RepDynamicFromListviewPortrait"_s);
  rapport.AjouterVariable(u"NomRapportSSTitre", FormatJourLong(jour));
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  rapport.ChargerColonnesListe(GrilleCaisse(LireCaisse(contexte.Eleves.BaseDeDonnees(), jour)));
  TResultat resultat;
  resultat.Rapports.push_back(std::move(rapport));
  return resultat;
}

TResultat CaisseDesRepas(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return CaisseDesRepas(contexte, demande.Jour);
}
