#include "screens/principal/frm_ajout_professeur.h"

bool TFrmAjoutProfesseur::btnValiderClick() {
  ResultatModal = TResultatModal::Valide;
  return Fermer();
}

void TFrmAjoutProfesseur::btnAnnulerClick() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}

bool TFrmAjoutProfesseur::FormCloseQuery() {
  if (ResultatModal != TResultatModal::Valide || !Nom.trimmed().isEmpty()) return true;
  ResultatModal = TResultatModal::Aucun;
  contexte_.Dialogues().Message(QStringLiteral("Un nom est obligatoire"));
  return false;
}
