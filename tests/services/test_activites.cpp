#include "services/activites.h"
#include "support/ecole_essai.h"

using Activites = TEssaiEcole;

TEST_F(Activites, DuJourEtEnCours) {
  const int automne = ecole.activite("16:00", "17:00", "2016-10-03", "2016-12-22");
  const int annee = ecole.activite("16:00", "16:45");
  auto eleve = ecole.unEleve();
  eleve.suit(9999, "12345").suit(automne, "14").suit(annee, "1");
  ecole.unEleve().suit(automne, "5");
  base.Sql("UPDATE ACTIVITES_ELEVES SET FLG_VENDREDI = 2 WHERE ELEVE_ID = 2");

  TActivites activites(*base, 2016);
  TActivitesEleves inscriptions(*base, activites);
  const auto duJour = [&](const char* date) {
    const TActiviteEleve* trouve = inscriptions.ActiviteDuJour(eleve.Id, J(date));
    return trouve != nullptr ? trouve->ActiviteId : 0;
  };
  const auto enCours = [&](const char* date) {
    const TActiviteEnCours trouve = inscriptions.ActiviteEnCours(eleve.Id, J(date));
    return trouve.Inscription != nullptr ? trouve.Inscription->ActiviteId : 0;
  };
  // Of two on a Monday, one gives the last and the other the first; the dates matter to one only.
  EXPECT_EQ(duJour("2016-10-03"), annee);
  EXPECT_EQ(enCours("2016-10-03"), automne);
  EXPECT_EQ(enCours("2016-09-26"), annee);
  EXPECT_EQ(duJour("2016-09-29"), automne);
  EXPECT_EQ(enCours("2016-09-29"), 0);
  EXPECT_EQ(enCours("2016-12-22"), automne) << "its last day";
  // The row of an activity that is not of the year has its flag, but takes place never.
  EXPECT_EQ(duJour("2016-10-05"), 9999);
  EXPECT_EQ(enCours("2016-10-05"), 0);
  EXPECT_EQ(duJour("2016-10-08"), 0);
  // Nothing found: the last activity looked at.
  EXPECT_EQ(inscriptions.ActiviteEnCours(eleve.Id, J("2016-10-05")).Activite->Id, annee);
  EXPECT_EQ(inscriptions.ActiviteDuJour(2, J("2016-10-07")), nullptr);

  EXPECT_EQ(inscriptions.ActivitesEleve(eleve.Id)->ActiviteId, 9999);
  EXPECT_EQ(inscriptions.ActiviteEleveParCle(eleve.Id, annee)->Id, 3);
  EXPECT_EQ(inscriptions.ActiviteEleveParCle(2, annee), nullptr);
  activites.Remove(*activites.ParCle(automne));
  EXPECT_EQ(enCours("2016-10-03"), annee);
  EXPECT_EQ(TActivites(*base, 2017).Count(), 0);
}

TEST_F(Activites, UneInscriptionRevientCommeElleEstPartie) {
  const TActivites activites(*base, 2016);
  TActivitesEleves inscriptions(*base, activites);
  auto inscription = std::make_unique<TActiviteEleve>();
  inscription->EleveId = 7;
  inscription->ActiviteId = 101;
  inscription->FlgJours = {false, true, false, false, true};
  inscriptions.Add(std::move(inscription));
  inscriptions.Save();
  EXPECT_EQ(base.Rangees("SELECT * FROM ACTIVITES_ELEVES"), QStringList("1;7;101;0;1;0;0;1"));
}
