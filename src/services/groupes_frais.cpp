#include "services/groupes_frais.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TGroupeFrais> kColonnes[] = {
    Texte<&TGroupeFrais::Libelle>("LIBELLE"),
};

}  // namespace

int TGroupeFrais::DetailsPaiement(TDetails& details, int eleve) {
  if (!lus_ && base_ != nullptr) {
    paiements_.clear();  // of a reading that failed half-way
    TCurseur ligne(*base_,
                   u"SELECT ELEVE_ID, REMARQUE, MONTANT_VERSE FROM FRAIS_ELEVE WHERE GROUPE_FRAIS_ID=" %
                       QString::number(Id));
    while (ligne.Suivant())
      paiements_.push_back(
          {ligne.Entier("ELEVE_ID"), ligne.Texte("REMARQUE"), ligne.Montant("MONTANT_VERSE")});
    lus_ = true;
  }
  details.clear();
  for (const TGroupeFraisDetailPaiement& paiement : paiements_)
    if (paiement.EleveId == eleve) details.push_back(&paiement);
  return static_cast<int>(details.size());
}

Currency TGroupeFrais::TotalPaiement(int eleve) {
  TDetails details;
  DetailsPaiement(details, eleve);
  Currency total;
  for (const TGroupeFraisDetailPaiement* paiement : details) total += paiement->MontantVerse;
  return total;
}

TGroupesFrais::TGroupesFrais(TDataModule1& base) : TCollection(base) { Charger(); }

void TGroupesFrais::DefineQuery() {
  SelectSql = u"SELECT * FROM GROUPE_FRAIS"_s;
  TableName = u"GROUPE_FRAIS"_s;
  KeyField = "GROUPE_FRAIS_ID";
  CounterName = u"GROUPE_FRAIS"_s;
  Colonnes = kColonnes;
}

void TGroupesFrais::LibellesGroupes(std::vector<TLibelleGroupe>& libelles) const {
  libelles.clear();
  for (TGroupeFrais& groupe : *this) libelles.push_back({groupe.Libelle, &groupe});
}
