#include <gtest/gtest.h>

#include <limits>

#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"

namespace {

TPeriode Periode(int annee1, int mois1, int jour1, int annee2, int mois2, int jour2) {
  return {EncodeDate(annee1, mois1, jour1), EncodeDate(annee2, mois2, jour2)};
}

}  // namespace

TEST(CalendrierScolaire, BornesDeLAnneeEtDesMois) {
  EXPECT_EQ(BornesAnnee(2016), Periode(2016, 9, 1, 2017, 6, 30));
  EXPECT_EQ(BornesMois(9, 2016), Periode(2016, 9, 1, 2016, 9, 30));
  EXPECT_EQ(BornesMois(12, 2016), Periode(2016, 12, 1, 2016, 12, 31));
  EXPECT_EQ(BornesMois(1, 2016), Periode(2017, 1, 1, 2017, 1, 31));
  EXPECT_EQ(BornesMois(2, 2016), Periode(2017, 2, 1, 2017, 2, 28));
  EXPECT_EQ(BornesMois(2, 2015), Periode(2016, 2, 1, 2016, 2, 29));
  EXPECT_EQ(BornesMois(8, 2016), Periode(2017, 8, 1, 2017, 8, 31));
  EXPECT_THROW(BornesMois(0, 2016), EConvertError);
  EXPECT_THROW(BornesMois(13, 2016), EConvertError);
}

TEST(CalendrierScolaire, PeriodesExactes) {
  const auto [du, au] = BornesAnnee(2016);
  EXPECT_TRUE(EstAnneeComplete(2016, du, au));
  EXPECT_FALSE(EstAnneeComplete(2016, du, au + EncodeTime(12, 0)));
  EXPECT_FALSE(EstAnneeComplete(2015, du, au));
  for (int mois = 1; mois <= 12; ++mois) {
    const auto [premier, dernier] = BornesMois(mois, 2016);
    EXPECT_EQ(MoisExact(2016, premier, dernier), mois);
    EXPECT_EQ(MoisExact(2017, premier, dernier), 0);
    EXPECT_EQ(MoisExact(2016, premier, dernier + 0.5), 0);
  }
  EXPECT_EQ(MoisExact(2016, du, au), 0);
}

TEST(CalendrierScolaire, MoisEtPeriode) {
  const auto [premier, dernier] = BornesMois(2, 2016);
  EXPECT_TRUE(MoisDansPeriode(2, 2016, premier, dernier));
  EXPECT_FALSE(MoisDansPeriode(2, 2016, premier + 1, dernier));
  EXPECT_FALSE(MoisDansPeriode(2, 2016, premier, dernier - 1));
  EXPECT_FALSE(MoisDansPeriode(2, 2015, premier, dernier));
  EXPECT_TRUE(MoisDebuteDansPeriode(2, 2016, premier, premier));
  EXPECT_TRUE(MoisDebuteDansPeriode(2, 2016, premier - 9, premier + 9));
  EXPECT_FALSE(MoisDebuteDansPeriode(2, 2016, premier + 0.5, dernier));
  EXPECT_FALSE(MoisDebuteDansPeriode(2, 2016, premier - 9, premier - 1));
  for (const int mois : {0, -1}) {
    EXPECT_FALSE(MoisDansPeriode(mois, 2016, 0, 1e6));
    EXPECT_FALSE(MoisDebuteDansPeriode(mois, 2016, 0, 1e6));
  }
}

TEST(CalendrierScolaire, Trimestres) {
  const int attendus[] = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4};
  for (int mois = 1; mois <= 12; ++mois) EXPECT_EQ(Trimestre(EncodeDate(2017, mois, 28)), attendus[mois - 1]);
  for (const double faux : {-693594.0, 2958466.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(Trimestre(faux), 0);
  EXPECT_EQ(Trimestre(-693593.0), 1);
  EXPECT_EQ(Trimestre(2958465.9), 4);
  EXPECT_EQ(BornesTrimestre(1, 2016), Periode(2016, 1, 1, 2016, 3, 31));
  EXPECT_EQ(BornesTrimestre(2, 2016), Periode(2016, 4, 1, 2016, 6, 30));
  EXPECT_EQ(BornesTrimestre(3, 2016), Periode(2016, 7, 1, 2016, 9, 30));
  EXPECT_EQ(BornesTrimestre(4, 2016), Periode(2016, 10, 1, 2016, 12, 31));
  EXPECT_EQ(BornesTrimestre(0, 2016), TPeriode{});
  EXPECT_EQ(BornesTrimestre(5, 2016), TPeriode{});
}
