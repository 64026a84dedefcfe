#pragma once
#include <QWidget>
#include <array>

#include "forms/signal.h"

class ChoixClasseJour;
class EtatVide;
class Etiquette;
class QTreeWidget;
class TFrmCuisine;
class Titre;

/// "Cuisine": the totals of the day in large type, and each class below.
class VueCuisine : public QWidget {
  Q_OBJECT
 public:
  VueCuisine(TFrmCuisine& form, QWidget* parent);

 private:
  void Disposer();
  void Actualiser();
  void RemplirArbre();

  TFrmCuisine& form_;
  ChoixClasseJour* choix_;
  std::array<Etiquette*, 3> nombres_{};
  Etiquette* incompletes_;
  Etiquette* changements_;
  QTreeWidget* arbre_;
  EtatVide* vide_;
  TLiens liens_;
};
