#pragma once
#include <QWidget>

#include "ui/commun/rangee_pliante.h"

class EtatVide;
class Etiquette;
class QBoxLayout;
class TitreSection;
class VueGrille;
struct TTotalListe;

/// A page of the statistics: a heading, what the list is filled by, the list, its totals, what can be done.
class PageStatistique : public QWidget {
  Q_OBJECT
 public:
  PageStatistique(const QString& titre, QWidget* liste);

  /// Filter, ticking and copying of a grid, beside the heading.
  void AjouterOutils(VueGrille& grille);
  TitreSection& Titre() const { return *titre_; }
  /// The row above the list.
  RangeePliante& Criteres() const { return *criteres_; }
  /// Beside the list.
  void AjouterACote(QWidget* widget);
  /// The row below it.
  RangeePliante& Commandes() const { return *commandes_; }
  /// A text instead of an empty list.
  void Montrer(const std::vector<TTotalListe>& totaux, const QString& vide);

 private:
  TitreSection* titre_;
  RangeePliante* criteres_;
  QBoxLayout* milieu_;
  RangeePliante* totaux_;
  RangeePliante* commandes_;
  EtatVide* vide_;
  std::vector<Etiquette*> valeurs_;
};
