#include <gtest/gtest.h>

#include "attendance/presences.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/activites.h"
#include "services/frais_eleve.h"
#include "services/tarifs_garderies.h"
#include "support/affichage.h"
#include "support/ecole_essai.h"

namespace {

Currency Euros(double euros) { return Currency::Arrondi(euros); }

/// The pupils of 2016 with all that their accounts read, loaded when first asked for.
struct TAnneeEssai {
  explicit TAnneeEssai(TDataModule1& base)
      : tarifs(base),
        presences(base, BornesAnnee(2016), false),
        frais(base, 2016),
        paiements(base, 2016),
        activites(base, 2016),
        activitesEleves(base, activites),
        eleves(base, 2016) {
    presences.Tarifs = &tarifs;
    presences.PrixRepas[2] = Currency::Euros(5);
    eleves.Presences = &presences;
    eleves.ListeFrais = &frais;
    eleves.Paiements = &paiements;
    eleves.ActivitesEleves = &activitesEleves;
  }
  TTarifsGarderies tarifs;
  TPresences presences;
  TListeFrais frais;
  TPaiements paiements;
  TActivites activites;
  TActivitesEleves activitesEleves;
  TEleves eleves;
};

/// Every service once in October 2016, each at a price of its own; a morning more in November.
struct TCompteEssai : testing::Test {
  TCompteEssai() {
    using namespace Essai;
    const auto prix = [&](int famille, int jour, const char* debut, const char* fin, const char* cout,
                          const char* cout2e) {
      ecole.tarif(famille, jour, QString::fromLatin1(debut), QString::fromLatin1(fin), Forfait,
                  QString::fromLatin1(cout), ScanPresence, QString::fromLatin1(cout2e));
    };
    prix(Matin, TousLesJours, "07:00", "08:30", "1.00", "0.10");
    prix(Midi, TousLesJours, "12:00", "13:00", "0.50", "0.20");
    prix(Soir, LundiMardiJeudiVendredi, "15:30", "18:00", "2.00", "0.30");
    prix(Mercredi, 3, "12:30", "18:00", "3.00", "0.40");
    prix(FamilleEtude, TousLesJours, "15:30", "16:30", "4.00", "0.60");
    prix(FamilleSoupe, TousLesJours, "11:00", "14:00", "0.75", "0.05");
    eleve.enClasse(QStringLiteral("P1"), QStringLiteral("A"));
    const auto scan = [&](int type, const char* date, const char* heure) {
      eleve.scan(type, QString::fromLatin1(date), QString::fromLatin1(heure));
    };
    scan(Garderie, "2016-10-03", "07:30");
    scan(Garderie, "2016-10-03", "12:15");
    scan(Garderie, "2016-10-03", "16:00");
    scan(Garderie, "2016-10-05", "14:00");  // a Wednesday
    scan(Etude, "2016-10-04", "15:45");
    scan(Repas, "2016-10-04", "12:00");
    scan(Soupe, "2016-10-04", "12:00");
    scan(Garderie, "2016-11-07", "07:30");
  }

  TBaseEssai base;
  TEcoleEssai ecole{base};
  TEleveEssai eleve = ecole.unEleve();
  const TPeriode octobre = BornesMois(10, 2016);
};

}  // namespace

TEST_F(TCompteEssai, ServicesSelonLeRangDansLaFamille) {
  const struct {
    const char* drapeau;
    double services, garderies;
  } cas[] = {
      // 1.00 + 0.50 + 2.00 + 3.00 + 4.00, and 5.00 + 0.75 for meal and soup; no midday in the second.
      {nullptr, 16.25, 10.00},
      {"FLG_2E_ENFANT", 7.35, 1.40},  // the soup keeps its price
      {"FLG_3E_ENFANT", 5.75, 0.00},
  };
  for (const auto& [drapeau, services, garderies] : cas) {
    if (drapeau != nullptr) eleve.avec(QString::fromLatin1(drapeau));
    TAnneeEssai annee(*base);
    EXPECT_EQ(annee.eleves[0].TotalServices(octobre), Euros(services)) << services;
    EXPECT_EQ(annee.eleves[0].TotalGarderies(octobre), Euros(garderies)) << garderies;
  }
}

TEST_F(TCompteEssai, ChaqueServiceASesRecords) {
  TAnneeEssai annee(*base);
  const double prix[] = {1.00, 0.50, 2.00, 3.00, 4.00, 5.00, 0.75};
  TLignesService lignes;
  for (std::size_t i = 0; i < kServices.size(); ++i) {
    EXPECT_EQ(annee.eleves[0].CoutService(kServices[i], octobre, lignes), Euros(prix[i])) << i;
    EXPECT_EQ(lignes.size(), 1U) << i;
  }
}

TEST_F(TCompteEssai, LesActivitesPassentParLEleve) {
  eleve.suit(ecole.activite(QStringLiteral("16:00"), QStringLiteral("17:00")), QStringLiteral("13"));
  TAnneeEssai annee(*base);
  annee.presences.ModeDeduction = TModeDeduction::UnEuro;
  EXPECT_EQ(annee.eleves[0].TotalServices(octobre),
            Euros(14.25));  // one euro off Monday's evening and Wednesday
  annee.eleves.TypeActivitesExt = TTypeActivitesExt::DepuisSeptembre;  // of the year 2015: too late
  EXPECT_EQ(annee.eleves[0].TotalServices(octobre), Euros(16.25));
}

namespace {

struct TSoldesEssai : TCompteEssai {
  TSoldesEssai() {
    const auto frais = [&](const char* cout, int mois, const char* drapeaux, const char* verse) {
      eleve.doit(ecole.frais(QStringLiteral("Frais"), QString::fromLatin1(cout), mois,
                             QString::fromLatin1(drapeaux)),
                 QString::fromLatin1(verse));
    };
    frais("20", 10, "", "5");
    frais("3", 3, "service", "3");
    frais("100", 10, "previsionnel", "100");
    frais("30", 4, "non_obligatoire", "0");
    eleve.paie(QStringLiteral("7"), 10, 2, QStringLiteral("Services"));
    eleve.paie(QStringLiteral("2"), 10, 1, QStringLiteral("Frais"));
    eleve.paie(QStringLiteral("1"), 0, 0, QStringLiteral("Divers"));
    eleve.mois(10, QStringLiteral("16.25")).mois(11, QStringLiteral("0.40")).mois(11, QStringLiteral("0.60"));
  }
};

}  // namespace

TEST_F(TSoldesEssai, MoisEtPeriodes) {
  TAnneeEssai annee(*base);
  const TEleve& e = annee.eleves[0];
  EXPECT_EQ(e.CoutMois(10, 2016), Euros(16.25));
  EXPECT_EQ(e.SoldeMois(10, 2016), Currency());  // settled
  EXPECT_EQ(e.PaiementsMois(11), Euros(0.60));   // the second row takes the place of the first
  EXPECT_EQ(e.SoldeMois(11, 2016), Euros(0.40));
  EXPECT_EQ(e.CoutMois(3, 2016), Euros(3));
  EXPECT_EQ(e.FraisMois(3, 2016), Euros(3));
  EXPECT_EQ(e.FraisMois(10, 2016), Currency());
  const TPeriode tout = BornesAnnee(2016);
  EXPECT_EQ(e.FraisServicesPeriode(tout), Euros(3));
  EXPECT_EQ(e.FraisPeriode({octobre.Premier, BornesMois(3, 2016).Dernier}), Euros(23));
  EXPECT_EQ(e.FraisHorsServicesPeriode(octobre), Euros(20));
  EXPECT_EQ(e.FraisHorsServicesPeriode(tout), Currency());  // no month contains a year
  EXPECT_EQ(e.VersementsPeriode(octobre), Euros(14));
}

TEST_F(TSoldesEssai, Annee) {
  TAnneeEssai annee(*base);
  const TEleve& e = annee.eleves[0];
  EXPECT_EQ(e.CoutAnnee(), Euros(20.25));       // 16.25 + 1.00 + 3.00
  EXPECT_EQ(e.FraisAnnee(), Euros(50));         // 20 + 30
  EXPECT_EQ(e.FraisPayes(), Euros(18));         // 5 + 3 + 7 + 2 + 1
  EXPECT_EQ(e.PaiementsAnnee(), Euros(17.25));  // both rows of November
  EXPECT_EQ(e.VersementsServices(), Euros(7));
  EXPECT_EQ(e.VersementsFrais(), Euros(2));
  const auto services = e.VersementsLibres(TTypeFamilleFrais::Services);
  ASSERT_EQ(services.size(), 1U);
  EXPECT_EQ(services[0]->Remarque, u"Services");
}

TEST_F(TSoldesEssai, SoldesDansLesDeuxModes) {
  TAnneeEssai annee(*base);
  const TEleve& e = annee.eleves[0];
  const struct {
    bool provision;
    double frais, services;
  } cas[] = {
      {false, 18 - 50, 17.25 - 20.25},
      {true, 2 - 50, 7 - 20.25},
  };
  for (const auto& [provision, frais, services] : cas) {
    annee.eleves.ModeProvision = provision;
    EXPECT_EQ(e.Solde(true, false), Euros(frais)) << provision;
    EXPECT_EQ(e.Solde(false, true), Euros(services)) << provision;
    EXPECT_EQ(e.Solde(true, true), Euros(frais + services)) << provision;
    EXPECT_EQ(e.Solde(false, false), Currency()) << provision;
    // Of a month, the same in both modes: 5 + 7 + 2 - 20 of fees, 0.60 - 1.00 of services.
    EXPECT_EQ(e.SoldeCourant(10, 2016, false, true), Euros(-6)) << provision;
    EXPECT_EQ(e.SoldeCourant(11, 2016, true, false), Euros(-0.40)) << provision;
    EXPECT_EQ(e.SoldeCourant(10, 2016, true, true), Euros(-6)) << provision;
  }
}

TEST_F(TSoldesEssai, SansRienADevoirLeSoldeEstNul) {
  ecole.unEleve().enClasse(QStringLiteral("P1"), QStringLiteral("A"));
  TAnneeEssai annee(*base);
  EXPECT_EQ(annee.eleves.TrouverParId(2)->Solde(true, true), Currency());
  // Nothing but the pupils: only what was paid on the lines is known.
  TEleves nus(*base, 2016);
  EXPECT_EQ(nus[0].Solde(true, true), Euros(118));
}
