#include "screens/payments/frm_date_paiement.h"

TFrmDatePaiement::TFrmDatePaiement(const TContexteEcran& contexte)
    : TFrmDialogueDe(u"Introduire la date de paiement"_s,
                     {{{.Nom = u"dtDatePaiement"_s,
                        .Libelle = u"Date de paiement :"_s,
                        .Genre = TGenreChamp::Date,
                        .Obligatoire = true,
                        .Refus = u"La date introduite est incorrecte."_s},
                       Membre(&TDatePaiement::Date)}}),
      contexte_(contexte) {}

void TFrmDatePaiement::FormShow() {
  constexpr TDateTime kDelai = 7.0;
  Saisi.Date = contexte_.Controleur.Horloge().Aujourdhui() + kDelai;
  Montrer();
}
