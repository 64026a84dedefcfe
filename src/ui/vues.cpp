#include "ui/vues.h"

#include <typeinfo>
#include <vector>

#include "forms/form.h"
#include "screens/documents/frm_apercu.h"
#include "screens/documents/frm_print_wizard.h"
#include "screens/payments/frm_date_paiement.h"
#include "screens/attendance/frm_ajout_releve.h"
#include "screens/attendance/frm_presences.h"
#include "screens/principal/frm_ajout_professeur.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"
#include "ui/attendance/vue_ajout_releve.h"
#include "ui/attendance/vue_presences.h"
#include "ui/documents/vue_apercu.h"
#include "ui/documents/vue_print_wizard.h"
#include "ui/payments/vue_date_paiement.h"
#include "ui/principal/vue_ajout_professeur.h"
#include "ui/pupils/vue_import.h"
#include "ui/pupils/vue_signaletique.h"

namespace {

struct TFabriqueVue {
  const std::type_info& Classe;
  QWidget* (*Creer)(TForm&, QWidget*);
};

template <class Form, class Vue>
constexpr TFabriqueVue VueDe() {
  return {typeid(Form),
          [](TForm& form, QWidget* parent) -> QWidget* { return new Vue(static_cast<Form&>(form), parent); }};
}

}  // namespace

QWidget* CreerVue(TForm& form, QWidget* parent) {
  // One line a screen: VueDe<TFrmImport, VueImport>(),
  static const std::vector<TFabriqueVue> kVues{
      VueDe<TFrmAjoutProfesseur, VueAjoutProfesseur>(),
      VueDe<TFrmImport, VueImport>(),
      VueDe<TFrmSignaletique, VueSignaletique>(),
      VueDe<TfrmPresences, VuePresences>(),
      VueDe<TFrmAjoutReleve, VueAjoutReleve>(),
      VueDe<TFrmApercu, VueApercu>(),
      VueDe<TFrmDatePaiement, VueDatePaiement>(),
      VueDe<TFrmPrintWizard, VuePrintWizard>(),
  };
  for (const TFabriqueVue& vue : kVues)
    if (vue.Classe == typeid(form)) return vue.Creer(form, parent);
  return nullptr;
}
