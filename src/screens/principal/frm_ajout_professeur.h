#pragma once
#include "screens/commun/frm_dialogue.h"

/// As typed.
struct TNomProfesseur {
  QString Nom;
  QString Prenom;
};

/// Asks for the name of a teacher. Modal.
class TFrmAjoutProfesseur : public TFrmDialogueDe<TNomProfesseur> {
 public:
  explicit TFrmAjoutProfesseur(const TContexteEcran& contexte);
};
