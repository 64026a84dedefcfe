#pragma once
#include <QWidget>

#include "forms/signal.h"

class SaisieDate;
class TFrmComptabilite;

/// "Compta": the tickets sold over a period, a page a way of paying.
class VueComptabilite : public QWidget {
  Q_OBJECT
 public:
  VueComptabilite(TFrmComptabilite& form, QWidget* parent);

 private:
  void Lire();
  void Actualiser();

  TFrmComptabilite& form_;
  SaisieDate* debut_;
  SaisieDate* fin_;
  TLien lien_;
};
