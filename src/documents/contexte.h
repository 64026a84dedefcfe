#pragma once
#include <optional>
#include <vector>

#include "documents/periode.h"

class TClasse;
class TEleve;
class TEleves;
class TEtiquettes;
class THorloge;
class TParametres;

/// What the documents of a school year are made from. All must outlive it.
struct TContexteDocument {
  const TEleves& Eleves;  ///< of the year on display, with the collections that their accounts read
  const TParametres& Parametres;
  TDateTime Aujourdhui = 0.0;         ///< the day that the papers bear
  int AnneeTravail = 0;               ///< the school year open in the system, whatever is on display
  TEtiquettes* Etiquettes = nullptr;  ///< of the screen that prints; null: there is no printer of labels
};

/// From `Globals`: parameters and a year must have been loaded.
TContexteDocument ContexteDesGlobals(const THorloge& horloge);

/// The pupils of a document, in order; one who stands there twice gets two.
using TElevesChoisis = std::vector<TEleve*>;

/// Leaves out the pupils who were struck off, unless there is only the one.
TElevesChoisis SansRadies(const TElevesChoisis& eleves);

/// For whom, for when, and what the user was asked before.
struct TDemandeDocument {
  TElevesChoisis Eleves;
  TPeriodeDocument Periode;                  ///< any days for a document that takes no period
  std::optional<TDateTime> DatePaiement;     ///< none when it was not asked for, or not given
  std::vector<const TClasse*> Classes = {};  ///< those that were chosen as such
  TDateTime Jour = 0.0;                      ///< the day at work of a document about meals
  bool NouveauxRepas = false;                ///< in the words of the second generation of meal screens
  int AnneeRevenus = 0;                      ///< of a paper about a year of income; 0: the usual one
  bool TouteLEcole = false;                  ///< the pupils are all those of the year on display
};
