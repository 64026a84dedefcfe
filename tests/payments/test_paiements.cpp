#include "payments/paiements.h"
#include "support/ecole_essai.h"

namespace {

struct TPaiementsEssai : testing::Test {
  TBaseEssai base;

  static std::unique_ptr<TPaiement> Paiement(int type, int mois, int euros, int eleve = 1) {
    auto paiement = std::make_unique<TPaiement>();
    paiement->EleveId = eleve;
    paiement->TypePaiement = type;
    paiement->Mois = mois;
    paiement->Annee = 2016;
    paiement->Montant = Currency::Euros(euros);
    return paiement;
  }
  QString Rangees() {
    return base.Rangees(u"SELECT TYPE_PAIEMENT, MOIS, MONTANT, ANNEE, ANNEE_SCOLAIRE FROM PAIEMENTS"_s)
        .join(u'|');
  }
};

}  // namespace

TEST_F(TPaiementsEssai, ReglesParType) {
  // A first row of 10 euro for September; then 20 for September and 30 for October, and 40 for another pupil.
  const std::pair<int, const char*> cas[] = {
      {0, ""}, {1, "9:10 10:30 9:40"}, {2, "9:10 9:40"},       {3, "9:30 9:40"},
      {4, ""}, {5, "9:20 10:30 9:40"}, {6, "9:10 10:30 9:40"}, {7, "9:10 10:30 9:40"},
      {8, ""}};
  for (const auto& [type, attendu] : cas) {
    base.Sql(u"DELETE FROM PAIEMENTS"_s);
    TPaiements paiements(*base, 2016);
    EXPECT_EQ(paiements.AjoutePaiement(Paiement(type, 9, 10)) == nullptr, *attendu == '\0') << type;
    paiements.Save();
    TPaiements relus(*base, 2016);
    relus.AjoutePaiement(Paiement(type == 7 ? 1 : 7, 9, 50));  // another type is no obstacle
    relus.AjoutePaiement(Paiement(type, 9, 20));
    relus.AjoutePaiement(Paiement(type, 10, 30));
    relus.AjoutePaiement(Paiement(type, 9, 40, 2));
    relus.Save();
    EXPECT_EQ(
        base.Rangees(
                u"SELECT MOIS || ':' || CAST(MONTANT AS INTEGER) FROM PAIEMENTS WHERE TYPE_PAIEMENT = %1 "
                u"ORDER BY PAIEMENT_ID"_s.arg(type))
            .join(u' '),
        QString::fromLatin1(attendu))
        << type;
  }
}

TEST_F(TPaiementsEssai, MarquerPuisDemarquerUnMois) {
  TPaiements paiements(*base, 2016);
  TPaiement* paye = paiements.MarquePaye(Paiement(0, 1, 25));
  ASSERT_NE(paye, nullptr);
  EXPECT_EQ(paiements.MarquePaye(Paiement(0, 1, 40)), nullptr);
  paiements.Save();
  EXPECT_EQ(Rangees(), u"7;1;25.0000;2016;2016");
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
  EXPECT_EQ(Rangees(), u"");
}

TEST_F(TPaiementsEssai, SommesEtDerniereRangeeDuMois) {
  TEcoleEssai ecole{base};
  TEleveEssai eleve = ecole.unEleve();
  eleve.mois(9, u"12.5"_s).mois(9, u"30"_s).mois(10, u"7"_s).mois(9, u"99"_s, 1);
  ecole.unEleve().mois(9, u"500"_s);
  TEcoleEssai(base, 2015).unEleve().mois(9, u"1000"_s);
  TPaiements paiements(*base, 2016);
  EXPECT_EQ(paiements.Count(), 5);
  EXPECT_EQ(paiements.MontantMois(eleve.Id, 9), Currency::Euros(30));
  EXPECT_EQ(paiements.MontantMois(eleve.Id, 11), Currency());
  EXPECT_EQ(paiements.TotalPaiements(eleve.Id), Currency::Brut(495000));
  EXPECT_EQ(paiements.PaiementMois(eleve.Id, 9)->Montant, Currency::Euros(30));
}
