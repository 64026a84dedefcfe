#pragma once
#include <QStringList>
#include <map>

#include "core/reglages_poste.h"
#include "workflows/jour_cuisine.h"

/// What the preparation sheet says.
struct TContenuDeFiche {
  std::map<QString, int> Nombres;     ///< "P1 A, Dago" 2, "Dago jambon" 1
  std::map<QString, QString> Eleves;  ///< "ALVES Rui (P1 A)" "Dago jambon"
};
/// What a sheet of that day would say now.
TContenuDeFiche ContenuDeFiche(const TJourCuisine& jour, const TGenerationRepas& generation);

/// The last sheet that was printed on this workstation, kept in its settings.
struct TFicheImprimee {
  TDateTime Jour = 0.0;    ///< 0: none was
  TDateTime Moment = 0.0;  ///< when
  TContenuDeFiche Contenu;

  /// Of the screen of that generation; without a day when none was printed.
  static TFicheImprimee Lire(const TReglagesPoste& reglages, const TGenerationRepas& generation);
  void Memoriser(TReglagesPoste& reglages, const TGenerationRepas& generation) const;
  /// What that has become: "P1 A, Dago : 2 → 3", "ALVES Rui (P1 A) : Dago jambon → rien".
  QStringList Changements(const TContenuDeFiche& maintenant) const;
};
