#pragma once
#include "screens/contexte_ecran.h"

/// Asks for the name of a teacher. Modal.
class TFrmAjoutProfesseur : public TForm {
 public:
  explicit TFrmAjoutProfesseur(TContexteEcran& contexte) : contexte_(contexte) {}

  /// "Valider": true when the dialog is closed, false when a name is missing.
  bool btnValiderClick();
  void btnAnnulerClick();

  // As typed.
  QString Nom;
  QString Prenom;

 protected:
  bool FormCloseQuery() override;

 private:
  TContexteEcran& contexte_;
};
