#pragma once
#include "ui/commun/dialogue_base.h"

class TFrmAttributionCompte;

/// "Attribution de compte bancaire sur base des virements"
class VueAttributionCompte : public DialogueBase {
  Q_OBJECT
 public:
  VueAttributionCompte(TFrmAttributionCompte& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  TFrmAttributionCompte& form_;
};
