#pragma once
#include <QWidget>
#include <array>

#include "forms/signal.h"

class EtatVide;
class Etiquette;
class QTabWidget;
class TFrmTicket;
class VueGrille;

/// "Gestion des tickets": a page for the class, one for the pupil in hand, one for whoever has less than
/// three tickets in the school.
class VueTicket : public QWidget {
  Q_OBJECT
 public:
  VueTicket(TFrmTicket& form, QWidget* parent);

 private:
  QWidget* Classe();
  QWidget* PageDetail();
  QWidget* PageSousTrois();
  QLayout* Boutons();
  void Actualiser();
  void MontrerVides();

  TFrmTicket& form_;
  Etiquette* classe_;
  std::array<Etiquette*, 3> compteurs_{};
  VueGrille* eleves_;
  Etiquette* eleve_;
  VueGrille* detail_;
  Etiquette* titreSousTrois_;
  VueGrille* sousTrois_;
  QTabWidget* pages_;
  EtatVide* vide_;
  EtatVide* sansTicket_;
  EtatVide* personne_;
  TLiens liens_;
};
