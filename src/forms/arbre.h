#pragma once
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "forms/objet_vu.h"
#include "forms/signal.h"

/// What a view shows beside the text of a node.
enum class TMarqueNoeud {
  Aucune,
  Barree,  ///< crossed out
  Payee,   ///< the picture of a payment
};

class TNoeud {
 public:
  TNoeud(TNoeud* parent, QString texte, TObjetVu objet)
      : Texte(std::move(texte)), Objet(objet), parent_(parent) {}

  QString Texte;
  TObjetVu Objet;
  TMarqueNoeud Marque = TMarqueNoeud::Aucune;
  bool Coche = false;

  /// Null for a node of the first level.
  TNoeud* Parent() const { return parent_; }
  const std::vector<std::unique_ptr<TNoeud>>& Enfants() const { return enfants_; }
  /// 0 for the first level.
  int Niveau() const;

 private:
  friend class TArbre;
  TNoeud* parent_;
  std::vector<std::unique_ptr<TNoeud>> enfants_;
};

/// A tree of texts. Tree order is a node, then its children, then the node behind it.
class TArbre {
 public:
  /// Adds a node as the last child of `parent`, or of the first level when it is null.
  TNoeud& Ajouter(TNoeud* parent, const QString& texte, TObjetVu objet = {});
  /// Removes the node and all below it.
  void Supprimer(TNoeud& noeud);
  void Vider();
  const std::vector<std::unique_ptr<TNoeud>>& Racines() const { return racines_; }

  /// The first in tree order; null for an empty tree.
  TNoeud* Premier() const;
  /// The next in tree order; null behind the last.
  TNoeud* Suivant(const TNoeud& noeud) const;
  /// The first node from `debut` on, in tree order, for which the answer is true; null if none.
  TNoeud* Trouver(const std::function<bool(const TNoeud&)>& convient, TNoeud* debut) const;
  /// The first node that carries the object; null if none.
  TNoeud* TrouverObjet(TObjetVu objet) const;

  /// The selected node; null for none.
  TNoeud* Selection() const { return selection_; }
  /// Null selects none. The view makes the node visible.
  void Selectionner(TNoeud* noeud);

  /// Tells the view that nodes came, went or changed; called after a row of changes.
  void Annoncer() const;

  /// The nodes are shown with check boxes.
  bool CasesACocher = false;
  TSignal<> SurChangement;
  /// The selected node is another one.
  TSignal<> SurSelection;

 private:
  std::vector<std::unique_ptr<TNoeud>> racines_;
  TNoeud* selection_ = nullptr;
};
