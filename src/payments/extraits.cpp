#include "payments/extraits.h"

#include <QHash>
#include <algorithm>

#include "core/chaines.h"
#include "core/curseur.h"
#include "core/query_internal.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TDateTime kPasDeDate = 99999.0;

constexpr TColonne<TExtrait> kColonnes[] = {
    Texte<&TExtrait::DonneurOrdre>("DONNEUR_ORDRE"),
    Date<&TExtrait::DateVirement>("DATE_VIREMENT"),
    Montant<&TExtrait::Montant>("MONTANT"),
    Texte<&TExtrait::Communication>("COMMUNICATION"),
    Texte<&TExtrait::NumCptDonneur>("NUM_CPT_DONNEUR"),
    Drapeau<&TExtrait::FlgIgnore>("FLG_IGNORE"),
    Entier<&TExtrait::TypeResponsable>("TYPE_RESPONSABLE"),
};

}  // namespace

TCleExtrait::TCleExtrait(const TExtrait& extrait)
    : DonneurOrdre(MajusculesSansAccents(extrait.DonneurOrdre)),
      Communication(MajusculesSansAccents(extrait.Communication)),
      NumCptDonneur(MajusculesSansAccents(extrait.NumCptDonneur)),
      DateVirement(extrait.DateVirement),
      Montant(extrait.Montant) {}

std::size_t std::hash<TCleExtrait>::operator()(const TCleExtrait& cle) const noexcept {
  return qHashMulti(0, cle.DonneurOrdre, cle.DateVirement, cle.Montant.EnBrut(), cle.Communication,
                    cle.NumCptDonneur);
}

TExtraits::TExtraits(TDataModule1& base, int annee) : TCollection(base), AnneeScolaire(annee) { Charger(); }

void TExtraits::DefineQuery() {
  SelectSql = u"SELECT * FROM EXTRAITS WHERE ANNEE_SCOLAIRE = " % QString::number(AnneeScolaire);
  TableName = u"EXTRAITS"_s;
  KeyField = "EXTRAIT_ID";
  CounterName = u"EXTRAITS"_s;
  Colonnes = kColonnes;
  Communes = {{"ANNEE_SCOLAIRE", AnneeScolaire}};
}

void TExtraits::Indexer(TExtrait& extrait) {
  parId_.Suivre(extrait, extrait.Id);
  parCle_.Suivre(extrait, TCleExtrait(extrait));
}

void TExtraits::Desindexer(TExtrait& extrait) {
  parId_.Oublier(extrait);
  parCle_.Oublier(extrait);
}

TExtrait* TExtraits::IdentiqueAnneePrecedente(const TExtrait& extrait) {
  if (!precedente_) precedente_ = std::make_unique<TExtraits>(Base(), AnneeScolaire - 1);
  TExtrait* trouve = precedente_->Identique(extrait);
  if (trouve != nullptr) trouve->DeAnneePrecedente = true;
  return trouve;
}

bool TExtraits::EstPerime() const {
  TCurseur ligne(
      Base(),
      u"SELECT COUNT(*) AS NOMBRE, MAX(EXTRAIT_ID) AS DERNIER FROM EXTRAITS WHERE ANNEE_SCOLAIRE = ?"_s,
      {AnneeScolaire});
  int dernier = 0;
  for (const TExtrait& extrait : *this) dernier = std::max(dernier, extrait.Id);
  return !ligne.Suivant() || ligne.Entier("NOMBRE") != Count() || ligne.Entier("DERNIER") != dernier;
}

TPeriode TExtraits::BornesDates() const {
  TPeriode bornes{kPasDeDate, 0.0};
  for (const TExtrait& extrait : *this) {
    bornes.Premier = std::min(bornes.Premier, extrait.DateVirement);
    bornes.Dernier = std::max(bornes.Dernier, extrait.DateVirement);
  }
  if (bornes.Premier >= kPasDeDate) bornes.Premier = 0.0;
  return bornes;
}

// The row first: Forget takes the key away. What has gone to the year before must be found there.
void TExtraits::Deplacer(TExtrait& extrait, int annee) {
  TQueryInternal(Base(), u"UPDATE EXTRAITS SET ANNEE_SCOLAIRE=:iAnnee WHERE EXTRAIT_ID=:iExtraitID"_s)
      .Parametre(u"iAnnee"_s, annee)
      .Parametre(u"iExtraitID"_s, extrait.Id)
      .Executer();
  Forget(extrait);
  precedente_.reset();
}
