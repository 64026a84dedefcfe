#pragma once
#include "report/apercu.h"
#include "screens/documents/frm_apercu.h"

/// Shows reports in the preview window.
class ApercuQt : public IApercu {
 public:
  /// All must outlive it.
  ApercuQt(const TContexteApercu& contexte, IFenetreModale& modale) : contexte_(contexte), modale_(modale) {}
  bool Afficher(TRapport& rapport) override;

 private:
  const TContexteApercu contexte_;
  IFenetreModale& modale_;
};
