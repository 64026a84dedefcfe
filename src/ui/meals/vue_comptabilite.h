#pragma once
#include <QWidget>
#include <utility>
#include <vector>

#include "forms/signal.h"

class EtatVide;
class LiaisonChamps;
class QTabWidget;
class TFrmComptabilite;
class TGrille;

/// "Compta": the tickets sold over a period, a page a way of paying.
class VueComptabilite : public QWidget {
  Q_OBJECT
 public:
  VueComptabilite(TFrmComptabilite& form, QWidget* parent);

 protected:
  /// In front again: another screen may have sold tickets.
  void showEvent(QShowEvent* evenement) override;

 private:
  void AjouterPage(QTabWidget& pages, TGrille& grille, const QString& titre, const QString& ecran);
  void Actualiser();

  TFrmComptabilite& form_;
  LiaisonChamps* liaison_;
  std::vector<std::pair<const TGrille*, EtatVide*>> vides_;
  TLien lien_;
};
