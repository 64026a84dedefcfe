#pragma once
#include <QWidget>

class Etiquette;
class QComboBox;
class QToolButton;

/// The class and the day of a meal screen, in one row: a list, and the date between its two steps.
class ChoixClasseJour : public QWidget {
  Q_OBJECT
 public:
  /// `avecClasse`: there is a list of classes.
  explicit ChoixClasseJour(bool avecClasse, QWidget* parent = nullptr);
  void DefinirClasses(const QStringList& classes, int choisie);
  /// `pas`: the two steps are shown.
  void DefinirJour(const QString& titre, bool pas);
  /// The row holds as it is.
  void Verrouiller(bool verrou);
  /// Behind the date.
  void AjouterAction(QWidget* action);

 signals:
  void ClasseChoisie(int indice);
  void Recule();
  void Avance();

 private:
  QComboBox* classes_;
  QToolButton* recule_;
  Etiquette* jour_;
  QToolButton* avance_;
};
