#pragma once
#include <QWidget>

#include "forms/signal.h"

class Compteur;
class EtatVide;
class Etiquette;
class FeuilleProgression;
class MarqueEtat;
class QPushButton;
class TFrmImport;
class VueGrille;

/// "Importation des élèves"
class VueImport : public QWidget {
  Q_OBJECT
 public:
  VueImport(TFrmImport& form, QWidget* parent);

 private:
  void Disposer();
  void Actualiser();
  void ActualiserFeuille();

  TFrmImport& form_;
  QPushButton* etape1_;
  QPushButton* etape2_;
  Compteur* eleves_;
  MarqueEtat* fichier_;
  Etiquette* effet_;
  FeuilleProgression* feuille_;
  VueGrille* grille_;
  EtatVide* vide_;
  bool feuilleOuverte_ = false;
  TLien lien_;
};
