#pragma once
#include <QWidget>

#include "ui/commun/etiquette.h"

class MarqueEtat;

/// A label in the secondary colour, buddy of the field, to which it gives its accessible name. For
/// forms whose labels stand in the column of a grid layout.
Etiquette* CreerLibelle(const QString& texte, QWidget* champ, QWidget* parent = nullptr);

/// The same, as high as a field, for rows that a fault makes higher: it stays beside its field.
Etiquette* CreerLibelleDeRang(const QString& texte, QWidget* champ);

/// Draws the field as faulty or not.
void MarquerFaute(QWidget& champ, bool faute);

/// Label, field and a line for one fault below it.
class ChampLibelle : public QWidget {
  Q_OBJECT
 public:
  enum TPlace { Dessus, Gauche };

  /// Takes the field as its child. An empty label leaves the accessible name to the caller.
  ChampLibelle(const QString& libelle, QWidget* champ, TPlace place = Gauche, QWidget* parent = nullptr);

  /// Shows the fault below the field; "" takes it away.
  void MontrerFaute(const QString& texte);
  QWidget* Champ() const { return champ_; }
  Etiquette* Libelle() const { return libelle_; }
  /// So that the fields below each other begin at the same place; at 10 points.
  void DefinirLargeurLibelle(int largeur);

 private:
  Etiquette* libelle_;
  QWidget* champ_;
  MarqueEtat* faute_;
};
