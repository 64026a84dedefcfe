#include "attendance/presences_particulieres.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TPresenceParticuliere> kColonnes[] = {
    Entier<&TPresenceParticuliere::EleveId>("ELEVE_ID"),
    Entier<&TPresenceParticuliere::TypePresence>("TYPE_PRESENCE"),
    Entier<&TPresenceParticuliere::Mois>("MOIS"),
    Entier<&TPresenceParticuliere::Annee>("ANNEE"),
};

}  // namespace

TPresencesParticulieres::TPresencesParticulieres(TDataModule1& base, int annee)
    : TCollection(base), annee_(annee) {
  Charger();
}

void TPresencesParticulieres::DefineQuery() {
  SelectSql = u"SELECT * FROM PRESENCES_PARTICULIERES WHERE (ANNEE = " % QString::number(annee_) %
              u" AND MOIS > 6) OR (ANNEE = " % QString::number(annee_ + 1) %
              u" AND MOIS < 7) ORDER BY MOIS, ANNEE";
  TableName = u"PRESENCES_PARTICULIERES"_s;
  KeyField = "PRESENCEPARTICULIERE_ID";
  CounterName = u"PRESENCES_PARTICULIERES"_s;
  Colonnes = kColonnes;
}

void TPresencesParticulieres::AjouteMarque(std::unique_ptr<TPresenceParticuliere> marque) {
  switch (marque->TypePresence) {
    case TTypeMarque::Midi:
    case TTypeMarque::Etude:
    case TTypeMarque::Forfait:
      if (Marque(marque->TypePresence, marque->EleveId, marque->Mois) == nullptr) Add(std::move(marque));
  }
}

// The year is not looked at: the load has kept to one school year.
TPresenceParticuliere* TPresencesParticulieres::Marque(TTypeMarque type, int eleve, int mois) const {
  for (TPresenceParticuliere* marque : parEleve_.Tous(eleve))
    if (marque->TypePresence == type && marque->Mois == mois) return marque;
  return nullptr;
}

void TPresencesParticulieres::RetireMarque(TTypeMarque type, int eleve, int mois) {
  if (TPresenceParticuliere* marque = Marque(type, eleve, mois)) Remove(*marque);
}
