#pragma once
#include "screens/commun/frm_liste.h"
#include "services/tarifs_garderies.h"

/// "Horaires et tarifs des services offerts par l'école": the tariff rows.
class TFrmParametresGarderies : public TFrmListeDe<TTarifGarderie> {
 public:
  explicit TFrmParametresGarderies(TContexteEcran& contexte);

 protected:
  TCollection<TTarifGarderie>& Collection() const override;
  /// What is missing for the row to cost anything.
  QString Avis() const override;
};
