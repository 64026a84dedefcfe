#pragma once
#include <QString>
#include <array>

#include "attendance/presences_particulieres.h"

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
