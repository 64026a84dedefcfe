#pragma once
#include <QTreeWidget>

#include "forms/signal.h"

class TFrmListeFrais;
class TNoeud;

/// A tree of who owes a fee, with a box before each: down to the pupils, with "payé" beside the name of who
/// has paid, or down to the classes. Space ticks.
class ArbreCoches : public QTreeWidget {
  Q_OBJECT
 public:
  enum TProfondeur { Classes, Eleves };
  ArbreCoches(TFrmListeFrais& form, TProfondeur profondeur, const QString& nom, QWidget* parent = nullptr);

 private:
  bool Ajouter(QTreeWidgetItem* parent, const TNoeud& noeud);
  void Actualiser();
  void Montrer(QTreeWidgetItem& ligne);

  TFrmListeFrais& form_;
  TProfondeur profondeur_;
  bool enCours_ = false;  ///< the boxes follow the form, not the hand
  TLiens liens_;
};
