#pragma once
#include <QLineEdit>

/// A field for a text, shown from its beginning; what does not fit is in the tip.
class ChampTexte : public QLineEdit {
  Q_OBJECT
 public:
  explicit ChampTexte(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* evenement) override;
};
