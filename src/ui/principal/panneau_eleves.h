#pragma once
#include <QSet>
#include <QWidget>

#include "forms/signal.h"

class Etiquette;
class ModeleArbre;
class QAction;
class QLineEdit;
class QListWidget;
class QTreeView;
class TFrmMain;

/// Search and pupil tree, on the left of the main window.
class PanneauEleves : public QWidget {
  Q_OBJECT
 public:
  PanneauEleves(TFrmMain& form, QWidget* parent = nullptr);

  /// To the search, its text selected.
  void AllerALaRecherche();
  /// What may be used, and the count at the foot.
  void Actualiser();
  /// The selected node of the form is made visible.
  void SuivreSelection();
  QTreeView* Arbre() const { return arbre_; }
  QLineEdit* Recherche() const { return recherche_; }

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  void CreerRecherche();
  void CreerArbre();
  void CreerTrouves();
  void MontrerTrouves();
  void Relire();
  void Deplier(const QModelIndex& index);
  void NoterPli(const QModelIndex& index, bool ouvert);
  void Texter(const QString& texte);
  bool ToucheRecherche(int touche);
  void MontrerMenu(const QWidget& ou, const QPoint& position);

  TFrmMain& form_;
  ModeleArbre* modele_;
  QLineEdit* recherche_;
  QAction* suivant_;
  QListWidget* trouves_;
  QTreeView* arbre_;
  QWidget* sansEleve_;  // in the place of the tree
  Etiquette* vide_;
  Etiquette* phrase_;
  Etiquette* compte_;
  // By their path, so that a tree built anew opens as it was: sites stand open, classes shut.
  QSet<QString> fermes_;
  QSet<QString> ouverts_;
  TLiens liens_;
};
