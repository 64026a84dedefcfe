#pragma once
#include <QString>

/// What stands in the place of an empty list or screen; no title where nothing does.
struct TVide {
  QString Titre = {};
  QString Phrase = {};
  QString Bouton = {};  ///< caption of its one button; "" for none
};
