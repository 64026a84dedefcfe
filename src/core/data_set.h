#pragma once
#include <QHash>
#include <QString>
#include <QVariant>
#include <vector>

/// A table held in memory, with named columns: the local copy on which the off-line mode works.
class TDataSet {
 public:
  explicit TDataSet(const QStringList& colonnes);

  /// One value a column, in the order of the columns.
  void Ajouter(std::vector<QVariant> valeurs);
  int NombreLignes() const { return static_cast<int>(lignes_.size()); }

  /// Goes to the first row; false when there is none.
  bool Premier();
  /// Goes to the next row; false at the end.
  bool Suivant();
  /// Goes to the first row whose column equals the value; false, without moving, when there is none.
  bool Localiser(const QString& colonne, const QVariant& valeur);
  /// Value in the current row; invalid for an unknown column or without a current row.
  QVariant Valeur(const QString& colonne) const;

 private:
  QHash<QString, std::size_t> colonnes_;
  std::vector<std::vector<QVariant>> lignes_;
  std::size_t courante_ = 0;
};
