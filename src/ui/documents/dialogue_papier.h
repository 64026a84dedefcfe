#pragma once
#include "screens/documents/frm_apercu.h"
#include "ui/commun/dialogue_base.h"

class QComboBox;
class QDoubleSpinBox;
class QRadioButton;

/// "Mise en page": paper, its direction, and the margin on all sides.
class DialoguePapier : public DialogueBase {
  Q_OBJECT
 public:
  DialoguePapier(const TPapier& papier, QWidget* parent);
  TPapier Papier() const;

 private:
  void AjouterFormat(const QString& nom, const QSizeF& taille);

  QComboBox* format_;
  QRadioButton* portrait_;
  QRadioButton* paysage_;
  QDoubleSpinBox* marge_;
};
