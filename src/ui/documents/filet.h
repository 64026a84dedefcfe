#pragma once
#include <QWidget>

/// A hairline between two parts of a window.
class Filet : public QWidget {
  Q_OBJECT
 public:
  explicit Filet(Qt::Orientation sens, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* evenement) override;
};
