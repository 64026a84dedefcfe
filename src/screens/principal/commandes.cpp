#include "screens/principal/commandes.h"

#include "screens/attendance/frm_presences.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"

namespace {

template <class... T>
constexpr int Masque(T... outils) {
  return (static_cast<int>(outils) | ...);
}

constexpr int kImprime = Masque(TOutil::btnPrint);
constexpr int kListe = Masque(TOutil::btnSave, TOutil::btnNew, TOutil::btnEdit, TOutil::btnDelete);

QString T(const char16_t* texte) { return QString::fromUtf16(texte); }

}  // namespace

QString TCommandePrincipale::Nom() const { return QString(Libelle).remove(u'&'); }

std::vector<TCommandePrincipale> CommandesPrincipales() {
  using enum TGestionnaire;
  using enum TPage;
  return {
      {AdvGlowButton2Click, PgEleve, T(u"É&lèves"), T(u"system-users"), 6,
       Masque(TOutil::btnPrint, TOutil::btnMail), true, Ecran<TFrmSignaletique>(TRemplacement::Cache)},
      {AdvGlowButton7Click, PgEleve, T(u"&Statistiques"), T(u"office-chart-bar"), 6, kImprime, false, {}},
      {AdvGlowButton1Click,
       PgEleve,
       T(u"&Présences"),
       T(u"view-barcode"),
       {},
       0,
       false,
       Ecran<TfrmPresences>()},
      {btnVirementClick, PgEleve, T(u"&Virements"), T(u"view-bank"), {}, 0, false, {}},

      {btnCompteEleveClick, pgRepasNew, T(u"C&omptes"), T(u"wallet-open"), {}, kImprime, false, {}},
      {btnReservation2Click,
       pgRepasNew,
       T(u"&Réservation"),
       T(u"view-calendar-day"),
       {},
       kImprime,
       false,
       {}},
      {btnClick, pgRepasNew, T(u"&Cuisine"), T(u"food"), {}, kImprime, false, {}},

      {btnTicketClick, pgRepas, T(u"&Tickets"), T(u"tag"), 6, kImprime, true, {}},
      {btnReservationClick, pgRepas, T(u"&Réservation"), T(u"view-calendar-day"), 6, kImprime, false, {}},
      {btnCuisineClick, pgRepas, T(u"&Cuisine"), T(u"food"), 6, kImprime, false, {}},
      {btnComptabiliteClick, pgRepas, T(u"C&ompta"), T(u"wallet-open"), {}, kImprime, false, {}},

      {AdvGlowButton8Click, PgParametre, T(u"&Importation"), T(u"document-import"), 0, 0, false,
       Ecran<TFrmImport>()},
      {AdvGlowButton16Click, PgParametre, T(u"&Frais"), T(u"view-financial-list"), 120, kListe, false, {}},
      {AdvGlowButton3Click, PgParametre, T(u"&Mon école"), T(u"go-home"), {}, 0, false, {}},
      {AdvGlowButton5Click, PgParametre, T(u"S&ervices"), T(u"chronometer"), 120, kListe, false, {}},
      {AdvGlowButton6Click, PgParametre, T(u"&Paramètres"), T(u"configure"), {}, 0, false, {}},
      {btnActivitesClick,
       PgParametre,
       T(u"&Activités"),
       T(u"view-calendar-special-occasion"),
       120,
       kListe,
       false,
       {}},

      {btnTransfertRepasClick, pgRepas3, T(u"&Transfert"), T(u"document-export"), {}, 0, false, {}},
      {btnReservationTabletteClick, pgRepas3, T(u"&Réservation"), T(u"view-calendar-day"), {}, 0, false, {}},
      {AdvGlowButton4Click, pgRepas3, T(u"&Quitter"), T(u"application-exit"), {}, 0, false, {}},
  };
}

const std::vector<TOutilPrincipal>& OutilsPrincipaux() {
  static const std::vector<TOutilPrincipal> kOutils{
      {TOutil::btnPrint, TCodeMessage::Imprimer, T(u"Imprimer"), T(u"document-print"), T(u"F8, Ctrl+P")},
      {TOutil::btnMail, TCodeMessage::Courriel, T(u"Envoyer"), T(u"mail-send"), T(u"Ctrl+M")},
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
