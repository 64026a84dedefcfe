#pragma once
#include <QScrollArea>
#include <functional>

#include "forms/signal.h"

class EtatVide;
class FicheIdentite;
class PiedDeGrille;
class QAction;
class QComboBox;
class QGridLayout;
class TFrmSignaletique;
class TitreSection;
class VueGrille;

/// The pupil record: who it is on the left, services of a month above fees and payments on the right.
/// With much room these stand side by side, with little all is one column that scrolls.
class VueSignaletique : public QScrollArea {
  Q_OBJECT
 public:
  explicit VueSignaletique(TFrmSignaletique& form, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

 private:
  QPushButton* Bouton(const QString& texte, const QString& icone, const QString& nom,
                      std::function<void()> faire);
  void CreerRetablir();
  QWidget* CreerReleve();
  QWidget* CreerFrais();
  int ColonnesPour(int largeur) const;
  int LargeurIdentite() const;
  void Disposer();
  void DefinirMarges();
  void TenirDansLaVue();
  void Actualiser();
  void ActualiserListes();

  TFrmSignaletique& form_;
  QWidget* contenu_;
  QGridLayout* grille_;
  FicheIdentite* identite_;
  QWidget* blocReleve_;
  QAction* retablir_;
  QComboBox* cmbMois_;
  VueGrille* releve_;
  PiedDeGrille* piedReleve_;
  EtatVide* sansReleve_;
  QWidget* blocFrais_;
  VueGrille* frais_;
  PiedDeGrille* piedFrais_;
  EtatVide* sansFrais_;
  int colonnes_ = 0;
  TLien lien_;
};
