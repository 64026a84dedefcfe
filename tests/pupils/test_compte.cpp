#include "attendance/presences.h"
#include "payments/paiements.h"
#include "pupils/eleves.h"
#include "services/activites.h"
#include "services/frais_eleve.h"
#include "services/tarifs_garderies.h"
#include "support/ecole_essai.h"

namespace {

Currency Euros(double euros) { return Currency::Arrondi(euros); }

/// The pupils of 2016 with all that their accounts read.
struct TAnneeEssai {
  explicit TAnneeEssai(TDataModule1& base)
      : tarifs(base),
        presences(base, BornesAnnee(2016), regles),
        frais(base, 2016),
        paiements(base, 2016),
        activites(base, 2016),
        activitesEleves(base, activites),
        eleves(base, 2016) {
    presences.Tarifs = &tarifs;
    regles.PrixRepas[2] = Currency::Euros(5);
    eleves.Regles = &regles;
    eleves.Presences = &presences;
    eleves.ListeFrais = &frais;
    eleves.Paiements = &paiements;
    eleves.ActivitesEleves = &activitesEleves;
  }
  TReglesEcole regles;
  TTarifsGarderies tarifs;
  TPresences presences;
  TListeFrais frais;
  TPaiements paiements;
  TActivites activites;
  TActivitesEleves activitesEleves;
  TEleves eleves;
};

/// Every service once in October 2016, each at a price of its own; a morning more in November.
struct TCompteEssai : TEssaiEcole {
  TCompteEssai() {
    using namespace Essai;
    ecole.tarif(Matin, TousLesJours, "07:00", "08:30", Forfait, "1", ScanPresence, "0.10");
    ecole.tarif(Midi, TousLesJours, "12:00", "13:00", Forfait, "0.50", ScanPresence, "0.20");
    ecole.tarif(Soir, LundiMardiJeudiVendredi, "15:30", "18:00", Forfait, "2", ScanPresence, "0.30");
    ecole.tarif(Mercredi, 3, "12:30", "18:00", Forfait, "3", ScanPresence, "0.40");
    ecole.tarif(FamilleEtude, TousLesJours, "15:30", "16:30", Forfait, "4", ScanPresence, "0.60");
    ecole.tarif(FamilleSoupe, TousLesJours, "11:00", "14:00", Forfait, "0.75", ScanPresence, "0.05");
    eleve.enClasse("P1", "A");
    eleve.scan(Garderie, "2016-10-03", "07:30").scan(Garderie, "2016-10-03", "12:15");
    eleve.scan(Garderie, "2016-10-03", "16:00").scan(Garderie, "2016-10-05", "14:00");  // a Wednesday
    eleve.scan(Etude, "2016-10-04", "15:45").scan(Repas, "2016-10-04", "12:00");
    eleve.scan(Soupe, "2016-10-04", "12:00").scan(Garderie, "2016-11-07", "07:30");
  }
  TEleveEssai eleve = ecole.unEleve();
  const TPeriode octobre = BornesMois(10, 2016);
};

struct TSoldesEssai : TCompteEssai {
  TSoldesEssai() {
    eleve.doit(ecole.frais(u"Piscine"_s, u"20"_s, 10), u"5"_s);
    eleve.doit(ecole.frais(u"Stage"_s, u"3"_s, 3, u"service"_s), u"3"_s);
    eleve.doit(ecole.frais(u"Prévu"_s, u"100"_s, 10, u"previsionnel"_s), u"100"_s);
    eleve.doit(ecole.frais(u"Voyage"_s, u"30"_s, 4, u"non_obligatoire"_s));
    eleve.paie(u"7"_s, 10, 2, u"Services"_s).paie(u"2"_s, 10, 1, u"Frais"_s).paie(u"1"_s, 0, 0, u"Divers"_s);
    eleve.mois(10, u"16.25"_s).mois(11, u"0.40"_s).mois(11, u"0.60"_s);
  }
};

}  // namespace

TEST_F(TCompteEssai, ServicesSelonLeRangDansLaFamille) {
  const std::tuple<const char*, double, double> cas[] = {
      // 1.00 + 0.50 + 2.00 + 3.00 + 4.00, and 5.00 + 0.75 for meal and soup; no midday in the second.
      {"FLG_FACTURE_DETAIL", 16.25, 10.00},
      {"FLG_2E_ENFANT", 7.35, 1.40},  // the soup keeps its price
      {"FLG_3E_ENFANT", 5.75, 0.00},
  };
  for (const auto& [drapeau, services, garderies] : cas) {
    eleve.avec(QString::fromLatin1(drapeau));
    TAnneeEssai annee(*base);
    EXPECT_EQ(annee.eleves[0].TotalServices(octobre), Euros(services)) << drapeau;
    EXPECT_EQ(annee.eleves[0].TotalGarderies(octobre), Euros(garderies)) << drapeau;
  }
}

TEST_F(TCompteEssai, LesActivitesPassentParLEleve) {
  eleve.suit(ecole.activite(u"16:00"_s, u"17:00"_s), u"13"_s);
  TAnneeEssai annee(*base);
  annee.regles.ModeDeduction = TModeDeduction::UnEuro;
  // One euro off Monday's evening and Wednesday.
  EXPECT_EQ(annee.eleves[0].TotalServices(octobre), Euros(14.25));
  annee.regles.ActivitesExt = TTypeActivitesExt::DepuisSeptembre;  // of the year 2015: too late
  EXPECT_EQ(annee.eleves[0].TotalServices(octobre), Euros(16.25));
}

TEST_F(TSoldesEssai, MoisPeriodesEtAnnee) {
  TAnneeEssai annee(*base);
  const TEleve& e = annee.eleves[0];
  const TPeriode tout = BornesAnnee(2016);
  const std::tuple<const char*, Currency, double> cas[] = {
      {"CoutMois 10", e.CoutMois(10, 2016), 16.25},
      {"SoldeMois 10, settled", e.SoldeMois(10, 2016), 0},
      {"PaiementsMois 11, the second row", e.PaiementsMois(11), 0.60},
      {"SoldeMois 11", e.SoldeMois(11, 2016), 0.40},
      {"CoutMois 3", e.CoutMois(3, 2016), 3},
      {"FraisMois 3", e.FraisMois(3, 2016), 3},
      {"FraisServicesPeriode", e.FraisServicesPeriode(tout), 3},
      {"FraisPeriode, October to March", e.FraisPeriode({octobre.Premier, BornesMois(3, 2016).Dernier}), 23},
      {"FraisHorsServicesPeriode", e.FraisHorsServicesPeriode(octobre), 20},
      {"FraisHorsServicesPeriode, which no month contains", e.FraisHorsServicesPeriode(tout), 0},
      {"VersementsPeriode", e.VersementsPeriode(octobre), 5 + 7 + 2},
      {"CoutAnnee", e.CoutAnnee(), 16.25 + 1 + 3},
      {"FraisAnnee", e.FraisAnnee(), 20 + 30},
      {"FraisPayes", e.FraisPayes(), 5 + 3 + 7 + 2 + 1},
      {"PaiementsAnnee, both rows", e.PaiementsAnnee(), 16.25 + 0.40 + 0.60},
      {"VersementsServices", e.VersementsServices(), 7},
      {"VersementsFrais", e.VersementsFrais(), 2},
  };
  for (const auto& [nom, vu, attendu] : cas) EXPECT_EQ(vu, Euros(attendu)) << nom;
}

TEST_F(TSoldesEssai, SoldesDansLesDeuxModes) {
  TAnneeEssai annee(*base);
  const TEleve& e = annee.eleves[0];
  for (const bool provision : {false, true}) {
    annee.regles.ModeProvision = provision;
    const double frais = (provision ? 2 : 18) - 50;
    const double services = (provision ? 7 : 17.25) - 20.25;
    EXPECT_EQ(e.Solde(true, false), Euros(frais)) << provision;
    EXPECT_EQ(e.Solde(false, true), Euros(services)) << provision;
    EXPECT_EQ(e.Solde(true, true), Euros(frais + services)) << provision;
    EXPECT_EQ(e.Solde(false, false), Currency()) << provision;
    // Of a month, the same in both modes: 5 + 7 + 2 - 20 of fees, 0.60 - 1.00 of services.
    EXPECT_EQ(e.SoldeCourant(10, 2016, false, true), Euros(-6)) << provision;
    EXPECT_EQ(e.SoldeCourant(11, 2016, true, false), Euros(-0.40)) << provision;
    EXPECT_EQ(e.SoldeCourant(10, 2016, true, true), Euros(-6)) << provision;
  }
  // Nothing but the pupils: only what was paid on the lines is known.
  EXPECT_EQ(TEleves(*base, 2016)[0].Solde(true, true), Euros(118));
}

TEST_F(TSoldesEssai, FraisLusEnsembleOuUnParUn) {
  const int excursion = ecole.frais(u"Excursion"_s, u"8"_s, 10);
  for (int i = 1; i <= 30; ++i) {
    TEleveEssai autre = ecole.unEleve().enClasse(u"P2"_s, u"B"_s);
    if (i % 3 != 0) autre.doit(excursion, QString::number(i)).paie(u"1"_s, 10, 2, u"Services"_s);
  }
  TAnneeEssai annee(*base), temoin(*base);
  std::vector<TEleve*> tous = annee.eleves.Tous();
  tous.push_back(tous.front());  // chosen twice
  std::vector<Currency> totaux;  // read one by one
  for (const TEleve& e : temoin.eleves)
    totaux.push_back(e.GetAllFrais()->TotalFrais() + e.GetAllFrais()->TotalVerse());
  const TAllFraisEleve* deja = annee.eleves[1].GetAllFrais();
  annee.eleves.LireFrais(tous);
  base.Sql(u"DELETE FROM FRAIS_ELEVE"_s);  // whatever is read now comes too late
  EXPECT_EQ(annee.eleves[1].GetAllFrais(), deja);
  int lignes = 0;
  for (int i = 0; i < annee.eleves.Count(); ++i) {
    const TAllFraisEleve& siennes = *annee.eleves[i].GetAllFrais();
    lignes += siennes.Count();
    EXPECT_EQ(siennes.TotalFrais() + siennes.TotalVerse(), totaux[static_cast<std::size_t>(i)]) << i;
  }
  EXPECT_EQ(lignes, 7 + 40);
}
