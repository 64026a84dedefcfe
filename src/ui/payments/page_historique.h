#pragma once
#include <QWidget>
#include <array>

#include "forms/signal.h"

class EtatVide;
class Etiquette;
class QAction;
class QPushButton;
class TFrmVirement;
class TitreSection;
class VueGrille;

/// "Historique des virements": the movements of the year.
class PageHistorique : public QWidget {
  Q_OBJECT
 public:
  explicit PageHistorique(TFrmVirement& form);
  /// The hand goes to the list, at its first row when none is chosen. Nothing while the page is hidden.
  void PrendreFoyer();

 private:
  QPushButton* CreerFiltreEtat(const QString& texte, const QString& nom, void (TFrmVirement::*faire)());
  void CreerTitre();
  void CreerMenu();
  QAction* AjouterAction(const QString& texte, void (TFrmVirement::*faire)(), const QString& icone = {});
  void Disposer();
  void Attribuer();
  void Actualiser();

  TFrmVirement& form_;
  TitreSection* titre_;
  VueGrille* grille_;
  EtatVide* vide_;
  QPushButton* comptabilises_;
  QPushButton* inconnus_;
  QPushButton* attribuer_;
  std::array<Etiquette*, 3> totaux_{};
  QAction* caches_ = nullptr;
  TLiens liens_;
};
