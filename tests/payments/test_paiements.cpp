#include <gtest/gtest.h>

#include "payments/paiements.h"
#include "support/ecole_essai.h"

namespace {

struct TPaiementsEssai : testing::Test {
  TBaseEssai base;
  TEcoleEssai ecole{base};

  static std::unique_ptr<TPaiement> Paiement(int type, int mois, int euros, int eleve = 1) {
    auto paiement = std::make_unique<TPaiement>();
    paiement->EleveId = eleve;
    paiement->TypePaiement = type;
    paiement->Mois = mois;
    paiement->Annee = 2016;
    paiement->Montant = Currency::Euros(euros);
    return paiement;
  }
  QStringList Rangees() {
    return base.Rangees(
        QStringLiteral("SELECT ELEVE_ID, TYPE_PAIEMENT, MOIS, MONTANT FROM PAIEMENTS ORDER BY PAIEMENT_ID"));
  }
};

}  // namespace

TEST_F(TPaiementsEssai, ReglesParType) {
  // A first row of 10 euro for September; then 20 for September, and 30 for October.
  const struct {
    int type;
    QStringList rangees;
  } cas[] = {
      {0, {}},
      {1, {QStringLiteral("1;1;9;10.0000"), QStringLiteral("1;1;10;30.0000")}},
      {2, {QStringLiteral("1;2;9;10.0000")}},
      {3, {QStringLiteral("1;3;9;30.0000")}},
      {4, {}},
      {5, {QStringLiteral("1;5;9;20.0000"), QStringLiteral("1;5;10;30.0000")}},
      {6, {QStringLiteral("1;6;9;10.0000"), QStringLiteral("1;6;10;30.0000")}},
      {7, {QStringLiteral("1;7;9;10.0000"), QStringLiteral("1;7;10;30.0000")}},
      {8, {}},
  };
  for (const auto& [type, rangees] : cas) {
    base.Sql(QStringLiteral("DELETE FROM PAIEMENTS"));
    TPaiements paiements(*base, 2016);
    const TPaiement* premier = paiements.AjoutePaiement(Paiement(type, 9, 10));
    EXPECT_EQ(premier == nullptr, rangees.isEmpty()) << type;
    paiements.Save();
    TPaiements relus(*base, 2016);
    relus.AjoutePaiement(Paiement(type, 9, 20));
    relus.AjoutePaiement(Paiement(type, 10, 30));
    relus.Save();
    EXPECT_EQ(Rangees(), rangees) << type;
  }
}

TEST_F(TPaiementsEssai, LesReglesNeRegardentQueLEleveEtLeType) {
  TPaiements paiements(*base, 2016);
  paiements.AjoutePaiement(Paiement(2, 9, 10, 1));
  paiements.AjoutePaiement(Paiement(2, 9, 20, 2));
  paiements.AjoutePaiement(Paiement(6, 9, 30, 1));
  EXPECT_EQ(paiements.Count(), 3);
}

TEST_F(TPaiementsEssai, MarquerPuisDemarquerUnMois) {
  TPaiements paiements(*base, 2016);
  TPaiement* paye = paiements.MarquePaye(Paiement(0, 1, 25));
  ASSERT_NE(paye, nullptr);
  EXPECT_EQ(paiements.MarquePaye(Paiement(0, 1, 40)), nullptr);
  paiements.Save();
  EXPECT_EQ(Rangees(), QStringList{QStringLiteral("1;7;1;25.0000")});
  EXPECT_EQ(base.Valeur(QStringLiteral("SELECT ANNEE || '/' || ANNEE_SCOLAIRE FROM PAIEMENTS")),
            u"2016/2016");
  EXPECT_EQ(paiements.PaiementMois(1, 1), paye);
  EXPECT_EQ(paiements.PaiementMois(1, 2), nullptr);

  const auto impaye = paiements.MarqueImpaye(*paye);
  EXPECT_EQ(impaye->Id, -1);
  EXPECT_EQ(impaye->TypePaiement, 0);
  EXPECT_EQ(impaye->EleveId, 1);
  EXPECT_EQ(impaye->Mois, 1);
  EXPECT_EQ(impaye->Annee, 2016);
  EXPECT_EQ(impaye->Montant, Currency::Euros(25));
  EXPECT_EQ(paiements.PaiementMois(1, 1), nullptr);
  paiements.Save();
  EXPECT_TRUE(Rangees().isEmpty());
}

TEST_F(TPaiementsEssai, SommesEtDerniereRangeeDuMois) {
  TEleveEssai eleve = ecole.unEleve();
  eleve.mois(9, QStringLiteral("12.5")).mois(9, QStringLiteral("30")).mois(10, QStringLiteral("7"));
  eleve.mois(9, QStringLiteral("99"), 1);
  ecole.unEleve().mois(9, QStringLiteral("500"));
  base.Sql(
      QStringLiteral("INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, MONTANT, "
                     "ANNEE_SCOLAIRE) VALUES (900, 1, 7, 9, 1000, 2015)"));
  TPaiements paiements(*base, 2016);
  EXPECT_EQ(paiements.MontantMois(eleve.Id, 9), Currency::Euros(30));
  EXPECT_EQ(paiements.MontantMois(eleve.Id, 11), Currency());
  EXPECT_EQ(paiements.TotalPaiements(eleve.Id), Currency::Brut(495000));
  EXPECT_EQ(paiements.PaiementMois(eleve.Id, 9)->Montant, Currency::Brut(125000));
}
