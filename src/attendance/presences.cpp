#include "attendance/presences.h"

#include <algorithm>

#include "core/conversions.h"
#include "core/formats.h"
#include "services/tarifs_garderies.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TPresence> kColonnes[] = {
    Entier<&TPresence::EleveId>("ELEVE_ID"),        Entier<&TPresence::TypePresence>("TYPE_PRESENCE"),
    Date<&TPresence::DateReleve>("DATE_RELEVE"),    Heure<&TPresence::HeureEntree>("HEURE_ENTREE"),
    Heure<&TPresence::HeureSortie>("HEURE_SORTIE"), Texte<&TPresence::CodeImplantation>("CODE_IMPLANTATION"),
};

}  // namespace

TPresences::TPresences(TDataModule1& base, const TPeriode& periode, const TReglesEcole& regles)
    : TCollection(base), Regles(regles), periode_(periode) {
  Charger();
}

QString TPresences::Selection(const TPeriode& jours) {
  return u"SELECT * FROM PRESENCES WHERE DATE_RELEVE >= " % FormatDateSql(jours.Premier) %
         u" AND DATE_RELEVE <= " % FormatDateSql(jours.Dernier) % u" ORDER BY DATE_RELEVE, HEURE_ENTREE";
}

void TPresences::LireNouvelles(const TPeriode& jours) {
  TCurseur ligne(Base(), Selection({std::max(jours.Premier, periode_.Premier),
                                    std::min(jours.Dernier, periode_.Dernier)}));
  while (ligne.Suivant())
    if (ParCle(ligne.Entier(KeyField)) == nullptr) LoadItems(ligne);
}

void TPresences::DefineQuery() {
  SelectSql = Selection(periode_);
  TableName = u"PRESENCES"_s;
  KeyField = "PRESENCE_ID";
  CounterName = u"PRESENCES"_s;
  Colonnes = kColonnes;
}

void TPresences::Completer(TPresence& presence) {
  QString& site = presence.CodeImplantation;
  if (!site.isEmpty()) site = *sites_.insert(site);
}

// The index is made at the first look-up, so that opening a year does not pay for it.
const TIndexPresences& TPresences::Index() const {
  if (!indexe_) {
    index_.Reserver(static_cast<std::size_t>(Count()));
    for (TPresence& presence : *this) index_.Suivre(presence);
    indexe_ = true;
  }
  return index_;
}

void TPresences::Indexer(TPresence& presence) {
  if (indexe_) index_.Suivre(presence);
}

void TPresences::Desindexer(TPresence& presence) {
  if (indexe_) index_.Oublier(presence);
}

TPresence* TPresences::AjoutePresence(std::unique_ptr<TPresence> presence) {
  TPresence& p = *presence;
  if (ChercheDoublon(p.EleveId, p.DateReleve, p.HeureEntree, p.HeureSortie) != nullptr) return nullptr;
  const TTypeFamille famille = FamilleDe(p);
  TPresence* autre = AutrePresence(p.EleveId, &p, famille, p.DateReleve);
  if (autre == nullptr) return &TCollection::Add(std::move(presence));
  // The last exit of an evening wins over the earlier ones.
  const bool soir = GroupeDe(p.TypePresence) == TGroupe::Garderie && famille == TTypeFamille::Soir;
  if (soir && autre->HeureEntree == 0.0 && autre->HeureSortie < p.HeureSortie) {
    autre->HeureSortie = p.HeureSortie;
    Add(*autre);
  }
  return nullptr;
}

TPresence* TPresences::ChercheDoublon(int eleve, TDateTime date, TDateTime entree, TDateTime sortie) const {
  for (const auto& [jour, presence] : Index().Periode(eleve, date, date))
    if (presence->HeureEntree == entree && presence->HeureSortie == sortie) return presence;
  return nullptr;
}

TTypeFamille TPresences::FamilleDe(const TPresence& presence) const {
  if (Tarifs == nullptr) return TTypeFamille::Indefini;
  return Tarifs
      ->ChercheFamille(GroupeDe(presence.TypePresence), presence.HeureSortie, presence.HeureEntree,
                       presence.DateReleve)
      .Famille;
}

TPresence* TPresences::AutrePresence(int eleve, const TPresence* exclue, TTypeFamille famille,
                                     TDateTime date) const {
  for (const auto& [jour, presence] : Index().Periode(eleve, date, date))
    if (presence != exclue && FamilleDe(*presence) == famille) return presence;
  return nullptr;
}

bool TPresences::ExisteAutrePresence(int eleve, const TPresence* exclue, TTypeFamille famille,
                                     TDateTime date) const {
  return AutrePresence(eleve, exclue, famille, date) != nullptr;
}

std::vector<TPresence*> TPresences::PresencesEleve(int eleve, const TPeriode& periode) const {
  const auto entrees = Index().Periode(eleve, periode.Premier, periode.Dernier);
  std::vector<TPresence*> presences;
  presences.reserve(entrees.size());
  for (const auto& entree : entrees) presences.push_back(entree.Presence);
  // A load comes in the order of dates, but records added since stand at the end.
  if (!std::ranges::is_sorted(presences, {}, &TPresence::Rang))
    std::ranges::sort(presences, {}, &TPresence::Rang);
  return presences;
}

void TPresences::SetParametreService(TLigneParametreService ligne, TParametreService parametre) {
  parametre.ServiceHeureDebut = StrToTime(parametre.ServiceHeureDebutTexte);
  parametre.ServiceHeureFin = StrToTime(parametre.ServiceHeureFinTexte);
  tableParametreService_.at(static_cast<std::size_t>(ligne)) = std::move(parametre);
}
