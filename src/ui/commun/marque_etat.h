#pragma once
#include <QWidget>

#include "forms/grille.h"
#include "screens/contexte_ecran.h"
#include "ui/commun/etiquette.h"

/// The colour that goes with an icon of a state.
TRole RoleDeIcone(const QString& icone);
/// The colour of a state: its own tone, else that of its icon.
TRole RoleDeEtat(const TEtatGrille& etat);
/// Icon of a level; empty for Neutre.
QString IconeDeNiveau(TNiveauEtat niveau);

/// A state as icon and word.
class MarqueEtat : public QWidget {
  Q_OBJECT
 public:
  explicit MarqueEtat(QWidget* parent = nullptr);
  /// `icone` is a Breeze name; both empty shows nothing and keeps the place.
  void Definir(const QString& icone, const QString& texte);
  /// The same with the icon of the level; Neutre has none.
  void Definir(TNiveauEtat niveau, const QString& texte);
  QString Texte() const { return texte_->text(); }

 protected:
  void changeEvent(QEvent* evenement) override;

 private:
  void Redessiner();

  QLabel* image_;
  Etiquette* texte_;
  QString icone_;
};
