#pragma once
#include <QWidget>
#include <array>

#include "forms/grille.h"

class ChoixClasseJour;
class EtatVide;
class Etiquette;
class GrilleCommandes;
class QPushButton;
class QStackedWidget;
class RangeeCompteurs;
class TFrmReservation;
class VueGrille;

/// "Réservation": the grid of a class and a day, or the month at a glance, and the pupil in hand.
class VueReservation : public QWidget {
  Q_OBJECT
 public:
  VueReservation(TFrmReservation& form, QWidget* parent);

 protected:
  /// In front again: another screen may have sold tickets.
  void showEvent(QShowEvent* evenement) override;

 private:
  void Disposer();
  QLayout* Boutons();
  QLayout* Eleve();
  void Actualiser();
  void MontrerMois(bool mois);

  TFrmReservation& form_;
  ChoixClasseJour* choix_;
  RangeeCompteurs* comptes_;
  GrilleCommandes* grille_;
  TGrille mois_;
  VueGrille* vueMois_;
  QStackedWidget* pages_;
  QPushButton* boutonMois_;
  std::array<QPushButton*, 2> reprises_{};
  Etiquette* nom_;
  Etiquette* solde_;
  Etiquette* aide_;
  EtatVide* vide_;
  TLiens liens_;
};
