#pragma once
#include <QWidget>

class Etiquette;
class QComboBox;
class QToolButton;
class TFrmClasseJour;

/// The class and the day of a meal screen, in one row: a list, and the date between its two steps.
class ChoixClasseJour : public QWidget {
  Q_OBJECT
 public:
  /// `avecClasse`: there is a list of classes.
  explicit ChoixClasseJour(bool avecClasse, QWidget* parent = nullptr);
  /// `pas`: the two steps are shown.
  void DefinirJour(const QString& titre, bool pas);
  /// The row holds as it is.
  void Verrouiller(bool verrou);
  /// What is chosen goes to the screen, whose class and day `Montrer` shows.
  void Suivre(TFrmClasseJour& form);
  void Montrer(const TFrmClasseJour& form);
  /// Behind the date.
  void AjouterAction(QWidget* action);

 signals:
  void ClasseChoisie(int indice);
  void Recule();
  void Avance();

 private:
  void DefinirClasses(const QStringList& classes, int choisie);

  QComboBox* classes_;
  QToolButton* recule_;
  Etiquette* jour_;
  QToolButton* avance_;
};
