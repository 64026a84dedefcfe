#pragma once
#include <QLineEdit>

using namespace Qt::StringLiterals;

/// "Filtrer": what is typed holds at once, Escape empties it, the arrow down goes to the grid.
class ChampFiltre : public QLineEdit {
  Q_OBJECT
 public:
  explicit ChampFiltre(const QString& indication = u"Filtrer"_s, QWidget* parent = nullptr);
  /// The arrow down gives it the focus. VueGrille::Filtrer does it for its own field.
  void DefinirSuite(QWidget* suite) { suite_ = suite; }

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  QWidget* suite_ = nullptr;
};
