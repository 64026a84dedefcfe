#pragma once
#include <QWidget>

#include "ui/commun/etiquette.h"

/// A number and its word: "128 lignes dans le fichier". Disabled, it is greyed: not known any more.
class Compteur : public QWidget {
  Q_OBJECT
 public:
  explicit Compteur(const QString& mot, QWidget* parent = nullptr);
  void Definir(int nombre);
  void Definir(const QString& nombre);
  void DefinirMot(const QString& mot);
  /// Colour of the number: Alerte when there are anomalies.
  void DefinirRole(TRole role) { nombre_->DefinirRole(role); }

 private:
  Etiquette* nombre_;
  Etiquette* mot_;
};
