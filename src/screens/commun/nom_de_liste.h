#pragma once
#include <QStringList>

/// What the name of a list that goes into a file tells besides the list: the class or the pupil, and the
/// month of the year on display, or that year.
QStringList NomDeListe(const QString& qui = {}, int mois = 0);
