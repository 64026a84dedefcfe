#pragma once
#include <QWidget>
#include <map>

#include "screens/principal/commandes.h"

class QHBoxLayout;
class QToolButton;
class TFrmMain;

/// Page tabs, commands of the active page, shared commands, and the menu of years on the right.
class BarreCommandes : public QWidget {
  Q_OBJECT
 public:
  explicit BarreCommandes(TFrmMain& form, QWidget* parent = nullptr);

  /// Shows the state of the form.
  void Actualiser();
  /// Only the shared commands.
  void ActualiserOutils();
  void OuvrirMenuAnnees();
  /// By its place among the pages that are shown, from 0; another does nothing.
  void ActiverPage(int rang);
  QToolButton* Bouton(TGestionnaire gestionnaire) const { return commandes_.at(gestionnaire); }
  QToolButton* Bouton(TOutil outil) const { return outils_.at(outil); }
  QToolButton* Aide() const { return aide_; }
  QToolButton* Annees() const { return annees_; }
  QToolButton* Onglet(TPage page) const { return onglets_.at(page); }

 signals:
  void GuideDemande();
  void TouchesDemandees();
  void AProposDemande();

 protected:
  void paintEvent(QPaintEvent* evenement) override;

 private:
  void CreerAide(QHBoxLayout& ligne);
  void CreerOnglets(QHBoxLayout& ligne);
  void CreerCommandes(QHBoxLayout& ligne);
  void CreerOutils(QHBoxLayout& ligne);

  TFrmMain& form_;
  std::map<TPage, QToolButton*> onglets_;
  std::map<TGestionnaire, QToolButton*> commandes_;
  std::map<TOutil, QToolButton*> outils_;
  QWidget* separateur_;
  QToolButton* annees_;
  QToolButton* aide_;
};
