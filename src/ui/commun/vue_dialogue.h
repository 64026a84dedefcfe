#pragma once
#include "ui/commun/dialogue_base.h"

class LiaisonChamps;
class TFrmDialogue;

/// The view of any form that is a table of fields.
class VueDialogue : public DialogueBase {
  Q_OBJECT
 public:
  VueDialogue(TFrmDialogue& form, QWidget* parent);

 protected:
  bool Valider() override;

 private:
  TFrmDialogue& form_;
  LiaisonChamps* liaison_;
};
