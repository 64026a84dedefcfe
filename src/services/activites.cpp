#include "services/activites.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char*, 5> kColonnesJours{"FLG_LUNDI", "FLG_MARDI", "FLG_MERCREDI", "FLG_JEUDI",
                                                    "FLG_VENDREDI"};

}  // namespace

TActivites::TActivites(TDataModule1& base, int annee) : TCollection(base), annee_(annee) { Charger(); }

void TActivites::DefineQuery() {
  SelectSql = u"SELECT * FROM ACTIVITES WHERE ANNEE_SCOLAIRE = " % QString::number(annee_);
  TableName = u"ACTIVITES"_s;
  KeyField = "ACTIVITE_ID";
  CounterName = u"ACTIVITES"_s;
}

void TActivites::LoadItems(TCurseur& ligne) {
  TActivite& activite = Nouveau(ligne);
  activite.Libelle = ligne.Texte("LIBELLE");
  activite.HeureDebut = ligne.Heure("HEURE_DEBUT");
  activite.HeureFin = ligne.Heure("HEURE_FIN");
  activite.DateDebut = ligne.Date("DATE_DEBUT");
  activite.DateFin = ligne.Date("DATE_FIN");
}

void TActivites::StoreRecord(const TActivite& activite, TLigne& ligne) const {
  ligne.Ecrire("LIBELLE", activite.Libelle);
  ligne.Ecrire("ANNEE_SCOLAIRE", annee_);
  ligne.EcrireHeure("HEURE_DEBUT", activite.HeureDebut);
  ligne.EcrireHeure("HEURE_FIN", activite.HeureFin);
  ligne.EcrireDate("DATE_DEBUT", activite.DateDebut);
  ligne.EcrireDate("DATE_FIN", activite.DateFin);
}

TActivite* TActivites::ActiviteParId(int id) const {
  for (TActivite& activite : *this)
    if (activite.Id == id) return &activite;
  return nullptr;
}

bool TActiviteEleve::SuitLe(TDateTime date) const {
  const auto jour = static_cast<std::size_t>(JourLundi1(date) - 1);
  return jour < FlgJours.size() && FlgJours[jour];
}

TActivitesEleves::TActivitesEleves(TDataModule1& base, const TActivites& activites)
    : TCollection(base), activites_(activites) {
  Charger();
}

void TActivitesEleves::DefineQuery() {
  SelectSql = u"SELECT * FROM ACTIVITES_ELEVES"_s;
  TableName = u"ACTIVITES_ELEVES"_s;
  KeyField = "ACTIVITE_ELEVE_ID";
  CounterName = u"ACTIVITES_ELEVES"_s;
}

void TActivitesEleves::LoadItems(TCurseur& ligne) {
  TActiviteEleve& inscription = Nouveau(ligne);
  inscription.EleveId = ligne.Entier("ELEVE_ID");
  inscription.ActiviteId = ligne.Entier("ACTIVITE_ID");
  for (std::size_t jour = 0; jour < kColonnesJours.size(); ++jour)
    inscription.FlgJours[jour] = ligne.EstVrai(kColonnesJours[jour]);
}

void TActivitesEleves::StoreRecord(const TActiviteEleve& inscription, TLigne& ligne) const {
  ligne.Ecrire("ELEVE_ID", inscription.EleveId);
  ligne.Ecrire("ACTIVITE_ID", inscription.ActiviteId);
  for (std::size_t jour = 0; jour < kColonnesJours.size(); ++jour)
    ligne.EcrireOuiNon(kColonnesJours[jour], inscription.FlgJours[jour]);
}

TActiviteEleve* TActivitesEleves::ActivitesEleve(int eleve) const { return parEleve_.Premier(eleve); }

TActiviteEleve* TActivitesEleves::ActiviteEleveParCle(int eleve, int activite) const {
  for (TActiviteEleve* inscription : parEleve_.Tous(eleve))
    if (inscription->ActiviteId == activite) return inscription;
  return nullptr;
}

TActiviteEleve* TActivitesEleves::ActiviteDuJour(int eleve, TDateTime date) const {
  TActiviteEleve* derniere = nullptr;
  for (TActiviteEleve* inscription : parEleve_.Tous(eleve))
    if (inscription->SuitLe(date)) derniere = inscription;
  return derniere;
}

TActiviteEnCours TActivitesEleves::ActiviteEnCours(int eleve, TDateTime date) const {
  TActiviteEnCours trouve;
  for (TActiviteEleve* inscription : parEleve_.Tous(eleve)) {
    trouve.Activite = activites_.ActiviteParId(inscription->ActiviteId);
    if (trouve.Activite == nullptr || !inscription->SuitLe(date)) continue;
    if (trouve.Activite->DateDebut <= date && date <= trouve.Activite->DateFin) {
      trouve.Inscription = inscription;
      break;
    }
  }
  return trouve;
}
