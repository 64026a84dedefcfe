#pragma once
#include <QWidget>

#include "forms/signal.h"

class MarqueEtat;
class QPushButton;
class RangeeCompteurs;
class TFrmTransfertRepas;
class VueGrille;

/// "Transfert": what is being done, what was read, and the anomalies.
class VueTransfertRepas : public QWidget {
  Q_OBJECT
 public:
  VueTransfertRepas(TFrmTransfertRepas& form, QWidget* parent);

 private:
  void Actualiser();

  TFrmTransfertRepas& form_;
  MarqueEtat* etat_;
  RangeeCompteurs* comptes_;
  VueGrille* anomalies_;
  QPushButton* recommencer_;
  TLien lien_;
};
