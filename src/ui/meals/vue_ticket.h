#pragma once
#include <QWidget>
#include <array>

#include "forms/signal.h"

class EtatVide;
class Etiquette;
class QTabWidget;
class TFrmTicket;
class VueGrille;

/// "Gestion des tickets": the class on one page, the pupil in hand on the other.
class VueTicket : public QWidget {
  Q_OBJECT
 public:
  VueTicket(TFrmTicket& form, QWidget* parent);

 private:
  QWidget* Classe();
  QWidget* PageDetail();
  QLayout* Boutons();
  void Actualiser();
  void MontrerVides();

  TFrmTicket& form_;
  Etiquette* classe_;
  std::array<Etiquette*, 3> compteurs_{};
  VueGrille* eleves_;
  Etiquette* eleve_;
  VueGrille* detail_;
  QTabWidget* pages_;
  EtatVide* vide_;
  EtatVide* sansTicket_;
  TLiens liens_;
};
