#pragma once
#include "core/dialogues.h"
#include "ui/commun/dialogue_base.h"

/// The connection failed: what to look at, a link to change the server's name, "Réessayer" or "Annuler".
class DialogueReessai : public DialogueBase {
  Q_OBJECT
 public:
  explicit DialogueReessai(const TReessai& reessai, QWidget* parent = nullptr);
};
