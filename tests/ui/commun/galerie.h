#pragma once
#include <QWidget>

#include "forms/grille.h"

/// Every control and state of the shared widgets on one page, to be walked and to be looked at.
class Galerie : public QWidget {
 public:
  Galerie();
  ~Galerie() override;

 private:
  QWidget* contenu_;
  QWidget* Commandes();
  QWidget* Champs();
  QWidget* Etats();
  QWidget* Listes();
  QWidget* Mois();

  TGrille frais_;
  TGrille releve_;
  TGrille vide_;
};
