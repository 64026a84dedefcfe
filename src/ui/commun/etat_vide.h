#pragma once
#include <QWidget>

#include "forms/vide.h"
#include "ui/commun/etiquette.h"

class QPushButton;

/// What is missing, one sentence, one button; laid over an empty grid or screen.
class EtatVide : public QWidget {
  Q_OBJECT
 public:
  /// Over the whole of `hote`, or over the rows of a grid. Hidden at first.
  explicit EtatVide(QWidget* hote);
  /// `phrase` and `bouton` may be empty.
  void Montrer(const QString& titre, const QString& phrase = {}, const QString& bouton = {});
  /// As the form says it.
  void Montrer(const TVide& vide);
  void Cacher();

 signals:
  void BoutonPresse();

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void Placer();

  Etiquette* titre_;
  Etiquette* phrase_;
  QPushButton* bouton_;
};
