#include "screens/commun/frm_dialogue.h"

bool TFrmDialogue::Valider() {
  if (!Preparer() || !Champs().Verifier()) return false;
  EcrireChamps();
  if (!Controler()) return false;
  ResultatModal = TResultatModal::Valide;
  if (Fermer()) return true;
  ResultatModal = TResultatModal::Aucun;
  return false;
}

void TFrmDialogue::Annuler() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}
