#include "screens/principal/frm_ajout_professeur.h"

using namespace Qt::StringLiterals;

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
  contexte_.Dialogues().Message(u"Un nom est obligatoire"_s);
  return false;
}
