#include "core/calendrier_scolaire.h"

namespace {

constexpr int kMoisRentree = 9;
constexpr TDateTime kPremierJour = -693593;       // 1 January of the year 1
constexpr TDateTime kApresDernierJour = 2958466;  // the day after 31 December 9999

/// First day of `mois` to the day before the first of the month `duree` months later.
TPeriode Mois(int annee, int mois, int duree) {
  const TDateTime premier = EncodeDate(annee, mois, 1);
  return {premier, DateDeQt(DateVersQt(premier).addMonths(duree).addDays(-1))};
}

}  // namespace

TPeriode BornesAnnee(int annee) { return {EncodeDate(annee, kMoisRentree, 1), EncodeDate(annee + 1, 6, 30)}; }

TPeriode BornesMois(int mois, int annee) { return Mois(mois < kMoisRentree ? annee + 1 : annee, mois, 1); }

bool EstAnneeComplete(int annee, TDateTime du, TDateTime au) {
  return BornesAnnee(annee) == TPeriode{du, au};
}

int MoisExact(int annee, TDateTime du, TDateTime au) {
  for (int mois = 1; mois <= 12; ++mois)
    if (BornesMois(mois, annee) == TPeriode{du, au}) return mois;
  return 0;
}

bool MoisDansPeriode(int mois, int annee, TDateTime du, TDateTime au) {
  if (mois <= 0) return false;
  const auto [premier, dernier] = BornesMois(mois, annee);
  return premier >= du && dernier <= au;
}

bool MoisDebuteDansPeriode(int mois, int annee, TDateTime du, TDateTime au) {
  if (mois <= 0) return false;
  const TDateTime premier = BornesMois(mois, annee).Premier;
  return du <= premier && premier <= au;
}

int Trimestre(TDateTime date) {
  if (!(date >= kPremierJour && date < kApresDernierJour)) return 0;
  return (DecodeDate(date).Mois + 2) / 3;
}

TPeriode BornesTrimestre(int trimestre, int annee) {
  if (trimestre < 1 || trimestre > 4) return {};
  return Mois(annee, trimestre * 3 - 2, 3);
}
