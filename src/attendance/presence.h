#pragma once
#include <QStringList>

#include "core/base_object.h"
#include "services/types_tarif.h"

/// The kind of a presence. The numbers are stored; a record of another kind is kept and costs nothing.
enum class TTypePresence : int { Garderie = 1, Repas = 2, Soupe = 3, Etude = 4 };

/// The texts in the order in which the screens list them: the first is that of number 1.
const QStringList& TextesTypePresence();
/// "" for a kind that has no text.
QString Texte(TTypePresence type);
/// The group of tariffs that classes a record of this kind. A soup is classed by the rows of meals.
TGroupe GroupeDe(TTypePresence type);

/// That a pupil used a service on a day. Times are fractions of a day; 0 means no scan.
struct TPresence : TBaseObject {
  int EleveId = 0;
  TTypePresence TypePresence{};
  TDateTime DateReleve = 0.0;
  TDateTime HeureEntree = 0.0;
  TDateTime HeureSortie = 0.0;
  QString CodeImplantation;  ///< site of the scan; "" when the system derived the record
};
