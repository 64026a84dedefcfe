#pragma once
#include <QHash>
#include <QStringList>
#include <QVariant>
#include <vector>

/// A table held in memory, with named columns: the local copy on which the off-line mode works. A value is a
/// whole number, a text, bytes, or none.
class TDataSet {
 public:
  explicit TDataSet(const QStringList& colonnes);

  /// One value a column, in the order of the columns.
  void Ajouter(std::vector<QVariant> valeurs);
  int NombreLignes() const { return static_cast<int>(lignes_.size()); }
  const QStringList& Colonnes() const { return noms_; }

  /// Goes to the first row; false when there is none.
  bool Premier();
  /// Goes to the next row; false at the end.
  bool Suivant();
  /// Goes to the first row whose column equals the value; false, without moving, when there is none.
  bool Localiser(const QString& colonne, const QVariant& valeur);
  /// Value in the current row; invalid for an unknown column or without a current row.
  QVariant Valeur(const QString& colonne) const;

  /// The file form: version, years, columns, rows, and a checksum of it all.
  QByteArray EnOctets() const;
  /// Raises Exception, which names `nom`, unless the bytes are a whole data set of a known version.
  static TDataSet DepuisOctets(const QByteArray& octets, const QString& nom);
  /// The same of a file.
  static TDataSet LireDe(const QString& chemin);

  int Annee = 0;         ///< school year of the rows
  int AnneeTravail = 0;  ///< working year when they were copied

 private:
  QStringList noms_;
  QHash<QString, std::size_t> colonnes_;
  std::vector<std::vector<QVariant>> lignes_;
  std::size_t courante_ = 0;
};
