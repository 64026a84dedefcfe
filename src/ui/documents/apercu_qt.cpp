#include "ui/documents/apercu_qt.h"

bool ApercuQt::Afficher(TRapport& rapport) {
  TFrmApercu form(contexte_, rapport);
  modale_.MontrerModal(form);
  return form.EstSorti();
}
