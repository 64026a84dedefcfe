#pragma once
#include "ui/commun/dialogue_base.h"

class QLineEdit;
class TFrmAjoutProfesseur;

class VueAjoutProfesseur : public DialogueBase {
  Q_OBJECT
 public:
  VueAjoutProfesseur(TFrmAjoutProfesseur& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  TFrmAjoutProfesseur& form_;
  QLineEdit* nom_;
  QLineEdit* prenom_;
};
