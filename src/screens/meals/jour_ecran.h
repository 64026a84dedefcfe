#pragma once
#include <QString>

#include "core/dates.h"

class TForm;

/// The day that a meal screen shows, and its two steps over the weekends.
class TJourEcran {
 public:
  void Definir(TDateTime jour) { jour_ = jour; }
  TDateTime Jour() const { return jour_; }
  void Reculer();
  void Avancer();
  /// "lundi 3 octobre"
  QString Titre() const;

 private:
  TDateTime jour_ = 0.0;
};

/// "Choisissez votre classe", then every class of the year on display.
QStringList ChoixDeClasses();
