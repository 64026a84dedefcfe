#pragma once
#include <QWidget>
#include <array>
#include <vector>

#include "ui/pupils/bouton_lecture.h"

class ChampLecture;
class Etiquette;
class GrilleMois;
class MarqueEtat;
class PhotoEleve;
class QGridLayout;
class QVBoxLayout;
class SaisieDate;
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
  /// One adult's fields, in the order of Tab.
  struct TChamps {
    ChampLecture* Nom;
    ChampLecture* Prenom;
    ChampLecture* Adresse;
    ChampLecture* Numero;
    ChampLecture* CodePostal;
    ChampLecture* Localite;
    ChoixLecture* Attestation;
  };

  template <class Bouton>
  Bouton* CreerBouton(const QString& texte);
  QLayout* CreerEntete();
  QLayout* CreerSolde();
  QLayout* CreerResponsables();
  void AjouterResponsable(QGridLayout& grille, int colonne, TChamps& champs, const QString& de,
                          const QString& au);
  void AjouterCompte(QGridLayout& grille);
  /// Room, and a section that can be hidden with it.
  QVBoxLayout* AjouterSection(QWidget* titre);
  void AjouterSituation();
  void AjouterMois();
  void AjouterActivites();

  void ActualiserEntete();
  void ActualiserResponsables();
  void ActualiserCases();

  TFrmSignaletique& form_;
  PhotoEleve* photo_;
  Etiquette* nom_;
  Etiquette* sousTitre_;
  SaisieDate* naissance_;
  Etiquette* titreSolde_;
  Etiquette* solde_;
  MarqueEtat* etatSolde_;
  std::array<TChamps, 2> responsables_;
  ChampLecture* compte_;
  ChampLecture* titulaire_;
  std::array<CaseLecture*, 5> situation_;
  GrilleMois* mois_;
  TitreSection* titreExt_;
  std::array<CaseLecture*, 5> jours_;
  Etiquette* titreActivites_;
  Etiquette* activites_;
  std::vector<QVBoxLayout*> sections_;
};
