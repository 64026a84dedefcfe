#include <limits>

#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "core/mois.h"

namespace {

TPeriode Periode(int annee1, int mois1, int jour1, int annee2, int mois2, int jour2) {
  return {EncodeDate(annee1, mois1, jour1), EncodeDate(annee2, mois2, jour2)};
}

}  // namespace

TEST(CalendrierScolaire, BornesDeLAnneeEtDesMois) {
  EXPECT_EQ(BornesAnnee(2016), Periode(2016, 9, 1, 2017, 6, 30));
  const int finales[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int mois = 1; mois <= 12; ++mois) {
    const int annee = mois < 9 ? 2017 : 2016;
    EXPECT_EQ(BornesMois(mois, 2016), Periode(annee, mois, 1, annee, mois, finales[mois - 1])) << mois;
  }
  EXPECT_EQ(BornesMois(2, 2015), Periode(2016, 2, 1, 2016, 2, 29));
  for (const int faux : {0, 13}) EXPECT_THROW(BornesMois(faux, 2016), EConvertError);
  EXPECT_EQ((QStringList{TexteDuMois(3), TexteDuMois(4), TexteDuMois(8), TexteDuMois(10)}).join(u'|'),
            u"du mois de mars|du mois d'avril|du mois d'août|du mois d'octobre");
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
  for (int mois = 1; mois <= 12; ++mois)
    EXPECT_EQ(Trimestre(EncodeDate(2017, mois, 28)), (mois + 2) / 3) << mois;
  for (const double faux : {-693594.0, 2958466.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(Trimestre(faux), 0);
  EXPECT_EQ(Trimestre(-693593.0), 1);
  EXPECT_EQ(Trimestre(2958465.9), 4);
  EXPECT_EQ(BornesTrimestre(2, 2016), Periode(2016, 4, 1, 2016, 6, 30));
  EXPECT_EQ(BornesTrimestre(4, 2016), Periode(2016, 10, 1, 2016, 12, 31));
  for (const int faux : {0, 5}) EXPECT_EQ(BornesTrimestre(faux, 2016), TPeriode{});
}
