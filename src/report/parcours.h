#pragma once
#include <array>

#include "report/rapport.h"

/// The callback data sets to which the bands of a template are bound.
enum class TJeu { Maitre, Detail, SousDetail, Colonne };

/// How an engine walks a report. The data sets hold no data: they say how many rows there are to walk
/// and move the cursor. An engine asks `Premier` of the details for each master row, of the subdetails
/// for each detail row, and `Suivant` in the order of the bands; the cursor then visits every node once,
/// in flat order. `Premier(TJeu::Maitre)` starts over, so a report can be built twice.
class TParcours {
 public:
  /// `rapport` must outlive the walk and stay as it is.
  explicit TParcours(const TRapport& rapport) : rapport_(rapport) {}

  void Premier(TJeu jeu);
  void Suivant(TJeu jeu);
  /// The data set has no current row (any more).
  bool Fini(TJeu jeu) const { return Etat(jeu).Enregistrement >= Etat(jeu).NombreLignes; }
  int NombreLignes(TJeu jeu) const { return Etat(jeu).NombreLignes; }

  /// What `TRapport::Valeur` needs to answer for the present row.
  TPosition Position() const { return {curseur_, Etat(TJeu::Colonne).Enregistrement}; }

 private:
  struct TEtat {
    int NombreLignes = 0;
    int Enregistrement = 0;
  };
  TEtat& Etat(TJeu jeu) { return etats_[static_cast<std::size_t>(jeu)]; }
  const TEtat& Etat(TJeu jeu) const { return etats_[static_cast<std::size_t>(jeu)]; }
  void PremierMaitre();
  void PremierDetail();
  void PremierSousDetail();
  /// Level of the node at an index of the flat order; -1 outside.
  int Niveau(int indice) const;
  int NombreEnfants(int indice) const;

  const TRapport& rapport_;
  std::array<TEtat, 4> etats_;
  int curseur_ = 0;
};
