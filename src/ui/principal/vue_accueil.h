#pragma once
#include <QScrollArea>

class Etiquette;
class QVBoxLayout;
class TFrmMain;

/// What a school does first, and again in a new year: a line a step, each with state and button.
/// On another year than the working one it says so: the import goes to the working year.
class VueAccueil : public QScrollArea {
  Q_OBJECT
 public:
  explicit VueAccueil(TFrmMain& form, QWidget* parent = nullptr);

  void Actualiser();
  /// The focus to the next step.
  void PrendreFoyer();

 private:
  class Ligne;

  TFrmMain& form_;
  Etiquette* titre_;
  Etiquette* phrase_;
  QVBoxLayout* place_;
  std::vector<Ligne*> lignes_;
};
