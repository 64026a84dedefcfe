#pragma once
#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class LiaisonChamps;
class TFrmAjoutTicket;

/// "Ajouter des tickets": what is sold, and what the sale settles.
class VueAjoutTicket : public DialogueBase {
  Q_OBJECT
 public:
  VueAjoutTicket(TFrmAjoutTicket& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  void Actualiser();

  TFrmAjoutTicket& form_;
  LiaisonChamps* liaison_;
  QLabel* date_ = nullptr;
  Etiquette* annonce_;
  TLien lien_;
};
