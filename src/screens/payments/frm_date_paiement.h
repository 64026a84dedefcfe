#pragma once
#include "screens/contexte_ecran.h"

/// "Introduire la date de paiement": until when the families are asked to pay. Modal.
class TFrmDatePaiement : public TForm {
 public:
  explicit TFrmDatePaiement(const TContexteEcran& contexte) : contexte_(contexte) {}

  void btnValiderClick();
  void btnAnnulerClick();

  TDateTime dtDatePaiement = 0.0;  ///< on show, today plus 7 days

 protected:
  void FormShow() override;

 private:
  const TContexteEcran& contexte_;
};
