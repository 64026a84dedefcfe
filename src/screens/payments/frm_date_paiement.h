#pragma once
#include "screens/commun/frm_dialogue.h"

struct TDatePaiement {
  TDateTime Date = 0.0;
};

/// "Introduire la date de paiement": until when the families are asked to pay. Modal.
class TFrmDatePaiement : public TFrmDialogueDe<TDatePaiement> {
 public:
  explicit TFrmDatePaiement(const TContexteEcran& contexte);

  /// On show, today plus 7 days.
  TDateTime dtDatePaiement() const { return Saisi.Date; }

 protected:
  void FormShow() override;

 private:
  const TContexteEcran& contexte_;
};
