#pragma once
#include <array>

#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class ChampFiltre;
class LiaisonChamps;
class MarqueEtat;
class QPushButton;
class TFrmAttributionVirement;
class VueGrille;

/// "Attribution manuelle des paiements": the movement, the pupil that it went to, the payment that it
/// becomes.
class VueAttributionVirement : public DialogueBase {
  Q_OBJECT
 public:
  VueAttributionVirement(TFrmAttributionVirement& form, QWidget* parent);

 protected:
  bool Valider() override;
  void reject() override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  QLayout* CreerMouvement();
  QLayout* CreerEleve();
  QLayout* CreerProposition();
  QLayout* CreerPaiement();
  void CreerBoutons();
  void Actualiser();
  void PlacerFoyer();
  void Deplacer(int pas);

  TFrmAttributionVirement& form_;
  LiaisonChamps* liaison_;
  std::array<Etiquette*, 5> mouvement_{};
  ChampFiltre* nom_;
  VueGrille* eleves_;
  Etiquette* classe_;
  MarqueEtat* valide_;
  Etiquette* proposition_;
  QPushButton* accepter_;
  QPushButton* ajouter_;
  QPushButton* suivant_ = nullptr;
  QPushButton* repartir_ = nullptr;
  TLiens liens_;
};
