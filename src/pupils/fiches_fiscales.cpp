#include "pupils/fiches_fiscales.h"

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TFicheNumerotee> kColonnes[] = {
    Entier<&TFicheNumerotee::EleveId>("ELEVE_ID"),
    Entier<&TFicheNumerotee::Responsable>("RESPONSABLE"),
};

}  // namespace

TFichesNumerotees::TFichesNumerotees(TDataModule1& base, int anneeRevenus)
    : TCollection(base), annee_(anneeRevenus) {
  Charger();
}

void TFichesNumerotees::DefineQuery() {
  SelectSql = u"SELECT * FROM FICHE_FISCALE WHERE ANNEE_REVENUS = " % QString::number(annee_);
  TableName = u"FICHE_FISCALE"_s;
  KeyField = "FICHE_FISCALE_ID";
  CounterName = u"FICHE_FISCALE"_s;
  Colonnes = kColonnes;
  Communes = {{"ANNEE_REVENUS", annee_}};
}

const TFicheNumerotee* TFichesNumerotees::Trouver(int eleveId, int responsable) const {
  for (const TFicheNumerotee& fiche : *this)
    if (fiche.EleveId == eleveId && fiche.Responsable == responsable) return &fiche;
  return nullptr;
}

int TFichesNumerotees::Numero(int eleveId, int responsable) {
  const TFicheNumerotee* fiche = Trouver(eleveId, responsable);
  if (fiche != nullptr) return fiche->Id;
  try {
    Donner(eleveId, responsable);
  } catch (const EDistributor&) {
    // Another workstation may have given it since the load: the table takes one only.
    const TFichesNumerotees relues(Base(), annee_);
    if (const TFicheNumerotee* leur = relues.Trouver(eleveId, responsable)) return leur->Id;
    throw;
  }
  return Trouver(eleveId, responsable)->Id;
}

void TFichesNumerotees::Donner(int eleveId, int responsable) {
  auto fiche = std::make_unique<TFicheNumerotee>();
  fiche->EleveId = eleveId;
  fiche->Responsable = responsable;
  const TFicheNumerotee& place = Add(std::move(fiche));
  try {
    Save();
    if (place.Status == TStatus::Nouveau)
      throw EDistributor(u"Aucun numéro n'a pu être donné à la fiche fiscale."_s);
  } catch (const EDistributor&) {
    Remettre();
    throw;
  }
}
