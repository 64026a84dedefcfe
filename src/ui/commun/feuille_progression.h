#pragma once
#include <QFrame>

#include "ui/commun/etiquette.h"

class QProgressBar;

/// Band in the content while long work runs: title, "n sur m", bar, name in hand. Hidden at first.
class FeuilleProgression : public QFrame {
  Q_OBJECT
 public:
  explicit FeuilleProgression(QWidget* parent = nullptr);
  /// Shows the band. `total` 0: how long is not known. `libelle` stands before the name in hand.
  void Demarrer(const QString& titre, int total, const QString& libelle = {}, const QString& note = {});
  void Avancer(int fait, const QString& nom);
  /// Stays, in the colour of faults: "Arrêté à la ligne 185".
  void Arreter(const QString& titre, const QString& note = {});
  /// Hides the band.
  void Terminer();

 protected:
  void paintEvent(QPaintEvent* evenement) override;

 private:
  Etiquette* titre_;
  Etiquette* compte_;
  QProgressBar* barre_;
  Etiquette* libelle_;
  Etiquette* nom_;
  Etiquette* note_;
};
