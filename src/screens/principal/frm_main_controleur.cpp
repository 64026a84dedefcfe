// The main window as the controller sees it: pages, commands, tree and year on display.
#include "screens/principal/arbre_eleves.h"
#include "screens/principal/frm_main.h"

namespace {

template <class T>
void Masquer(std::vector<T>& caches, T valeur, bool cache) {
  std::erase(caches, valeur);
  if (cache) caches.push_back(valeur);
}

TGestionnaire GestionnaireDe(TCommandePage commande) {
  switch (commande) {
    case TCommandePage::btnTicket:
      return TGestionnaire::btnTicketClick;
    case TCommandePage::btnCuisine:
      return TGestionnaire::btnCuisineClick;
    case TCommandePage::btnComptabilite:
      break;
  }
  return TGestionnaire::btnComptabiliteClick;
}

}  // namespace

void TFrmMain::MontrerPage(TPage page, bool oui) {
  Masquer(pagesCachees_, page, !oui);
  Annoncer();
}

void TFrmMain::ActiverPage(TPage page) {
  page_ = page;
  Annoncer();
}

void TFrmMain::MontrerCommande(TCommandePage commande, bool oui) {
  Masquer(commandesCachees_, GestionnaireDe(commande), !oui);
  Annoncer();
}

void TFrmMain::MontrerArbre(bool oui) {
  arbreVisible_ = oui;
  Annoncer();
}

void TFrmMain::ConstruireArbre() {
  MontrerTrouves({});
  ::ConstruireArbre(Arbre, true, true);
}

void TFrmMain::IntitulerAnnee(const QString& texte) {
  intituleAnnee_ = texte;
  Annoncer();
}

void TFrmMain::CocherAnnee(int annee) {
  anneeCochee_ = annee;
  Annoncer();
}

void TFrmMain::OuvrirReservationTablette() { Executer(TGestionnaire::btnReservationTabletteClick); }

void TFrmMain::OuvrirReservation() { Executer(TGestionnaire::btnReservationClick); }

void TFrmMain::FermerEcran() {
  enSuspens_ = Panneau.EnSuspens();
  Panneau.Vider();
  accueilDevant_ = false;
  outils_ = 0;
  Annoncer();
}

void TFrmMain::QuitterChamp() {
  if (TForm* ecran = Panneau.Courante()) ecran->LaisserChamp();
}

void TFrmMain::DureeBulles(int ms) { SurDureeBulles(ms); }

void TFrmMain::Terminer() { SurTerminer(); }
