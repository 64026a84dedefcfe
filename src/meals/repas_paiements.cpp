#include "meals/repas_paiements.h"

#include <algorithm>

#include "core/curseur.h"
#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kJoursAutour = 500;

using namespace Colonne;

constexpr TColonne<TRepasPaiement> kColonnes[] = {
    Entier<&TRepasPaiement::EleveId>("ELEVE_ID"),
    Montant<&TRepasPaiement::Montant>("MONTANT"),
    Entier<&TRepasPaiement::TypePaiement>("TYPE_PAIEMENT"),
    Date<&TRepasPaiement::DatePaiement>("DATE_PAIEMENT"),
    Texte<&TRepasPaiement::Remarque>("REMARQUE"),
    Reference<&TRepasPaiement::ExtraitId>("EXTRAIT_ID"),
    Reference<&TRepasPaiement::PersonnelId>("PERSONNEL_ID"),
};

/// The count of one note.
template <std::size_t I>
constexpr TColonne<TDetailPaiementLiquide> Nombre() {
  return {Coupures()[I].Colonne,
          [](TDetailPaiementLiquide& d, TCurseur& l, const char* n) { d.Comptage[I] = l.Entier(n); },
          [](const TDetailPaiementLiquide& d, TLigne& l, const char* n) { l.Ecrire(n, d.Comptage[I]); }};
}

template <std::size_t... I>
constexpr std::array<TColonne<TDetailPaiementLiquide>, kNombreCoupures + 1> ColonnesDetail(
    std::index_sequence<I...>) {
  return {Entier<&TDetailPaiementLiquide::RepasPaiementId>("REPAS_PAIEMENT_ID"), Nombre<I>()...};
}

constexpr auto kColonnesDetail = ColonnesDetail(std::make_index_sequence<kNombreCoupures>());

constexpr const char16_t* kTextes[] = {u"Paiement liquide", u"Virement", u"Paiement en ligne", u"Bancontact",
                                       u"Borne"};

/// A save leaves what has no key, or no row any more, as it was.
void ExigerEnregistre(const TBaseObject& objet) {
  if (objet.Status != TStatus::Inchange)
    throw EDistributor(u"Le paiement n'a pas pu être enregistré : les comptes sont relus. Recommencez."_s);
}

}  // namespace

QString Texte(TPaiementRepas type) {
  const auto i = static_cast<std::size_t>(type);
  return i < std::size(kTextes) ? QString::fromUtf16(kTextes[i]) : QString();
}

TDetailPaiementsLiquides::TDetailPaiementsLiquides(TDataModule1& base) : TCollection(base) { Charger(); }

void TDetailPaiementsLiquides::DefineQuery() {
  SelectSql = u"SELECT * FROM DETAIL_PAIEMENT_LIQUIDE"_s;
  TableName = u"DETAIL_PAIEMENT_LIQUIDE"_s;
  KeyField = "DETAIL_PAIEMENT_LIQUIDE_ID";
  CounterName = u"DETAIL_PAIEMENT_LIQUIDE"_s;
  Colonnes = kColonnesDetail;
}

TRepasPaiements::TRepasPaiements(TDataModule1& base, const TPeriode& periode)
    : TCollection(base), details_(base) {
  Lire({periode.Premier - kJoursAutour, periode.Dernier + kJoursAutour});
}

void TRepasPaiements::DefineQuery() {
  SelectSql = u"SELECT * FROM REPAS_PAIEMENT WHERE DATE_PAIEMENT >=" % FormatDateSql(periode_.Premier) %
              u" AND DATE_PAIEMENT <=" % FormatDateSql(periode_.Dernier) % u" ORDER BY REPAS_PAIEMENT_ID + 0";
  TableName = u"REPAS_PAIEMENT"_s;
  KeyField = "REPAS_PAIEMENT_ID";
  CounterName = u"REPAS_PAIEMENT"_s;
  Colonnes = kColonnes;
}

void TRepasPaiements::Indexer(TRepasPaiement& p) {
  parEleveJour_.Suivre(p, CleEleveJour(p.EleveId, p.DatePaiement));
  parEleve_.Suivre(p, p.EleveId);
}

void TRepasPaiements::Desindexer(TRepasPaiement& p) {
  parEleveJour_.Oublier(p);
  parEleve_.Oublier(p);
}

void TRepasPaiements::Lire(const TPeriode& periode) {
  periode_ = periode;
  Charger();
  lues_.push_back(periode);
}

// Cash is of the day of the clock, whichever year is shown.
void TRepasPaiements::LireJour(TDateTime jour) {
  const auto contient = [jour](const TPeriode& p) { return p.Premier <= jour && jour <= p.Dernier; };
  if (std::ranges::none_of(lues_, contient)) Lire({jour, jour});
}

Currency TRepasPaiements::RecuLe(int eleve, TDateTime jour) {
  LireJour(jour);
  return Recu(eleve, {jour, jour});
}

TRepasPaiement* TRepasPaiements::PaiementDu(int eleve, TDateTime jour, TPaiementRepas type) {
  LireJour(jour);
  for (TRepasPaiement* paiement : parEleveJour_.Tous(CleEleveJour(eleve, jour)))
    if (paiement->TypePaiement == type) return paiement;
  return nullptr;
}

Currency TRepasPaiements::Recu(int eleve, const TPeriode& periode) const {
  Currency recu;
  for (const TRepasPaiement* paiement : parEleve_.Tous(eleve))
    if (paiement->DatePaiement >= periode.Premier && paiement->DatePaiement <= periode.Dernier)
      recu += paiement->Montant;
  return recu;
}

bool TRepasPaiements::EstDepasse(int eleve, TDateTime jour) {
  TCurseur ligne(
      Base(),
      u"SELECT P.REPAS_PAIEMENT_ID PAIEMENT, P.MONTANT, D.* FROM REPAS_PAIEMENT P LEFT JOIN "
      "DETAIL_PAIEMENT_LIQUIDE D ON D.REPAS_PAIEMENT_ID = P.REPAS_PAIEMENT_ID WHERE P.DATE_PAIEMENT = " %
          FormatDateSql(jour) % u" AND P.ELEVE_ID = " % QString::number(eleve) %
          u" AND P.TYPE_PAIEMENT = 0 ORDER BY P.REPAS_PAIEMENT_ID + 0");
  const TRepasPaiement* connu = PaiementDu(eleve, jour, TPaiementRepas::Liquide);
  if (!ligne.Suivant()) return connu != nullptr;
  if (connu == nullptr || connu->Id != ligne.Entier("PAIEMENT") || connu->Montant != ligne.Montant("MONTANT"))
    return true;
  const TDetailPaiementLiquide* detail = Detail(*connu);
  const TComptage comptage = detail != nullptr ? detail->Comptage : TComptage{};
  return !std::ranges::equal(kCoupures, comptage, {},
                             [&](const TCoupure& c) { return ligne.Entier(c.Colonne); });
}

void TRepasPaiements::Encaisser(int eleve, TDateTime jour, const TComptage& comptage) {
  TRepasPaiement* paiement = PaiementDu(eleve, jour, TPaiementRepas::Liquide);
  if (paiement == nullptr) paiement = &Add(std::make_unique<TRepasPaiement>());
  paiement->EleveId = eleve;
  paiement->Montant = Total(comptage);
  paiement->DatePaiement = jour;
  paiement->TypePaiement = TPaiementRepas::Liquide;
  paiement->Remarque.clear();
  Add(*paiement);
  Save();
  ExigerEnregistre(*paiement);
  TDetailPaiementLiquide* detail = Detail(*paiement);
  if (detail == nullptr) detail = &details_.Add(std::make_unique<TDetailPaiementLiquide>());
  detail->RepasPaiementId = paiement->Id;
  detail->Comptage = comptage;
  details_.Add(*detail);
  details_.Save();
  ExigerEnregistre(*detail);
}
