// Meals and the tablet.
#include <QTableWidget>
#include <QTextStream>

#include "app/captures/photographe.h"
#include "screens/meals/frm_comptabilite.h"
#include "screens/meals/frm_compte_eleve.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_reservation.h"
#include "screens/meals/frm_ticket.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

void Photographe::Tablette(const QString& suffixe) {
  suffixe_ = suffixe;
  programme_.Main.Executer(TGestionnaire::btnReservationTabletteClick);
  auto& form = Ecran<TFrmPresenceRepas>();
  form.btnAnneeClick(u"P3"_s);
  form.btnClasseClick(*form.ClassesDeLAnnee().front().Classe);
  Prendre(u"tablette"_s);
  form.edRechercheChange(u"la"_s);
  Prendre(u"tablette-recherche"_s);
}

void Photographe::TabletteAuRouge() {
  auto& form = Ecran<TFrmPresenceRepas>();
  form.btnClasseClick(*form.ClassesDeLAnnee().front().Classe);
  form.Horloge();
  Prendre(u"tablette-horloge"_s);
}

void Photographe::TabletteVide(const QString& suffixe) {
  suffixe_ = suffixe;
  programme_.Main.Executer(TGestionnaire::btnReservationTabletteClick);
  Prendre(u"tablette-vide"_s);
}

void Photographe::Transfert(const QString& suffixe) {
  suffixe_ = suffixe;
  programme_.Main.Executer(TGestionnaire::btnReservationTabletteClick);
  Suivre({[this](QWidget& question) {
    Prendre(programme_.Fenetre, u"transfert-repas"_s);
    Prendre(question, u"transfert-repas-question"_s);
    Bouton(question, u"Non"_s)->click();
    return true;
  }});
  programme_.Main.Executer(TGestionnaire::btnTransfertRepasClick);
  Attendre(50);
}

// An order that waits for its filling, and what is said to who goes on without one. It is taken back.
void Photographe::CommandeIncomplete(TFrmReservation& form) {
  constexpr int kRepas = 1, kDago = 2, kSandwich = 3;
  int ligne = 0;
  const auto mange = [&](int colonne) { return !form.Grille.Texte(ligne, colonne).isEmpty(); };
  while (mange(kRepas) || mange(kDago) || mange(kSandwich)) ++ligne;
  form.grdEleveClickCell(ligne, kDago);
  Prendre(u"reservation-incomplete"_s);
  Suivre({Photo(u"reservation-incomplete-message"_s)});
  form.grdEleveRowChanging(ligne > 0 ? 0 : 1);
  form.grdEleveClickCell(ligne, kDago);
}

void Photographe::TransfertDeTicket(TFrmTicket& form) {
  constexpr int kTicket = 1;  // below the day on which it was sold
  if (form.Detail.NombreLignes() <= kTicket) {
    QTextStream(stderr) << "« tickets-transfert » n'est pas prise : " << form.NomEleve()
                        << " n'a pas de ticket.\n";
    return;
  }
  form.Detail.ChoisirLigne(kTicket);
  Suivre({[this](QWidget& fenetre) {
    fenetre.findChild<VueGrille*>()->Grille().ChoisirLigne(2);
    return Photo(u"tickets-transfert"_s)(fenetre);
  }});
  form.AdvGlowButton3Click();
}

void Photographe::Repas() {
  using enum TGestionnaire;
  TFrmMain& main = programme_.Main;
  ChoisirEleve();
  main.Executer(btnTicketClick);
  auto& tickets = Ecran<TFrmTicket>();
  tickets.ChoisirPage(0);
  Prendre(u"tickets"_s);
  tickets.ChoisirPage(1);
  Prendre(u"tickets-detail"_s);
  Suivre({Photo(u"tickets-vente"_s)});
  tickets.btnEtape1Click();
  TransfertDeTicket(tickets);
  tickets.ChoisirPage(2);
  Prendre(u"tickets-sous-trois"_s);
  int classe = 0;  // several sites name theirs behind the class
  while (!ChoixDeClasses()[classe].startsWith(tickets.NomClasse())) ++classe;
  for (const auto& [ecran, nom] : {std::pair(btnReservationClick, u"reservation"_s),
                                   std::pair(btnReservation2Click, u"reservation-2"_s)}) {
    main.Executer(ecran);
    auto& form = Ecran<TFrmReservation>();
    form.cmbClasseChange(classe);
    auto* grille = programme_.Fenetre.VueCourante()->findChild<QTableWidget*>();
    grille->setFocus();
    grille->setCurrentCell(2, 1);
    Prendre(nom);
  }
  main.Executer(btnReservationClick);
  auto& reservation = Ecran<TFrmReservation>();
  reservation.cmbClasseChange(classe);
  CommandeIncomplete(reservation);
  Bouton(programme_.Fenetre, u"Le mois"_s)->click();
  Prendre(u"reservation-mois"_s);
  main.Executer(btnCuisineClick);
  Prendre(u"cuisine"_s);
  main.Executer(btnClick);
  Prendre(u"cuisine-2"_s);
  main.Executer(btnCompteEleveClick);
  auto& comptes = Ecran<TFrmCompteEleve>();
  comptes.cmbClasseChange(classe);
  comptes.btnAjouteArgentClick();
  comptes.btnCoupureClick(3);
  comptes.edChange(5, u"2"_s);
  Prendre(u"comptes"_s);
  comptes.btnAnnulerClick();
  main.Executer(btnComptabiliteClick);
  Ecran<TFrmComptabilite>().dtChange(EncodeDate(2016, 10, 24), EncodeDate(2016, 10, 31));
  Prendre(u"compta"_s);
}
