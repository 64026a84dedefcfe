#pragma once
#include "demo/ecole_exemple.h"

/// One scan of a badge, as the hand scanner writes it.
struct TPassage {
  QString Matricule;  ///< as read from the bars: without dashes, except when typed by hand
  int Type = 0;       ///< 1 day-care, 2 meal, 3 soup, 4 study
  QDate Jour;
  int Seconde = 0;  ///< of the day
  int Sens = 0;     ///< 1 entry, 2 exit
};

/// All scans of the year on one site, in the order of time. They hold the mistakes that are made
/// with a scanner: double scans, exits scanned as entries, unknown badges, hours that no tariff
/// covers, exits that nobody scanned.
std::vector<TPassage> PassagesAnnee(const TEcoleExemple& ecole, int site);
