#pragma once
#include "ui/commun/dialogue_base.h"

class QLineEdit;

/// A line of text. The first line of `invite` is the label of the field, the others stand below it.
class DialogueSaisie : public DialogueBase {
  Q_OBJECT
 public:
  DialogueSaisie(const QString& titre, const QString& invite, const QString& valeur,
                 QWidget* parent = nullptr);

  /// As typed.
  QString Texte() const;

 private:
  QLineEdit* champ_;
};
