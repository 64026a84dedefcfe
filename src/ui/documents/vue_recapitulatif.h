#pragma once
#include <QScrollArea>

#include "forms/signal.h"

class ArbrePassages;
class DiagrammeMois;
class LiaisonChamps;
class PageStatistique;
class QPushButton;
class QTabWidget;
class TFrmRecapitulatif;
class TGrille;

/// The statistics of the school, page by page.
class VueRecapitulatif : public QScrollArea {
  Q_OBJECT
 public:
  VueRecapitulatif(TFrmRecapitulatif& form, QWidget* parent);

 private:
  PageStatistique* AjouterPage(const QString& titre, QWidget* liste);
  /// A page whose list is a grid; `cle` keeps its widths.
  PageStatistique* AjouterListe(const QString& titre, TGrille& grille, const QString& cle);
  void CreerImpayes();
  void CreerPositives();
  void CreerPassages();
  void CreerAnnuel();
  void CreerPaiements();
  void CreerFiscales();
  void CreerFrais();
  void AjouterPeriode(PageStatistique& page, const QString& debut, const QString& fin);
  void AjouterCommande(PageStatistique& page, const QString& texte, const QString& icone,
                       void (TFrmRecapitulatif::*faire)());
  void Actualiser();

  TFrmRecapitulatif& form_;
  LiaisonChamps* liaison_;
  QTabWidget* onglets_;
  std::vector<PageStatistique*> pages_;
  ArbrePassages* arbre_ = nullptr;
  QPushButton* etendre_ = nullptr;
  DiagrammeMois* diagramme_ = nullptr;
  bool etendu_ = false;
  TLiens liens_;
};
