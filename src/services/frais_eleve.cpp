#include "services/frais_eleve.h"

#include "core/exceptions.h"
#include "core/mois.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TFraisEleve> kColonnes[] = {
    Reference<&TFraisEleve::ListeFraisId>("LISTEFRAIS_ID"),  // the foreign key refuses 0
    Texte<&TFraisEleve::Remarque>("REMARQUE"),
    Montant<&TFraisEleve::MontantVerse>("MONTANT_VERSE"),
    Date<&TFraisEleve::DateVersement>("DATE_VERSEMENT"),
    Entier<&TFraisEleve::Mois>("MOIS"),
    Reference<&TFraisEleve::ExtraitId>("EXTRAIT_ID"),
    Entier<&TFraisEleve::TypeFamilleFrais>("TYPE_FAMILLE_FRAIS"),
    Reference<&TFraisEleve::GroupeFraisId>("GROUPE_FRAIS_ID"),
    Drapeau<&TFraisEleve::FlgPart>("FLG_PART"),
};

}  // namespace

TAllFraisEleve::TAllFraisEleve(TDataModule1& base, int eleve, int annee, const TListeFrais* catalogue)
    : TCollection(base), eleve_(eleve), annee_(annee), catalogue_(catalogue) {
  Charger();
}

TAllFraisEleve::TAllFraisEleve(TDataModule1& base, int eleve, int annee, const TListeFrais* catalogue,
                               TSansLire)
    : TCollection(base), eleve_(eleve), annee_(annee), catalogue_(catalogue) {
  DefineQuery();
}

std::unordered_map<int, std::unique_ptr<TAllFraisEleve>> TAllFraisEleve::LireEnsemble(
    TDataModule1& base, const std::vector<int>& eleves, int annee, const TListeFrais* catalogue) {
  std::unordered_map<int, std::unique_ptr<TAllFraisEleve>> ensemble;
  for (const int eleve : eleves)
    ensemble.try_emplace(eleve, std::make_unique<TAllFraisEleve>(base, eleve, annee, catalogue, TSansLire{}));
  try {
    TCurseur ligne(base, u"SELECT * FROM FRAIS_ELEVE WHERE ANNEE_SCOLAIRE = " % QString::number(annee));
    while (ligne.Suivant()) {
      const auto i = ensemble.find(ligne.Entier("ELEVE_ID"));
      if (i != ensemble.end()) i->second->LoadItems(ligne);
    }
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
  return ensemble;
}

void TAllFraisEleve::DefineQuery() {
  SelectSql = u"SELECT * FROM FRAIS_ELEVE WHERE ELEVE_ID = ? AND ANNEE_SCOLAIRE = ?"_s;
  Cles = {eleve_, annee_};
  TableName = u"FRAIS_ELEVE"_s;
  KeyField = "FRAIS_ELEVE_ID";
  CounterName = u"FRAIS_ELEVE"_s;
  Colonnes = kColonnes;
  Communes = {{"ELEVE_ID", eleve_}, {"ANNEE_SCOLAIRE", annee_}};
}

const TFrais* TFraisEleve::Frais() const {
  if (EstLibre() || lignes_ == nullptr || lignes_->Catalogue() == nullptr) return nullptr;
  return lignes_->Catalogue()->ParCle(ListeFraisId);
}

int TFraisEleve::MoisFrais() const {
  const TFrais* frais = Frais();
  return frais != nullptr ? frais->Mois : 0;
}

QString TFraisEleve::LibelleFrais() const {
  const TFrais* frais = Frais();
  return frais != nullptr ? frais->Libelle : QString();
}

Currency TFraisEleve::MontantFrais() const {
  const TFrais* frais = Frais();
  return frais != nullptr ? frais->Cout : Currency();
}

bool TFraisEleve::Previsionnel() const {
  const TFrais* frais = Frais();
  return frais != nullptr && frais->FlgPrevisionnel;
}

bool TFraisEleve::NonObligatoire() const {
  const TFrais* frais = Frais();
  return frais != nullptr && frais->FlgNonObligatoire;
}

bool TFraisEleve::FraisService() const {
  const TFrais* frais = Frais();
  return frais != nullptr && frais->FlgService;
}

TFraisEleve* TAllFraisEleve::LigneFrais(int frais) const {
  for (TFraisEleve& ligne : *this)
    if (ligne.ListeFraisId == frais) return &ligne;
  return nullptr;
}

bool TAllFraisEleve::ExisteExtrait(int extrait) const {
  for (const TFraisEleve& ligne : *this)
    if (ligne.ExtraitId == extrait) return true;
  return false;
}

int TAllFraisEleve::PaiementsLibres(std::vector<TFraisEleve*>& liste) const {
  liste.clear();
  for (TFraisEleve& ligne : *this)
    if (ligne.EstLibre()) liste.push_back(&ligne);
  return static_cast<int>(liste.size());
}

template <class Condition>
Currency TAllFraisEleve::TotalDu(Condition condition) const {
  Currency total;
  for (const TFraisEleve& ligne : *this) {
    const TFrais* frais = ligne.Frais();
    if (frais != nullptr && !frais->FlgPrevisionnel && condition(*frais)) total += frais->Cout;
  }
  return total;
}

namespace {

bool EstUnMois(int mois) { return mois >= 1 && mois <= 12; }

}  // namespace

bool TAllFraisEleve::MoisContient(int mois, const TPeriode& periode) const {
  if (!EstUnMois(mois)) return false;
  const auto [premier, dernier] = BornesMois(mois, annee_);
  return periode.Premier >= premier && periode.Dernier <= dernier;
}

bool TAllFraisEleve::MoisDans(int mois, const TPeriode& periode) const {
  return EstUnMois(mois) && MoisDansPeriode(mois, annee_, periode.Premier, periode.Dernier);
}

Currency TAllFraisEleve::TotalFrais() const {
  return TotalDu([](const TFrais& f) { return !f.FlgService; });
}

Currency TAllFraisEleve::TotalFraisPeriode(const TPeriode& periode) const {
  return TotalDu([&](const TFrais& f) { return !f.FlgService && MoisContient(f.Mois, periode); });
}

Currency TAllFraisEleve::TotalObligatoires() const {
  return TotalDu([](const TFrais& f) { return !f.FlgNonObligatoire && !f.FlgService; });
}

Currency TAllFraisEleve::TotalNonObligatoires() const {
  return TotalDu([](const TFrais& f) { return f.FlgNonObligatoire && !f.FlgService; });
}

Currency TAllFraisEleve::TotalFraisMoisPeriode(const TPeriode& periode) const {
  return TotalDu([&](const TFrais& f) { return MoisDans(f.Mois, periode); });
}

Currency TAllFraisEleve::TotalServicesPeriode(const TPeriode& periode) const {
  return TotalDu([&](const TFrais& f) { return f.FlgService && MoisDans(f.Mois, periode); });
}

Currency TAllFraisEleve::TotalVerse() const {
  Currency total;
  for (const TFraisEleve& ligne : *this)
    if (!ligne.Previsionnel()) total += ligne.MontantVerse;
  return total;
}

Currency TAllFraisEleve::TotalVersePeriode(const TPeriode& periode) const {
  Currency total;
  for (const TFraisEleve& ligne : *this) {
    if (ligne.Previsionnel()) continue;
    if (MoisContient(ligne.MoisFrais(), periode)) total += ligne.MontantVerse;
    if (MoisContient(ligne.Mois, periode)) total += ligne.MontantVerse;
  }
  return total;
}

Currency TAllFraisEleve::TotalCumuleVerse(int annee, TDateTime date) const {
  Currency total;
  for (const int mois : kMoisScolaires) {
    const TPeriode bornes = BornesMois(mois, annee);
    if (bornes.Premier > date) break;
    total += TotalVersePeriode(bornes);
  }
  return total;
}

Currency TAllFraisEleve::TotalLibresPeriode(const TPeriode& periode, int annee) const {
  Currency total;
  for (const TFraisEleve& ligne : *this)
    if (ligne.ListeFraisId == 0 && EstUnMois(ligne.Mois) &&
        MoisDebuteDansPeriode(ligne.Mois, annee, periode.Premier, periode.Dernier))
      total += ligne.MontantVerse;
  return total;
}

Currency TAllFraisEleve::SoldeFrais() const { return TotalVerse() - TotalFrais(); }

Currency TAllFraisEleve::SoldeFraisMois(int mois, int annee) const {
  const TPeriode bornes = BornesMois(mois, annee);
  return TotalVersePeriode(bornes) - TotalFraisPeriode(bornes);
}
