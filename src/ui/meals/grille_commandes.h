#pragma once
#include <QTableWidget>

#include "forms/signal.h"

class TFrmReservation;

/// The grid of orders. A cell is marked by a click, by Space, or by the letter of its column.
class GrilleCommandes : public QTableWidget {
  Q_OBJECT
 public:
  explicit GrilleCommandes(TFrmReservation& form, QWidget* parent = nullptr);

  /// How to mark by keyboard.
  QString Aide() const;

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  void Remplir();
  void Ecrire(int ligne);
  void EcrireNom(QTableWidgetItem& cellule, const struct TLigneGrille& ligne) const;
  void Cliquer(int ligne, int colonne);
  void Changer(int ligne, int colonne, int ligneAvant, int colonneAvant);
  /// The column of a letter; 0 for none.
  int ColonneDe(const QString& lettre) const;

  TFrmReservation& form_;
  QString lettres_;  ///< of columns 1 on
  bool enCours_ = false;
  TLiens liens_;
};
