#include "ui/payments/vue_date_paiement.h"

#include "screens/payments/frm_date_paiement.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/saisie.h"

using namespace Qt::StringLiterals;

VueDatePaiement::VueDatePaiement(TFrmDatePaiement& form, QWidget* parent)
    : DialogueBase(u"Introduire la date de paiement"_s, parent), form_(form), date_(new SaisieDate) {
  setMinimumWidth(Theme::Px(400));
  Contenu()->addWidget(new ChampLibelle(u"Date de paiement :"_s, date_));
  DefinirPrincipal(u"Valider"_s);
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
  date_->setFocus();
}

void VueDatePaiement::Actualiser() {
  date_->DefinirDate(form_.dtDatePaiement);
  date_->selectAll();
}

bool VueDatePaiement::Valider() {
  const TDateTime date = date_->Date().value_or(0.0);
  if (date == 0.0) {
    MontrerFaute(u"La date introduite est incorrecte."_s, date_);
    return false;
  }
  form_.dtDatePaiement = date;
  form_.btnValiderClick();
  return true;
}
