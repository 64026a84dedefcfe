#pragma once
#include <QHash>
#include <map>

#include "core/calendrier_scolaire.h"

class TDataModule1;

// The presences after school that the Office subsidises: rows of PRESENCES of day-care whose exit is after
// noon, counted in the database by different pupils. Exceptions of the database pass through.

/// How many children were there on a day that has any.
using TComptesJours = std::map<TDateTime, int>;

/// Different children of the nursery and of the primary school; a class of neither section is in no count.
struct TEnfantsOne {
  int Maternelle = 0;
  int Primaire = 0;
};

/// By day, of the whole school.
TComptesJours CompterJours(TDataModule1& base, const TPeriode& periode);
/// By the class that the pupils have today.
TEnfantsOne CompterEnfants(TDataModule1& base, const TPeriode& periode);

// The same of each site, by its code without blanks behind; a site without presences has no entry.
QHash<QString, TComptesJours> CompterJoursParSite(TDataModule1& base, const TPeriode& periode);
/// By the class of that school year.
QHash<QString, TEnfantsOne> CompterEnfantsParSite(TDataModule1& base, const TPeriode& periode, int annee);

/// The code as the two last ones hold it.
QString CodeSite(QString code);
