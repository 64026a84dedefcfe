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
  form_.SurChangement = [this] {
    date_->DefinirDate(form_.dtDatePaiement);
    date_->selectAll();
  };
  form_.SurChangement();
  date_->setFocus();
}

VueDatePaiement::~VueDatePaiement() { form_.SurChangement = nullptr; }

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
