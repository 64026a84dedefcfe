#include "attendance/presences_particulieres.h"

using namespace Qt::StringLiterals;

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
}

void TPresencesParticulieres::LoadItems(TCurseur& ligne) {
  TPresenceParticuliere& marque = Nouveau(ligne);
  marque.EleveId = ligne.Entier("ELEVE_ID");
  marque.TypePresence = static_cast<TTypeMarque>(ligne.Entier("TYPE_PRESENCE"));
  marque.Mois = ligne.Entier("MOIS");
  marque.Annee = ligne.Entier("ANNEE");
}

void TPresencesParticulieres::StoreRecord(const TPresenceParticuliere& marque, TLigne& ligne) const {
  ligne.Ecrire("ELEVE_ID", marque.EleveId);
  ligne.Ecrire("TYPE_PRESENCE", static_cast<int>(marque.TypePresence));
  ligne.Ecrire("MOIS", marque.Mois);
  ligne.Ecrire("ANNEE", marque.Annee);
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
