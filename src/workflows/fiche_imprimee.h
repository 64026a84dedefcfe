#pragma once
#include <QStringList>
#include <map>

#include "core/reglages_poste.h"
#include "workflows/jour_cuisine.h"

/// What a sheet of the kitchen says, line by line: "P1 A, Dago" 2.
using TComptesCuisine = std::map<QString, int>;
TComptesCuisine ComptesCuisine(const TJourCuisine& jour, const TGenerationRepas& generation);

/// The last sheet that was printed on this workstation, kept in its settings.
struct TFicheImprimee {
  TDateTime Jour = 0.0;    ///< 0: none was
  TDateTime Moment = 0.0;  ///< when
  TComptesCuisine Comptes;

  static TFicheImprimee Lire(const TReglagesPoste& reglages, const TGenerationRepas& generation);
  void Memoriser(TReglagesPoste& reglages, const TGenerationRepas& generation) const;
  /// What those numbers have become: "P1 A, Dago : 2 → 3".
  QStringList Changements(const TComptesCuisine& maintenant) const;
};
