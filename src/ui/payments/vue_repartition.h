#pragma once
#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class LiaisonChamps;
class MarqueEtat;
class QPushButton;
class TFrmRepartition;
class VueGrille;

/// "Répartir le virement": the parts above, the pupils of the year below. Enter on a pupil gives a part,
/// Suppr takes one away.
class VueRepartition : public DialogueBase {
  Q_OBJECT
 public:
  VueRepartition(TFrmRepartition& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  QLayout* CreerParts();
  QLayout* CreerEleves();
  void Actualiser();

  TFrmRepartition& form_;
  LiaisonChamps* liaison_;
  VueGrille* parts_;
  VueGrille* eleves_;
  MarqueEtat* reste_;
  QPushButton* retirer_ = nullptr;
  TLiens liens_;
};
