#pragma once
#include <QWidget>
#include <array>
#include <vector>

class Etiquette;
class GrilleJours;
class GrilleMois;
class LiaisonChamps;
class MarqueEtat;
class PhotoEleve;
class QCheckBox;
class QGridLayout;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class TFrmSignaletique;
class TitreSection;

/// The part of the pupil record that says who the pupil is: photo, name and balance, the two adults,
/// the account, the situation, month by month, the activities.
class FicheIdentite : public QWidget {
  Q_OBJECT
 public:
  explicit FicheIdentite(TFrmSignaletique& form);
  void Actualiser();
  /// More room between the sections.
  void Aerer(bool large);
  /// Once it stands in its view: a place in the order of Tab does not outlive a move.
  void OrdonnerTab();

 private:
  QLayout* CreerEntete();
  QLayout* CreerSolde();
  QLayout* CreerResponsables();
  void AjouterCompte(QGridLayout& grille, int rang);
  /// Fields side by side, by name; the narrow ones keep their width.
  QLayout* Rangee(const QStringList& noms);
  /// Room, and a section that can be hidden with it.
  QVBoxLayout* AjouterSection(QWidget* titre);
  void AjouterSituation();
  void AjouterMois();
  void AjouterActivites();
  void ActualiserEntete();
  void ActualiserCases();

  TFrmSignaletique& form_;
  LiaisonChamps* liaison_;
  PhotoEleve* photo_;
  Etiquette* nom_;
  Etiquette* sousTitre_;
  Etiquette* titreSolde_;
  Etiquette* solde_;
  MarqueEtat* etatSolde_;
  std::array<QRadioButton*, 2> attestations_;
  QPushButton* comptes_;
  GrilleMois* mois_;
  TitreSection* titreExt_;
  GrilleJours* jours_;
  Etiquette* titreActivites_;
  GrilleJours* activites_;
  std::vector<QVBoxLayout*> sections_;
};
