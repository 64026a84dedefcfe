#pragma once
#include "ui/commun/vue_liste.h"

class ArbreCoches;
class Etiquette;
class QPushButton;
class TFrmListeFrais;

/// The list of fees; beside the panel, who owes the fee in hand.
class VueListeFrais : public VueListe {
  Q_OBJECT
 public:
  VueListeFrais(TFrmListeFrais& form, QWidget* parent);

 protected:
  void Actualiser() override;

 private:
  TFrmListeFrais& frais_;
  QPushButton* mode_;
  Etiquette* nombre_;
  ArbreCoches *tvEleve_, *tvClasse_;
  TLiens liens_;
};
