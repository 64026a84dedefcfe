#include "attendance/activites_ext.h"

TPeriode PeriodeActivitesExt(TTypeActivitesExt type) {
  switch (type) {
    case TTypeActivitesExt::DepuisSeptembre:
      return {EncodeDate(2015, 9, 28), EncodeDate(2016, 6, 30)};
    case TTypeActivitesExt::DepuisOctobre:
      return {EncodeDate(2015, 10, 5), EncodeDate(2016, 6, 30)};
    case TTypeActivitesExt::Aucune:
      break;
  }
  return {};
}
