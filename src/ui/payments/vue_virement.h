#pragma once
#include <QWidget>

#include "forms/signal.h"

class EtatVide;
class Etiquette;
class FeuilleProgression;
class PageHistorique;
class QPushButton;
class QTabWidget;
class TFrmVirement;
class TitreSection;
class VueGrille;

/// "Virements": three pages, the import, the history and the statement of the year.
class VueVirement : public QWidget {
  Q_OBJECT
 public:
  VueVirement(TFrmVirement& form, QWidget* parent);

 private:
  QWidget* PageImportation();
  QWidget* PageReleve();
  void Actualiser();
  void ActualiserFeuille();

  TFrmVirement& form_;
  QTabWidget* pages_;
  QPushButton* etape1_;
  QPushButton* etape2_;
  Etiquette* statut_;
  FeuilleProgression* feuille_;
  TitreSection* titre_;
  VueGrille* apercu_;
  EtatVide* vide_;
  PageHistorique* historique_;
  bool feuilleOuverte_ = false;
  TLien lien_;
};
