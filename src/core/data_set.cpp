#include "core/data_set.h"

TDataSet::TDataSet(const QStringList& colonnes) : noms_(colonnes) {
  for (const QString& nom : colonnes) colonnes_.insert(nom, static_cast<std::size_t>(colonnes_.size()));
}

void TDataSet::Ajouter(std::vector<QVariant> valeurs) {
  valeurs.resize(static_cast<std::size_t>(colonnes_.size()));
  lignes_.push_back(std::move(valeurs));
}

bool TDataSet::Premier() {
  courante_ = 0;
  return !lignes_.empty();
}

bool TDataSet::Suivant() {
  if (courante_ < lignes_.size()) ++courante_;
  return courante_ < lignes_.size();
}

bool TDataSet::Localiser(const QString& colonne, const QVariant& valeur) {
  const auto c = colonnes_.constFind(colonne);
  if (c == colonnes_.constEnd()) return false;
  for (std::size_t i = 0; i < lignes_.size(); ++i) {
    if (lignes_[i][*c] != valeur) continue;
    courante_ = i;
    return true;
  }
  return false;
}

QVariant TDataSet::Valeur(const QString& colonne) const {
  const auto c = colonnes_.constFind(colonne);
  if (c == colonnes_.constEnd() || courante_ >= lignes_.size()) return {};
  return lignes_[courante_][*c];
}
