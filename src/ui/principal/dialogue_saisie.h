#pragma once
#include "core/dialogues.h"
#include "ui/commun/dialogue_base.h"

class QLineEdit;

/// A line of text. What is refused is said, and the dialog stays.
class DialogueSaisie : public DialogueBase {
  Q_OBJECT
 public:
  explicit DialogueSaisie(TSaisie saisie, QWidget* parent = nullptr);

  /// As typed.
  QString Texte() const;

 protected:
  bool Valider() override;

 private:
  TSaisie saisie_;
  QLineEdit* champ_;
};
