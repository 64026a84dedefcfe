#pragma once
#include <QImage>

#include "demo/tirage.h"

/// A drawn child, as the photographer of the school would have taken it. `niveau`: 0 for the youngest to 8.
QImage DessinerPortrait(TTirage& tirage, bool fille, int niveau);
