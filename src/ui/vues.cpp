#include "ui/vues.h"

#include <typeinfo>
#include <vector>

#include "forms/form.h"
#include "screens/attendance/frm_presences.h"
#include "screens/attendance/frm_releve_calendrier.h"
#include "screens/commun/frm_dialogue.h"
#include "screens/commun/frm_liste.h"
#include "screens/documents/frm_apercu.h"
#include "screens/documents/frm_manques.h"
#include "screens/documents/frm_print_wizard.h"
#include "screens/meals/frm_ajout_ticket.h"
#include "screens/documents/frm_recapitulatif.h"
#include "screens/meals/frm_comptabilite.h"
#include "screens/meals/frm_compte_eleve.h"
#include "screens/meals/frm_cuisine.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_reservation.h"
#include "screens/meals/frm_ticket.h"
#include "screens/meals/frm_transfert_repas.h"
#include "screens/meals/frm_transfert_ticket.h"
#include "screens/parametres/frm_mon_ecole.h"
#include "screens/parametres/frm_parametres.h"
#include "screens/payments/frm_attribution_compte.h"
#include "screens/payments/frm_attribution_virement.h"
#include "screens/payments/frm_virement.h"
#include "screens/payments/frm_repartition.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"
#include "screens/services/frm_liste_frais.h"
#include "ui/attendance/vue_presences.h"
#include "ui/attendance/vue_releve_calendrier.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/commun/vue_liste.h"
#include "ui/documents/vue_apercu.h"
#include "ui/documents/vue_manques.h"
#include "ui/documents/vue_print_wizard.h"
#include "ui/meals/vue_ajout_ticket.h"
#include "ui/documents/vue_recapitulatif.h"
#include "ui/meals/vue_comptabilite.h"
#include "ui/meals/vue_compte_eleve.h"
#include "ui/meals/vue_cuisine.h"
#include "ui/meals/vue_presence_repas.h"
#include "ui/meals/vue_reservation.h"
#include "ui/meals/vue_ticket.h"
#include "ui/meals/vue_transfert_repas.h"
#include "ui/meals/vue_transfert_ticket.h"
#include "ui/parametres/vue_mon_ecole.h"
#include "ui/parametres/vue_parametres.h"
#include "ui/payments/vue_attribution_compte.h"
#include "ui/payments/vue_attribution_virement.h"
#include "ui/payments/vue_virement.h"
#include "ui/payments/vue_repartition.h"
#include "ui/pupils/vue_import.h"
#include "ui/pupils/vue_signaletique.h"
#include "ui/services/vue_liste_frais.h"

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
  // One line a screen: VueDe<TFrmImport, VueImport>(). A dialog or a list that is nothing but its table of
  // fields needs none.
  static const std::vector<TFabriqueVue> kVues{
      VueDe<TFrmListeFrais, VueListeFrais>(),
      VueDe<TFrmMonEcole, VueMonEcole>(),
      VueDe<TFrmParametres, VueParametres>(),
      VueDe<TFrmImport, VueImport>(),
      VueDe<TFrmSignaletique, VueSignaletique>(),
      VueDe<TfrmPresences, VuePresences>(),
      VueDe<TFrmReleveCalendrier, VueReleveCalendrier>(),
      VueDe<TFrmVirement, VueVirement>(),
      VueDe<TFrmAttributionVirement, VueAttributionVirement>(),
      VueDe<TFrmAttributionCompte, VueAttributionCompte>(),
      VueDe<TFrmReservation, VueReservation>(),
      VueDe<TFrmReservation2, VueReservation>(),
      VueDe<TFrmCuisine, VueCuisine>(),
      VueDe<TFrmCuisine2, VueCuisine>(),
      VueDe<TFrmCompteEleve, VueCompteEleve>(),
      VueDe<TFrmTicket, VueTicket>(),
      VueDe<TFrmAjoutTicket, VueAjoutTicket>(),
      VueDe<TFrmTransfertTicket, VueTransfertTicket>(),
      VueDe<TFrmComptabilite, VueComptabilite>(),
      VueDe<TFrmPresenceRepas, VuePresenceRepas>(),
      VueDe<TFrmTransfertRepas, VueTransfertRepas>(),
      VueDe<TFrmRecapitulatif, VueRecapitulatif>(),
      VueDe<TFrmApercu, VueApercu>(),
      VueDe<TFrmManques, VueManques>(),
      VueDe<TFrmRepartition, VueRepartition>(),
      VueDe<TFrmPrintWizard, VuePrintWizard>(),
  };
  for (const TFabriqueVue& vue : kVues)
    if (vue.Classe == typeid(form)) return vue.Creer(form, parent);
  if (auto* dialogue = dynamic_cast<TFrmDialogue*>(&form)) return new VueDialogue(*dialogue, parent);
  if (auto* liste = dynamic_cast<TFrmListe*>(&form)) return new VueListe(*liste, parent);
  return nullptr;
}
