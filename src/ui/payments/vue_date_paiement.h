#pragma once
#include "ui/commun/dialogue_base.h"

class SaisieDate;
class TFrmDatePaiement;

class VueDatePaiement : public DialogueBase {
  Q_OBJECT
 public:
  VueDatePaiement(TFrmDatePaiement& form, QWidget* parent);
  ~VueDatePaiement() override;

 protected:
  bool Valider() override;

 private:
  TFrmDatePaiement& form_;
  SaisieDate* date_;
};
