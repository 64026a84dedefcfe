#pragma once
#include "screens/commun/frm_liste.h"
#include "services/activites.h"

/// "Horaires des activités extra-scolaires": the activities of the year on display.
class TFrmActivites : public TFrmListeDe<TActivite> {
 public:
  explicit TFrmActivites(TContexteEcran& contexte);

 protected:
  TCollection<TActivite>& Collection() const override;
  /// Both dates are today's at first.
  void MontrerNouveau() override;
  TCellules Oter() override;
  void Remettre(const TCellules& valeurs) override;

 private:
  int supprimee_ = 0;  ///< key of the activity deleted last
};
