#pragma once
#include <QTreeWidget>

#include "forms/signal.h"

class TFrmRecapitulatif;

/// The pupils who came and went, with their records below. The lines of a pupil are made when he is opened.
class ArbrePassages : public QTreeWidget {
  Q_OBJECT
 public:
  explicit ArbrePassages(TFrmRecapitulatif& form, QWidget* parent = nullptr);
  /// Opens or shuts every pupil.
  void Etendre(bool oui);
  /// Only pupils whose name or class holds the text.
  void Filtrer(const QString& texte);

 private:
  void Remplir();
  void Trier();
  void Ouvrir(QTreeWidgetItem& ligne);

  TFrmRecapitulatif& form_;
  TLiens liens_;
};
