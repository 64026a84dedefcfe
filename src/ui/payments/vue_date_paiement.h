#pragma once
#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class SaisieDate;
class TFrmDatePaiement;

class VueDatePaiement : public DialogueBase {
  Q_OBJECT
 public:
  VueDatePaiement(TFrmDatePaiement& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  void Actualiser();

  TFrmDatePaiement& form_;
  SaisieDate* date_;
  TLien lien_;
};
