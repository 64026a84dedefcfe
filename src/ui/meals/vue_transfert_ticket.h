#pragma once
#include "forms/signal.h"
#include "ui/commun/dialogue_base.h"

class Etiquette;
class TFrmTransfertTicket;

/// "Transférer un ticket": the pupils of the year, filtered as one types.
class VueTransfertTicket : public DialogueBase {
  Q_OBJECT
 public:
  VueTransfertTicket(TFrmTransfertTicket& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  TFrmTransfertTicket& form_;
  Etiquette* classe_;
  TLiens liens_;
};
