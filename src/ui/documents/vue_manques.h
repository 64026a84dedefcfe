#pragma once
#include "ui/commun/dialogue_base.h"

class TFrmManques;

/// "Ce qui manque": the list, with Enter or a double click to the record of a row.
class VueManques : public DialogueBase {
  Q_OBJECT
 public:
  VueManques(TFrmManques& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  void Aller();

  TFrmManques& form_;
};
