#include "screens/payments/frm_date_paiement.h"

void TFrmDatePaiement::FormShow() {
  constexpr TDateTime kDelai = 7.0;
  dtDatePaiement = contexte_.Controleur.Horloge().Aujourdhui() + kDelai;
  Annoncer();
}

void TFrmDatePaiement::btnValiderClick() {
  ResultatModal = TResultatModal::Valide;
  Fermer();
}

void TFrmDatePaiement::btnAnnulerClick() {
  ResultatModal = TResultatModal::Annule;
  Fermer();
}
