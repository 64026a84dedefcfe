#pragma once
#include <QString>
#include <array>

#include "attendance/presences_particulieres.h"

class TEleve;

/// An adult in charge of a pupil.
struct TResponsable {
  QString Nom;
  QString Prenom;
  QString Adresse;
  QString Numero;
  QString CodePostal;
  QString Localite;
};

/// Who a pupil is, as the screen writes it. All is empty and off without a pupil.
struct TFicheEleve {
  QString NomComplet;
  QString Matricule;
  QString LibelleClasse;
  QString LibelleImplantation;
  QString DateNaissance;
  std::array<TResponsable, 2> Responsables;
  QString NumCompte;
  QString NomTitulaireCompte;
  bool Flg2eEnfant = false;
  bool Flg3eEnfant = false;
  bool FlgFactureDetail = false;
  bool FlgParentSepare = false;
  bool FlgRadie = false;
  bool FlgImpotRespons2 = false;

  static TFicheEleve De(const TEleve& eleve);
  /// "P3 A · Centre · Matricule 212-04127-38"; what is not known is left out.
  QString SousTitre() const;
};

/// What holds of a pupil month by month, September to June.
struct TGroupeMois {
  TTypeMarque Type;
  QString Titre;
  std::array<bool, 10> Mois{};

  /// The master box: all ten are ticked.
  bool Tous() const;
};

/// The three groups in the order of the screen, all boxes off.
std::array<TGroupeMois, 3> GroupesMois();
/// Sets the boxes of the three from the markers of the year.
void LireMarques(std::array<TGroupeMois, 3>& groupes, const TPresencesParticulieres& marques, int eleve);
