#pragma once
#include <QScrollArea>
#include <array>

#include "forms/signal.h"

class Compteur;
class EtatVide;
class Etiquette;
class QAction;
class QMenu;
class QPushButton;
class TfrmPresences;
class TitreSection;
class VueGrille;

/// "Présences": the scans of a file. Scrolls where large text leaves no room for both lists.
class VuePresences : public QScrollArea {
  Q_OBJECT
 public:
  VuePresences(TfrmPresences& form, QWidget* parent);

 protected:
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

 private:
  void CreerMenu();
  QLayout* Etapes();
  QLayout* Comptes();
  void CreerGrilles();
  void Disposer();
  void Actualiser();
  void ActualiserEtapes();
  void ActualiserComptes();
  void MesurerAnomalies();
  void Importer();
  void ImporterFichier();
  void Corriger();
  void PlacerFoyer();

  TfrmPresences& form_;
  QPushButton* etape1_;
  QPushButton* etape2_;
  QPushButton* source_;
  QMenu* menu_;
  QAction* changerSource_;
  Etiquette* fichier_;
  std::array<Compteur*, 4> comptes_{};
  TitreSection* titreAnomalies_;
  QPushButton* corriger_;
  VueGrille* anomalies_;
  TitreSection* titreRecapitulatif_;
  VueGrille* recapitulatif_;
  EtatVide* vide_;
  bool foyerARendre_ = false;  // step 1 had the focus when it was disabled
  TLien lien_;
};
