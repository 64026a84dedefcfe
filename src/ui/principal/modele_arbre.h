#pragma once
#include <QAbstractItemModel>
#include <QHash>

class TArbre;
class TNoeud;

/// What a view shows of a TArbre. `Relire` after every change of its nodes.
class ModeleArbre : public QAbstractItemModel {
  Q_OBJECT
 public:
  enum TRoleArbre {
    kCompte = Qt::UserRole,  ///< leaves below a node that has children, else nothing
    kMarque,                 ///< TMarqueNoeud as int
    kNiveau,
  };

  /// The tree outlives the model.
  explicit ModeleArbre(const TArbre& arbre, QObject* parent = nullptr);

  void Relire();
  /// Null for an index that is none.
  TNoeud* Noeud(const QModelIndex& index) const;
  QModelIndex Index(const TNoeud* noeud) const;
  /// The texts from the first level to the node, which find it again in a tree built anew.
  static QString Chemin(const TNoeud& noeud);

  QModelIndex index(int ligne, int colonne, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Noter(TNoeud& noeud, int rang);

  struct TPlace {
    int Rang;
    int Feuilles;  // of the nodes without children below it
  };
  const TArbre& arbre_;
  QHash<const TNoeud*, TPlace> places_;
};
