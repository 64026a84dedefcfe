#include "screens/principal/commandes.h"

#include "screens/attendance/frm_presences.h"
#include "screens/documents/frm_recapitulatif.h"
#include "screens/meals/frm_comptabilite.h"
#include "screens/meals/frm_compte_eleve.h"
#include "screens/meals/frm_cuisine.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_reservation.h"
#include "screens/meals/frm_ticket.h"
#include "screens/meals/frm_transfert_repas.h"
#include "screens/parametres/frm_mon_ecole.h"
#include "screens/parametres/frm_parametres.h"
#include "screens/payments/frm_virement.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"
#include "screens/services/frm_activites.h"
#include "screens/services/frm_liste_frais.h"
#include "screens/services/frm_parametres_garderies.h"

namespace {

QString T(const char16_t* texte) { return QString::fromUtf16(texte); }

}  // namespace

QString TCommandePrincipale::Nom() const { return QString(Libelle).remove(u'&'); }

std::vector<TCommandePrincipale> CommandesPrincipales() {
  using enum TGestionnaire;
  using enum TPage;
  return {
      {AdvGlowButton2Click, PgEleve, T(u"É&lèves"), T(u"system-users"), 6, true,
       Ecran<TFrmSignaletique>(TRemplacement::Cache)},
      {AdvGlowButton7Click, PgEleve, T(u"&Statistiques"), T(u"office-chart-bar"), 6, false,
       Ecran<TFrmRecapitulatif>()},
      {AdvGlowButton1Click, PgEleve, T(u"&Présences"), T(u"view-barcode"), {}, false, Ecran<TfrmPresences>()},
      {btnVirementClick, PgEleve, T(u"&Virements"), T(u"view-bank"), {}, false, Ecran<TFrmVirement>()},

      {btnCompteEleveClick, pgRepasNew, T(u"C&omptes"), T(u"wallet-open"), 2, false,
       Ecran<TFrmCompteEleve>()},
      {btnReservation2Click, pgRepasNew, T(u"&Réservation"), T(u"view-calendar-day"), 2, false,
       Ecran<TFrmReservation2>()},
      {btnClick, pgRepasNew, T(u"&Cuisine"), T(u"food"), 2, false, Ecran<TFrmCuisine2>()},

      {btnTicketClick, pgRepas, T(u"&Tickets"), T(u"tag"), 6, true, Ecran<TFrmTicket>(TRemplacement::Cache)},
      {btnReservationClick, pgRepas, T(u"&Réservation"), T(u"view-calendar-day"), 6, false,
       Ecran<TFrmReservation>()},
      {btnCuisineClick, pgRepas, T(u"&Cuisine"), T(u"food"), 6, false, Ecran<TFrmCuisine>()},
      {btnComptabiliteClick, pgRepas, T(u"C&ompta"), T(u"wallet-open"), 2, false, Ecran<TFrmComptabilite>()},

      {AdvGlowButton8Click, PgParametre, T(u"&Importation"), T(u"document-import"), 0, false,
       Ecran<TFrmImport>()},
      {AdvGlowButton16Click, PgParametre, T(u"&Frais"), T(u"view-financial-list"), 120, false,
       Ecran<TFrmListeFrais>()},
      {AdvGlowButton3Click, PgParametre, T(u"&Mon école"), T(u"go-home"), {}, false, Ecran<TFrmMonEcole>()},
      {AdvGlowButton5Click, PgParametre, T(u"S&ervices"), T(u"chronometer"), 120, false,
       Ecran<TFrmParametresGarderies>()},
      {AdvGlowButton6Click,
       PgParametre,
       T(u"&Paramètres"),
       T(u"configure"),
       {},
       false,
       Ecran<TFrmParametres>(),
       true},
      {btnActivitesClick, PgParametre, T(u"&Activités"), T(u"view-calendar-special-occasion"), 120, false,
       Ecran<TFrmActivites>()},

      {btnTransfertRepasClick,
       pgRepas3,
       T(u"&Transfert"),
       T(u"document-export"),
       {},
       false,
       Ecran<TFrmTransfertRepas>()},
      {btnReservationTabletteClick,
       pgRepas3,
       T(u"&Réservation"),
       T(u"view-calendar-day"),
       {},
       false,
       Ecran<TFrmPresenceRepas>()},
      {AdvGlowButton4Click, pgRepas3, T(u"&Quitter"), T(u"application-exit"), {}, false, {}},
  };
}

const std::vector<TOutilPrincipal>& OutilsPrincipaux() {
  static const std::vector<TOutilPrincipal> kOutils{
      {TOutil::btnPrint, TCodeMessage::Imprimer, T(u"Imprimer"), T(u"document-print"), T(u"F8, Ctrl+P")},
      {TOutil::btnMail, TCodeMessage::Courriel, T(u"Envoyer"), T(u"mail-send"), T(u"Ctrl+M"),
       T(u"l'envoi par courriel n'est pas encore disponible")},
      {TOutil::btnNew, TCodeMessage::Nouveau, T(u"Nouveau"), T(u"document-new"), T(u"F7")},
      {TOutil::btnEdit, TCodeMessage::Modifier, T(u"Modifier"), T(u"document-edit"), T(u"F2")},
      {TOutil::btnSave, TCodeMessage::Enregistrer, T(u"Enregistrer"), T(u"document-save"), T(u"F9")},
      {TOutil::btnDelete, TCodeMessage::Supprimer, T(u"Supprimer"), T(u"edit-delete"), T(u"Ctrl+Suppr")},
  };
  return kOutils;
}

const std::vector<TPagePrincipale>& PagesPrincipales() {
  static const std::vector<TPagePrincipale> kPages{
      {TPage::PgEleve, T(u"Accueil")},
      {TPage::pgRepasNew, T(u"Repas")},
      {TPage::pgRepas, T(u"Repas")},
      {TPage::pgRepas3, T(u"Repas")},
      {TPage::PgParametre, T(u"Administration")},
  };
  return kPages;
}
