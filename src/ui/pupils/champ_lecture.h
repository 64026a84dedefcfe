#pragma once
#include <QLineEdit>

/// A field that shows a text from its beginning; what does not fit is in the tip.
class ChampLecture : public QLineEdit {
  Q_OBJECT
 public:
  explicit ChampLecture(const QString& nom, QWidget* parent = nullptr);
  void Montrer(const QString& texte);

 protected:
  bool event(QEvent* evenement) override;
};
