#pragma once
#include <QString>

#include "core/dates.h"

class TPresences;

/// One of the five services that the school's month counts, in whole euros.
struct TParametreService {
  QString ServiceLibelle;
  QString ServiceHeureDebutTexte;  ///< "07:00"
  QString ServiceHeureFinTexte;
  TDateTime ServiceHeureDebut = 0.0;  ///< of the text, once the row is in its table
  TDateTime ServiceHeureFin = 0.0;
  int ServiceValeur = 0;   ///< a time
  int ServiceMaximum = 0;  ///< a month
};

/// The rows of the table, by what they are.
enum class TLigneParametreService : int { Matin = 0, Soir1 = 1, Soir2 = 2, Mercredi1 = 3, Mercredi2 = 4 };

/// Copies the five fixed rows into the presences; the screens that ask for monthly counts do so
/// when they are created.
void InitialiseTableParametreService(TPresences& presences);
