#include "ui/documents/apercu_qt.h"

void ApercuQt::Afficher(TRapport& rapport) {
  TFrmApercu form(contexte_, rapport);
  modale_.MontrerModal(form);
}
