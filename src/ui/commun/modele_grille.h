#pragma once
#include <QAbstractItemModel>
#include <QSortFilterProxyModel>
#include <vector>

#include "forms/grille.h"

/// What a cell shows where its column is too narrow for its text: a month or a day in short, or what the
/// column makes of it. Invalid for a value that has no shorter form.
QVariant TexteCourt(const TGrille& grille, int ligne, int colonne);
/// The role under which the model gives it.
inline constexpr int kTexteCourt = Qt::UserRole;

/// The rows of a TGrille for a Qt view: heads with their groups below them, other rows on the first
/// level.
class ModeleGrille : public QAbstractItemModel {
  Q_OBJECT
 public:
  ModeleGrille(TGrille& grille, QObject* parent);

  /// The row of the grid behind an index; -1 for the root.
  int Ligne(const QModelIndex& index) const;
  /// The index of a row of the grid; invalid outside it.
  QModelIndex Index(int ligne, int colonne = 0) const;
  /// The grid announced a change of one row, or of more with -1.
  void Suivre(int ligne);

  QModelIndex index(int rang, int colonne, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& enfant) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return grille_.NombreColonnes(); }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int colonne, Qt::Orientation sens, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& valeur, int role) override;

 signals:
  void Cochee(int ligne, bool coche);

 private:
  struct TPlace {
    int Sommet = -1;  ///< rank of the head on the first level; -1 for a row of the first level
    int Rang = 0;
    bool operator==(const TPlace&) const = default;
  };
  struct TPlan {
    std::vector<TPlace> Places;  ///< by row of the grid
    std::vector<int> Sommets;    ///< rows of the first level
    int Colonnes = 0;
    bool operator==(const TPlan&) const = default;
  };

  TPlan Dresser() const;
  bool ACase(int ligne) const;
  QVariant Apparence(int ligne, int colonne, int role) const;

  TGrille& grille_;
  TPlan plan_;
};

/// Order by value and filter by words.
class FiltreGrille : public QSortFilterProxyModel {
  Q_OBJECT
 public:
  FiltreGrille(const TGrille& grille, ModeleGrille& modele, QObject* parent);
  /// The words of the grid's filter are others.
  void Refiltrer() { invalidateFilter(); }

 protected:
  bool filterAcceptsRow(int rang, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& a, const QModelIndex& b) const override;

 private:
  const TGrille& grille_;
  ModeleGrille& modele_;
};
