#include "screens/payments/frm_paiement.h"

#include "core/mois.h"
#include "services/frais_eleve.h"
#include "workflows/repartition.h"

namespace {

using T = TPaiementSaisi;

QStringList Groupes() {
  QStringList noms{QString()};
  for (const TGroupeFrais& groupe : *Globals.GroupesFrais) noms += groupe.Libelle;
  return noms;
}

int IndexDuGroupe(int id) {
  for (int i = 0; i < Globals.GroupesFrais->Count(); ++i)
    if ((*Globals.GroupesFrais)[i].Id == id) return i + 1;
  return 0;
}

TTableChamps<T> Table() {
  using enum TGenreChamp;
  return {
      {{.Nom = u"edLibelle"_s, .Libelle = u"Libellé du paiement:"_s, .Longueur = 200}, Membre(&T::Libelle)},
      {{.Nom = u"edMontant"_s,
        .Libelle = u"Montant du paiement:"_s,
        .Genre = Montant,
        .Obligatoire = true,
        .Refus = u"Le montant introduit est incorrect !"_s,
        .Unite = u"euros"_s},
       Membre(&T::Montant)},
      {{.Nom = u"cmbMois"_s, .Libelle = u"Imputé au mois de:"_s, .Genre = Choix, .Choix = NomsMoisScolaires},
       Membre(&T::IndexMois)},
      {{.Nom = u"rbTP"_s, .Libelle = u"Pour:"_s, .Genre = Choix, .Boutons = true, .Choix = FamillesPaiement},
       Membre(&T::Famille)},
      {{.Nom = u"cmbGroupePaiement"_s, .Libelle = u"Groupe de paiement:"_s, .Genre = Choix, .Choix = Groupes},
       Membre(&T::IndexGroupe)}};
}

}  // namespace

QStringList FamillesPaiement() { return {u"Général"_s, u"Frais"_s, u"Services"_s}; }

TFrmPaiement::TFrmPaiement(int indexMois) : TFrmDialogueDe(u"Ajout d'un paiement"_s, Table()) {
  Saisi.IndexMois = indexMois;
  Montrer();
  Champs().Taper(Champs().Indice(u"edMontant"_s), {});
}

TFrmPaiement::TFrmPaiement(const TFraisEleve& paiement)
    : TFrmDialogueDe(u"Modification d'un paiement"_s, Table()), paiement_(&paiement) {
  Saisi = {paiement.Remarque, paiement.MontantVerse, IndiceMoisScolaire(paiement.Mois),
           static_cast<int>(paiement.TypeFamilleFrais), IndexDuGroupe(paiement.GroupeFraisId)};
  Montrer();
}

bool TFrmPaiement::Controler() {
  if (paiement_ == nullptr) return true;
  const QString refus = RefusMouvement(*paiement_, Saisi.Montant);
  return refus.isEmpty() || Champs().Refuser(u"edMontant"_s, refus);
}

void TFrmPaiement::EcrireDans(TFraisEleve& paiement) const {
  paiement.Remarque = Saisi.Libelle;
  paiement.MontantVerse = Saisi.Montant;
  if (Saisi.IndexMois >= 0) paiement.Mois = kMoisScolaires[static_cast<std::size_t>(Saisi.IndexMois)];
  paiement.TypeFamilleFrais = static_cast<TTypeFamilleFrais>(Saisi.Famille);
  const bool perdu = paiement.GroupeFraisId > 0 && IndexDuGroupe(paiement.GroupeFraisId) == 0;
  if (Saisi.IndexGroupe > 0)
    paiement.GroupeFraisId = (*Globals.GroupesFrais)[Saisi.IndexGroupe - 1].Id;
  else if (!perdu)
    paiement.GroupeFraisId = 0;
}
