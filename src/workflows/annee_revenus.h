#pragma once
#include <QString>
#include <set>
#include <vector>

#include "core/dates.h"

class TClasse;
class TDataModule1;
class TEleves;

/// The year of income whose sheets are made when `ecole` is on display and the user chooses none. Of the two
/// that a school year holds a part of, it is the second once that is over and a later school year has been
/// opened, else the first.
int AnneeRevenus(int ecole, int anneeTravail, TDateTime aujourdhui);

/// The years of income of which a school year with pupils holds a part, the latest first. Those that have not
/// begun are left out, but never `usuelle`. Raises Exception.
std::vector<int> AnneesRevenus(TDataModule1& base, int usuelle, TDateTime aujourdhui);

/// The children who are not in the year on display, but were enrolled in one of the two school years that
/// hold the year of income: who came in September, or left in June, seen from the other one.
class TElevesHorsAnnee {
 public:
  /// Raises Exception.
  TElevesHorsAnnee(const TEleves& affichee, int anneeRevenus);

  /// Their keys: all of them for the whole school, else those whose last class in these two years has the
  /// name and the site of one of these.
  std::set<int> Cles(const std::vector<const TClasse*>& classes, bool touteLEcole) const;

 private:
  /// The class in which a child was last.
  struct TPlace {
    int EleveId = 0;
    QString Classe;
    QString SousClasse;
    QString CodeImplantation;
  };
  std::vector<TPlace> places_;
};
