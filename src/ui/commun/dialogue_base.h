#pragma once
#include <QDialog>

#include "ui/commun/etiquette.h"

class MarqueEtat;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

/// A dialog of the house: content, a line for a fault, "Annuler" on the left and the primary button
/// on the right. Enter is the primary button, Escape "Annuler".
class DialogueBase : public QDialog {
  Q_OBJECT
 public:
  explicit DialogueBase(const QString& titre, QWidget* parent = nullptr);

  /// Where the content goes.
  QVBoxLayout* Contenu() const { return contenu_; }
  QPushButton* Principal() const { return principal_; }
  QPushButton* Annuler() const { return annuler_; }
  void DefinirPrincipal(const QString& texte, const QString& icone = {});
  /// A plain button left of the primary one.
  QPushButton* AjouterBouton(const QString& texte, const QString& icone = {});
  /// A heading above the content; "" takes it away.
  void DefinirEntete(const QString& texte);
  /// Why it was refused; "" takes it away. The field gets the focus and is drawn as faulty.
  void MontrerFaute(const QString& texte, QWidget* champ = nullptr);

 protected:
  /// The primary button was pressed: does the work and answers whether the dialog may close. Accepts
  /// by itself.
  virtual bool Valider() { return true; }

 private:
  Etiquette* entete_;
  QVBoxLayout* contenu_;
  MarqueEtat* faute_;
  QWidget* fautif_ = nullptr;
  QHBoxLayout* boutons_;
  QPushButton* annuler_;
  QPushButton* principal_;
};
