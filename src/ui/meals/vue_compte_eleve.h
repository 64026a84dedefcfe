#pragma once
#include <QWidget>
#include <array>

#include "forms/signal.h"
#include "meals/comptage.h"

class ChoixClasseJour;
class EtatVide;
class Etiquette;
class QLineEdit;
class QPushButton;
class RangeeCompteurs;
class TFrmCompteEleve;
class VueGrille;

/// "Comptes": the accounts of a class, and the cash panel, a row a note.
class VueCompteEleve : public QWidget {
  Q_OBJECT
 public:
  VueCompteEleve(TFrmCompteEleve& form, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void OrdonnerFoyer();
  QWidget* CreerPanneau();
  QWidget* CreerMonnaie();
  void AjouterCoupure(class QGridLayout& grille, int coupure);
  void Disposer();
  void Actualiser();

  TFrmCompteEleve& form_;
  ChoixClasseJour* choix_;
  RangeeCompteurs* comptes_;
  Etiquette* titre_;
  Etiquette* recu_;
  VueGrille* grille_;
  Etiquette* nom_;
  QPushButton* ajouter_;
  QWidget* monnaie_ = nullptr;
  std::array<QPushButton*, kNombreCoupures> boutons_{};
  std::array<QLineEdit*, kNombreCoupures> champs_{};
  Etiquette* note_;
  Etiquette* total_;
  QPushButton* valider_;
  QPushButton* annuler_;
  EtatVide* vide_;
  TLiens liens_;
};
