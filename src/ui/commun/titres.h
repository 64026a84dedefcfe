#pragma once
#include <QWidget>

#include "ui/commun/etiquette.h"

class QHBoxLayout;
class QVBoxLayout;

/// A heading, a secondary note beside it and actions on the right.
class Titre : public QWidget {
  Q_OBJECT
 public:
  void DefinirTexte(const QString& texte);
  QString Texte() const { return titre_->text(); }
  void DefinirNote(const QString& note);
  /// It is never shortened for the actions beside it.
  void GarderTexte();
  /// The widget becomes the last on the right.
  void AjouterAction(QWidget* action);
  /// Right behind the heading (a list of months, for instance).
  void AjouterSuite(QWidget* suite);

 protected:
  Titre(const QString& texte, QFont (*police)(), QWidget* parent);

 private:
  Etiquette* titre_;
  Etiquette* note_;
  QHBoxLayout* ligne_;
  int suites_ = 0;
};

class TitreEcran : public Titre {
  Q_OBJECT
 public:
  explicit TitreEcran(const QString& texte, QWidget* parent = nullptr)
      : Titre(texte, &Theme::TitreEcran, parent) {}
};

class TitreSection : public Titre {
  Q_OBJECT
 public:
  explicit TitreSection(const QString& texte, QWidget* parent = nullptr)
      : Titre(texte, &Theme::TitreSection, parent) {}
};

/// The column of a whole screen under its heading, with the margins that all screens share. Of a screen that
/// is a scroll area, the column of the page that it scrolls.
QVBoxLayout* ColonneEcran(QWidget& ecran, TitreEcran* titre);
inline QVBoxLayout* ColonneEcran(QWidget& ecran, const QString& titre) {
  return ColonneEcran(ecran, new TitreEcran(titre));
}
