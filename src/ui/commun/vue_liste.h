#pragma once
#include <QScrollArea>

#include "forms/signal.h"

class EtatVide;
class LiaisonChamps;
class MarqueEtat;
class QBoxLayout;
class TFrmListe;
class TitreEcran;
class TitreSection;
class VueGrille;

/// The view of any list screen: the list with its filter above, the panel of its fields below.
class VueListe : public QScrollArea {
  Q_OBJECT
 public:
  VueListe(TFrmListe& form, QWidget* parent);

 protected:
  VueGrille* Liste() const { return liste_; }
  /// Beside the fields, for what a screen has more.
  QBoxLayout* Panneau() const { return panneau_; }
  virtual void Actualiser();
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  TitreEcran* CreerTitre();
  QWidget* CreerPanneau();
  void AjouterRetablir();

  TFrmListe& form_;
  VueGrille* liste_;
  LiaisonChamps* liaison_;
  EtatVide* vide_;
  TitreSection* titre_;
  MarqueEtat* marque_;
  QBoxLayout* panneau_;
  bool lecture_ = true;  ///< as it was shown last: once the panel is left the hand is at the list
  TLiens liens_;
};
