#include "services/activites.h"

#include "core/query_internal.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TActivite> kColonnesActivites[] = {
    Texte<&TActivite::Libelle>("LIBELLE"),    Heure<&TActivite::HeureDebut>("HEURE_DEBUT"),
    Heure<&TActivite::HeureFin>("HEURE_FIN"), Date<&TActivite::DateDebut>("DATE_DEBUT"),
    Date<&TActivite::DateFin>("DATE_FIN"),
};

template <std::size_t Rang>
constexpr TColonne<TActiviteEleve> Jour(const char* nom) {
  using T = TActiviteEleve;
  return {nom, [](T& o, TCurseur& l, const char* n) { o.FlgJours[Rang] = l.EstVrai(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireOuiNon(n, o.FlgJours[Rang]); }};
}

constexpr TColonne<TActiviteEleve> kColonnesInscriptions[] = {
    Entier<&TActiviteEleve::EleveId>("ELEVE_ID"),
    Entier<&TActiviteEleve::ActiviteId>("ACTIVITE_ID"),
    Jour<0>("FLG_LUNDI"),
    Jour<1>("FLG_MARDI"),
    Jour<2>("FLG_MERCREDI"),
    Jour<3>("FLG_JEUDI"),
    Jour<4>("FLG_VENDREDI"),
};

}  // namespace

TActivites::TActivites(TDataModule1& base, int annee) : TCollection(base), annee_(annee) { Charger(); }

void TActivites::DefineQuery() {
  SelectSql = u"SELECT * FROM ACTIVITES WHERE ANNEE_SCOLAIRE = " % QString::number(annee_);
  TableName = u"ACTIVITES"_s;
  KeyField = "ACTIVITE_ID";
  CounterName = u"ACTIVITES"_s;
  Colonnes = kColonnesActivites;
  Communes = {{"ANNEE_SCOLAIRE", annee_}};
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
  Colonnes = kColonnesInscriptions;
}

// Those that another workstation has added meanwhile too.
void TActivitesEleves::Reprendre(int ancienne, int nouvelle) {
  TQueryInternal(Base(),
                 u"UPDATE ACTIVITES_ELEVES SET ACTIVITE_ID = :nouvelle WHERE ACTIVITE_ID = :ancienne"_s)
      .Parametre(u"nouvelle"_s, nouvelle)
      .Parametre(u"ancienne"_s, ancienne)
      .Executer();
  for (TActiviteEleve& inscription : *this)
    if (inscription.ActiviteId == ancienne) inscription.ActiviteId = nouvelle;
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
    trouve.Activite = activites_.ParCle(inscription->ActiviteId);
    if (trouve.Activite == nullptr || !inscription->SuitLe(date)) continue;
    if (trouve.Activite->DateDebut <= date && date <= trouve.Activite->DateFin) {
      trouve.Inscription = inscription;
      break;
    }
  }
  return trouve;
}
