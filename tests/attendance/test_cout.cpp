#include "garderies_essai.h"

using namespace Essai;

namespace {

constexpr const char *kLundi = "2016-10-03", *kMardi = "2016-10-04", *kMercredi = "2016-10-05",
                     *kSamedi = "2016-10-08";
constexpr TModeDeduction kModes[] = {TModeDeduction::Minutes, TModeDeduction::UnEuro,
                                     TModeDeduction::DeuxEuroQuarante, TModeDeduction::QuartsHeure,
                                     static_cast<TModeDeduction>(4)};

}  // namespace

TEST_F(TGarderiesEssai, LesSeptServices) {
  tarifsUsuels();
  auto eleve = ecole.unEleve();
  for (const char* jour : {kLundi, kMardi, kMercredi, kSamedi})
    eleve.scan(Garderie, jour, "07:30").scan(Garderie, jour, "12:30").scan(Garderie, jour, "", "16:30");
  eleve.scan(Garderie, kLundi, "10:00").scan(Etude, kLundi, "", "16:00").scan(Etude, kMercredi, "", "16:00");
  for (const char* jour : {kLundi, kMardi, kSamedi})
    eleve.scan(Repas, jour, "12:00").scan(Repas, jour, "12:10");
  for (const char* jour : {kLundi, kMardi, kSamedi})
    eleve.scan(Soupe, jour, "12:00").scan(Soupe, jour, "12:10");
  eleve.scan(Soupe, kMercredi, "10:00");
  ecole.unEleve().scan(Garderie, kLundi, "07:30");
  charger();
  regles.PrixRepas = {Currency(), Currency::Brut(35000), Currency::Brut(39000), Currency::Brut(45000)};
  const TPeriode mois = BornesMois(10, 2016);
  lignes.resize(3);
  EXPECT_EQ(Euros(presences->CoutGarderieMatin(1, mois, false, lignes)), "3.0000");
  EXPECT_EQ(textes(), "1 1 1");
  EXPECT_EQ(lignes[2].Presence->DateReleve, J(kMercredi));
  EXPECT_EQ(Euros(presences->CoutGarderieMatin(1, mois, true, lignes)), "1.5000");
  EXPECT_EQ(Euros(presences->CoutGarderieMidi(1, mois, false, lignes)), "2.4000");
  // 15:30 to 16:30 is two half hours; on Wednesday it is five, from 14:00.
  EXPECT_EQ(Euros(presences->CoutGarderieSoir(1, mois, false, TTypeActivitesExt::Aucune, nullptr, lignes)),
            "2.0000");
  EXPECT_EQ(mercredi(1, kMercredi), "2.5000");
  EXPECT_EQ(Euros(presences->CoutEtude(1, mois, true, lignes)), "0.6000");
  EXPECT_EQ(Euros(presences->CoutSoupe(1, mois, lignes)), "1.4000");
  EXPECT_EQ(textes(), "0,7 0,7");
  const char* const repas[] = {"0.0000", "7.0000", "7.8000", "9.0000", "0.0000"};
  for (int categorie = 0; categorie < 5; ++categorie) {
    EXPECT_EQ(Euros(presences->CoutRepas(1, mois, categorie, lignes)), repas[categorie]);
    EXPECT_EQ(lignes.size(), 2U);
  }
  EXPECT_EQ(Euros(presences->CoutGarderieMatin(1, {J(kMardi), J(kMardi)}, false, lignes)), "1.0000");
}

TEST_F(TGarderiesEssai, ForfaitGarderieALaJournee) {
  tarifsUsuels();
  // With a morning, with a noon, with neither; a Wednesday before and from ten.
  ecole.unEleve()
      .scan(Garderie, kLundi, "07:30")
      .scan(Garderie, kLundi, "12:30")
      .scan(Garderie, kLundi, "", "17:00");
  ecole.unEleve().scan(Garderie, kLundi, "12:30").scan(Garderie, kLundi, "", "17:00");
  ecole.unEleve().scan(Garderie, kLundi, "", "17:00").scan(Repas, kLundi, "07:30");
  ecole.unEleve().scan(Garderie, kMercredi, "09:59:59").scan(Garderie, kMercredi, "", "15:30");
  ecole.unEleve()
      .scan(Garderie, kMercredi, "10:00")
      .scan(Garderie, kMercredi, "", "15:30")
      .scan(Etude, kMercredi, "07:00");
  charger();
  const auto midi = [&](int eleve) {
    return Euros(presences->CoutGarderieMidi(eleve, {J(kLundi), J(kLundi)}, false, lignes));
  };
  for (const bool unique : {false, true}) {
    regles.GarderieUnique = unique;
    EXPECT_EQ(midi(1), unique ? "-0.2000" : "0.8000");
    EXPECT_EQ(textes(), unique ? "-0,2" : "0,8");
    EXPECT_EQ(midi(2), "0.8000");
    EXPECT_EQ(soir(1, kLundi), unique ? "0.5000" : "1.5000");
    EXPECT_EQ(soir(2, kLundi), unique ? "0.5000" : "1.5000");
    EXPECT_EQ(soir(3, kLundi), "1.5000");
    EXPECT_EQ(mercredi(4, kMercredi), unique ? "0.5000" : "1.5000");
    EXPECT_EQ(mercredi(5, kMercredi), "1.5000");
  }
  // Nothing is taken off nothing.
  for (TTarifGarderie& tarif : *tarifs) {
    tarif.Cout = Currency();
    tarifs->Add(tarif);
  }
  EXPECT_EQ(midi(1), "0.0000");
  EXPECT_EQ(soir(1, kLundi), "0.0000");
}

TEST_F(TGarderiesEssai, DeductionDeLEtude) {
  tarifsUsuels();
  ecole.unEleve().scan(Garderie, kLundi, "", "17:00").scan(Etude, kLundi, "", "16:00");
  ecole.unEleve().scan(Garderie, kLundi, "15:35", "18:00").scan(Etude, kLundi, "15:45", "17:55");
  ecole.unEleve().scan(Garderie, kLundi, "16:40", "17:00").scan(Etude, kLundi, "", "");
  ecole.unEleve().scan(Garderie, kLundi, "", "17:00").scan(Etude, kMardi, "", "16:00");
  charger(false);
  EXPECT_EQ(soir(1, kLundi), "1.5000");
  charger(true);
  EXPECT_EQ(soir(1, kLundi), "0.5000");  // 16:31 to 17:00
  EXPECT_EQ(soir(2, kLundi), "1.5000");  // 16:31 to 18:00: the entry of the study goes before its exit
  EXPECT_EQ(soir(3, kLundi), "1.5000");  // no time of study: from 00:01, so the window up to 17:00
  EXPECT_EQ(soir(4, kLundi), "1.5000");  // the study of another day
  EXPECT_EQ(presences->HeureEtude(1, J(kLundi)), H("16:00"));
  EXPECT_EQ(presences->HeureEtude(3, J(kLundi)), 0.0);
  EXPECT_EQ(presences->HeureEtude(4, J(kLundi)), std::nullopt);
  EXPECT_EQ(presences->DebutServiceSoirEtude(TTypeFamille::Etude), H("15:30"));
  EXPECT_EQ(presences->FinServiceMatinMidi(TTypeFamille::Etude), 0.0);
}

TEST_F(TGarderiesEssai, ModesDeDeductionDesActivites) {
  tarifsUsuels();
  const int activite = ecole.activite("16:15", "17:00", "2016-10-03", "2016-10-07");
  // Half hours from 15:30: five at 18:00, three at 17:00 and 16:45, two at 16:30, one at 16:00.
  const struct {
    const char *sortie, *un, *deux;  // by mode, for a first and for a second child
  } cas[] = {
      {"18:00", "1.3750 1.5000 0.1000 1.9000 2.5000", "0.6875 0.2500 -1.1500 0.6500 1.2500"},
      {"17:00", "0.3750 0.5000 -0.9000 0.9000 1.5000", "0.1875 0.7500 0.7500 0.1500 0.7500"},
      {"16:45", "1.0000 0.5000 -0.9000 1.0000 1.5000", "0.5000 0.7500 0.7500 0.5000 0.7500"},
      {"16:30", "1.0000 1.0000 1.0000 1.0000 1.0000", "0.5000 0.5000 0.5000 0.5000 0.5000"},
      {"16:00", "0.5000 0.5000 0.5000 0.5000 0.5000", "0.2500 0.2500 0.2500 0.2500 0.2500"},
  };
  for (const auto& c : cas) ecole.unEleve().scan(Garderie, kLundi, "", c.sortie).suit(activite, "135");
  auto hors = ecole.unEleve().scan(Garderie, kMardi, "", "18:00").scan(Garderie, "2016-10-10", "", "18:00");
  hors.suit(activite, "1");
  charger();
  const auto parMode = [&](int eleve, const char* jour, bool deuxieme) {
    std::string montants;
    for (const TModeDeduction mode : kModes) {
      regles.ModeDeduction = mode;
      montants += (montants.empty() ? "" : " ") + soir(eleve, jour, deuxieme);
    }
    return montants;
  };
  for (int eleve = 1; eleve <= 5; ++eleve) {
    EXPECT_EQ(parMode(eleve, kLundi, false), cas[eleve - 1].un) << eleve;
    EXPECT_EQ(parMode(eleve, kLundi, true), cas[eleve - 1].deux) << eleve;
  }
  for (const char* jour : {kMardi, "2016-10-10"})
    EXPECT_EQ(parMode(hors.Id, jour, false), "2.5000 2.5000 2.5000 2.5000 2.5000") << jour;
}

TEST_F(TGarderiesEssai, ActiviteRecalculeeSurLEntreeDuReleve) {
  tarifsUsuels();
  const int activite = ecole.activite("16:15", "17:00");
  // With the study deducted the evening starts at 16:31; who leaves during the activity pays from 15:30
  // to its start all the same.
  ecole.unEleve().scan(Garderie, kLundi, "", "16:45").scan(Etude, kLundi, "", "16:00").suit(activite, "1");
  // 16:00 to 17:00 is a hair above four quarters of an hour, and counts for five.
  const int heure = ecole.activite("16:00", "17:00");
  ecole.unEleve().scan(Garderie, kMercredi, "", "17:30").suit(heure, "3");
  // The activity of a Wednesday: in at 15:00, out during it.
  ecole.unEleve().scan(Garderie, kMercredi, "15:15", "16:30").suit(heure, "3");
  charger(true);
  EXPECT_EQ(soir(1, kLundi), "1.0000");
  EXPECT_EQ(mercredi(2, kMercredi), "2.0000");  // 3.50 less 60 minutes
  EXPECT_EQ(mercredi(3, kMercredi), "1.0000");  // 15:15 to 16:00, not to 16:30
  regles.ModeDeduction = TModeDeduction::QuartsHeure;
  EXPECT_EQ(mercredi(2, kMercredi), "2.5000");
}

TEST_F(TGarderiesEssai, OrdreDesDeductionsEtSousZero) {
  tarifsUsuels();
  const int longue = ecole.activite("15:00", "17:00");
  // Longer than the stay: the amount goes below zero and stays there.
  ecole.unEleve().scan(Garderie, kLundi, "", "17:00").suit(longue, "1");
  // The activity first, the day flat rate then, on what it left.
  ecole.unEleve().scan(Garderie, kLundi, "07:30").scan(Garderie, kLundi, "", "17:00").suit(longue, "1");
  // A Wednesday knows nothing of the study.
  ecole.unEleve().scan(Garderie, kMercredi, "", "16:30").scan(Etude, kMercredi, "", "16:00");
  // Gone before the activity begins: priced from the record's own entry, not from after the study.
  const int tardive = ecole.activite("17:15", "18:00");
  ecole.unEleve().scan(Garderie, kLundi, "", "17:00").scan(Etude, kLundi, "", "16:00").suit(tardive, "1");
  charger(true);
  EXPECT_EQ(soir(1, kLundi), "-1.5000");  // 1.50 less 120 minutes
  EXPECT_EQ(mercredi(3, kMercredi), "2.5000");
  EXPECT_EQ(soir(4, kLundi), "1.5000");
  regles.ModeDeduction = TModeDeduction::QuartsHeure;
  EXPECT_EQ(soir(1, kLundi), "-0.3000");  // a hair above eight quarters: nine
  regles.ModeDeduction = TModeDeduction::UnEuro;
  regles.GarderieUnique = true;
  EXPECT_EQ(soir(2, kLundi), "-0.5000");
}

TEST(ActivitesExt, PeriodeDuParametre100) {
  TBaseEssai base;
  TEcoleEssai ecole(base, 2015);
  ecole.tarif(Soir, TousLesJours, "15:30", "18:00", DemiHeure, "0.5", ScanSortie);
  // An activity whose own dates are over: they are not looked at.
  const int activite = ecole.activite("16:00", "17:00", "2015-09-01", "2015-09-02");
  const char* const jours[] = {"2015-09-25", "2015-09-28", "2015-10-02", "2015-10-05",
                               "2015-10-06", "2016-06-30", "2016-07-01", "2016-10-03"};
  auto eleve = ecole.unEleve().suit(activite, "1345");
  for (const char* jour : jours) eleve.scan(Garderie, jour, "", "17:00");
  ecole.unEleve().scan(Garderie, "2015-10-05", "", "16:30").suit(activite, "1");
  const TTarifsGarderies tarifs(*base);
  const TActivites activites(*base, 2015);
  const TActivitesEleves inscriptions(*base, activites);
  TReglesEcole regles;
  regles.ModeDeduction = TModeDeduction::DeuxEuroQuarante;  // plays no part in a period
  TPresences presences(*base, {J("2015-09-01"), J("2017-06-30")}, regles);
  presences.Tarifs = &tarifs;
  const char* const montants[3][8] = {
      {"1.5000", "1.5000", "1.5000", "1.5000", "1.5000", "1.5000", "1.5000", "1.5000"},
      {"1.5000", "0.5000", "0.5000", "0.5000", "1.5000", "0.5000", "1.5000", "1.5000"},
      {"1.5000", "1.5000", "1.5000", "0.5000", "1.5000", "0.5000", "1.5000", "1.5000"}};
  TLignesService lignes;
  for (const char* parametre : {"0", "1", "2"}) {
    const TTypeActivitesExt ext = LireTypeActivitesExt(QString::fromLatin1(parametre));
    for (std::size_t i = 0; i < 8; ++i) {
      const TPeriode jour{J(jours[i]), J(jours[i])};
      EXPECT_EQ(Euros(presences.CoutGarderieSoir(1, jour, false, ext, &inscriptions, lignes)),
                montants[static_cast<int>(ext)][i])
          << parametre << " " << jours[i];
    }
    // A euro exactly is not above a euro.
    EXPECT_EQ(Euros(presences.CoutGarderieSoir(2, BornesAnnee(2015), false, ext, &inscriptions, lignes)),
              "1.0000");
  }
}
