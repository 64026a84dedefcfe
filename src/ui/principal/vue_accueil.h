#pragma once
#include <QWidget>

class QVBoxLayout;
class TFrmMain;

/// What a school does first, while the year has no pupil: four lines, each with state and button.
class VueAccueil : public QWidget {
  Q_OBJECT
 public:
  explicit VueAccueil(TFrmMain& form, QWidget* parent = nullptr);

  void Actualiser();
  /// The focus to the next step.
  void PrendreFoyer();

 private:
  class Ligne;

  TFrmMain& form_;
  QVBoxLayout* place_;
  std::vector<Ligne*> lignes_;
};
