#pragma once
#include <QStringList>

#include "core/dates.h"

/// What the name of a list that goes into a file tells besides the list: the class or the pupil, and the
/// month of the year on display, or that year.
QStringList NomDeListe(const QString& qui = {}, int mois = 0);
/// The same with the month of that day, which may lie in another year.
QStringList NomDeListeDu(const QString& qui, TDateTime jour);
