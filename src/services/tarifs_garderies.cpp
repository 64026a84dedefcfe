#include "services/tarifs_garderies.h"

#include <algorithm>

#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TTarifGarderie> kColonnes[] = {
    Entier<&TTarifGarderie::TypeFamille>("TYPE_FAMILLE"),
    Entier<&TTarifGarderie::TypeJour>("TYPE_JOUR"),
    HeureDue<&TTarifGarderie::HeureDebutScan>("HEURE_DEBUT_SCAN"),
    HeureDue<&TTarifGarderie::HeureFinScan>("HEURE_FIN_SCAN"),
    Entier<&TTarifGarderie::TypeForfait>("TYPE_FORFAIT"),
    Montant<&TTarifGarderie::Cout>("COUT"),
    Entier<&TTarifGarderie::TypeScan>("TYPE_SCAN"),
    Montant<&TTarifGarderie::Cout2eEnfant>("COUT_2E_ENFANT"),
};

}  // namespace

TTarifsGarderies::TTarifsGarderies(TDataModule1& base) : TCollection(base) { Charger(); }

// The tie-breaks of the look-ups stand on this order.
void TTarifsGarderies::DefineQuery() {
  SelectSql =
      u"SELECT * FROM TARIF_GARDERIE ORDER BY TYPE_FAMILLE DESC, TYPE_JOUR DESC, HEURE_DEBUT_SCAN DESC, "
      "HEURE_FIN_SCAN DESC"_s;
  TableName = u"TARIF_GARDERIE"_s;
  KeyField = "TARIF_GARDERIE_ID";
  CounterName = u"TARIF_GARDERIE"_s;
  Colonnes = kColonnes;
  OrdreDuSelect = true;
}

namespace {

using TLignes = std::vector<const TTarifGarderie*>;

/// Sorted by that time; of rows that share it only the first stays.
void TrierBornes(TLignes& lignes, TDateTime TTarifGarderie::*heure) {
  std::ranges::stable_sort(lignes, {}, heure);
  const auto meme = [heure](const auto* a, const auto* b) { return a->*heure == b->*heure; };
  lignes.erase(std::unique(lignes.begin(), lignes.end(), meme), lignes.end());
}

}  // namespace

void TTarifsGarderies::Classer() const {
  if (classe_) return;
  familles_.clear();
  bornes_.clear();
  for (const TTarifGarderie& tarif : *this) {
    familles_[tarif.TypeFamille].Lignes.push_back(&tarif);
    auto& semaine = bornes_[GroupeTarif(tarif.TypeFamille)];
    for (std::size_t jour = 0; jour < semaine.size(); ++jour) {
      const TDateTime date = 2.0 + static_cast<double>(jour);  // the first of these days was a Monday
      if (!JourConvient(tarif.TypeJour, date)) continue;
      if (tarif.HeureDebutScan > 0.0) semaine[jour].ParDebut.push_back(&tarif);
      if (tarif.HeureFinScan < 1.0) semaine[jour].ParFin.push_back(&tarif);
    }
  }
  for (auto& [groupe, semaine] : bornes_)
    for (TBornes& bornes : semaine) {
      TrierBornes(bornes.ParDebut, &TTarifGarderie::HeureDebutScan);
      TrierBornes(bornes.ParFin, &TTarifGarderie::HeureFinScan);
    }
  for (auto& [numero, famille] : familles_) {
    famille.ParDebut = famille.Lignes;
    // Starts are told apart by their text, so to the minute.
    std::ranges::stable_sort(famille.ParDebut, {},
                             [](const TTarifGarderie* t) { return FormatHeure(t->HeureDebutScan); });
  }
  classe_ = true;
}

const TTarifsGarderies::TFamille& TTarifsGarderies::Famille(TTypeFamille famille) const {
  static const TFamille aucune;
  Classer();
  const auto i = familles_.find(famille);
  return i == familles_.end() ? aucune : i->second;
}

const TTarifsGarderies::TBornes& TTarifsGarderies::Bornes(TGroupe groupe, TDateTime date) const {
  static const TBornes aucune;
  Classer();
  const auto jour = static_cast<std::size_t>(JourLundi1(date) - 1);
  const auto i = bornes_.find(groupe);
  return i == bornes_.end() || jour >= i->second.size() ? aucune : i->second[jour];
}

TClassement TTarifsGarderies::ChercheFamille(TGroupe groupe, TDateTime sortie, TDateTime entree,
                                             TDateTime date) const {
  const TBornes& bornes = Bornes(groupe, date);
  TClassement resultat;
  const TTarifGarderie* retenu = nullptr;
  const auto prendre = [&] { resultat = {retenu->TypeFamille, retenu->TypeScan, retenu}; };

  if (entree > 0.0) {
    const auto apres = std::ranges::upper_bound(bornes.ParDebut, entree, {}, &TTarifGarderie::HeureDebutScan);
    if (apres != bornes.ParDebut.begin()) {
      retenu = *std::prev(apres);
      const bool passe = entree > retenu->HeureDebutScan && entree > retenu->HeureFinScan;
      if (!passe) prendre();
    }
  }
  if (sortie > 0.0) {
    const auto fin = std::ranges::lower_bound(bornes.ParFin, sortie, {}, &TTarifGarderie::HeureFinScan);
    if (fin != bornes.ParFin.end()) retenu = *fin;
    // The row may be the entry's even when the entry lies after its end.
    if (retenu != nullptr) {
      if (sortie < retenu->HeureDebutScan)
        resultat.Famille = TTypeFamille::Indefini;
      else
        prendre();
    }
  }
  return resultat;
}

bool TTarifsGarderies::TarifExiste(TGroupe groupe, TDateTime sortie, TDateTime entree, TDateTime date) const {
  return ChercheFamille(groupe, sortie, entree, date).Famille != TTypeFamille::Indefini;
}

namespace {

TDateTime PlusPetitDebut(const TLignes& lignes, TDateTime depart) {
  for (const TTarifGarderie* tarif : lignes) depart = std::min(depart, tarif->HeureDebutScan);
  return depart;
}

}  // namespace

TDateTime TTarifsGarderies::PremiereHeureFamille(TTypeFamille famille) const {
  return PlusPetitDebut(Famille(famille).Lignes, 1.0);
}

TDateTime TTarifsGarderies::DebutFamille(TTypeFamille famille) const {
  return PlusPetitDebut(Famille(famille).Lignes, 99999.0);
}

TDateTime TTarifsGarderies::DerniereHeureFamille(TTypeFamille famille) const {
  TDateTime fin = 0.0;
  for (const TTarifGarderie* tarif : Famille(famille).Lignes) fin = std::max(fin, tarif->HeureFinScan);
  return fin;
}

TDateTime TTarifsGarderies::FinCreneau(TTypeFamille famille, TDateTime heure) const {
  TDateTime fin = 0.0;
  for (const TTarifGarderie* tarif : Famille(famille).Lignes)
    if (tarif->HeureDebutScan <= heure && heure <= tarif->HeureFinScan) fin = tarif->HeureFinScan;
  return fin;
}
