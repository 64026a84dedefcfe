#include "attendance/presences_particulieres.h"
#include "garderies_essai.h"

using namespace Essai;

TEST_F(TGarderiesEssai, AjoutePresenceGardeUnReleveParFamille) {
  tarifsUsuels();
  charger();
  const struct {
    const char *pourquoi, *date;
    int type;
    const char *entree, *sortie;
    bool ajoute;
  } cas[] = {
      {"morning", "2016-10-03", Garderie, "07:30", "", true},
      {"the same scan", "2016-10-03", Garderie, "07:30", "", false},
      {"the same family", "2016-10-03", Garderie, "07:45", "", false},
      {"evening", "2016-10-03", Garderie, "", "16:00", true},
      {"meal", "2016-10-03", Repas, "12:00", "", true},
      {"a soup is classed by the rows of meals", "2016-10-03", Soupe, "12:10", "", false},
      {"a meal of another time", "2016-10-03", Repas, "12:20", "", false},
      {"study", "2016-10-03", Etude, "", "16:05", true},
      {"the same times, be it of another kind", "2016-10-04", Etude, "", "16:00", true},
      {"", "2016-10-04", Garderie, "", "16:00", false},
      {"no tariff at all", "2016-10-04", Garderie, "10:00", "", true},
      {"a second one without tariff", "2016-10-04", Etude, "06:00", "", false},
  };
  for (const auto& c : cas) {
    const TPresence* p = presences->AjoutePresence(Presence(1, c.type, c.date, c.entree, c.sortie));
    EXPECT_EQ(p != nullptr, c.ajoute) << c.pourquoi;
  }
  EXPECT_NE(presences->AjoutePresence(Presence(2, Garderie, "2016-10-03", "07:30", "")), nullptr);
  EXPECT_TRUE(presences->ExisteAutrePresence(1, nullptr, TTypeFamille::Matin, J("2016-10-03")));
  const TPresence* matin = presences->AutrePresence(1, nullptr, TTypeFamille::Matin, J("2016-10-03"));
  EXPECT_FALSE(presences->ExisteAutrePresence(1, matin, TTypeFamille::Matin, J("2016-10-03")));
}

TEST_F(TGarderiesEssai, AjoutePresenceDuSoirGardeLaDerniereSortie) {
  tarifsUsuels();
  ecole.unEleve().scan(Garderie, "2016-10-03", "", "16:00").scan(Garderie, "2016-10-04", "15:40", "16:00");
  ecole.unEleve().scan(Garderie, "2016-10-05", "", "15:00").scan(Etude, "2016-10-03", "", "16:00");
  charger();
  const auto sortieApres = [&](int eleve, int type, const char* date, const char* sortie) {
    EXPECT_EQ(presences->AjoutePresence(Presence(eleve, type, date, "", sortie)), nullptr);
    return presences->PresencesEleve(eleve, {J(date), J(date)}).at(0)->HeureSortie;
  };
  EXPECT_EQ(sortieApres(1, Garderie, "2016-10-03", "17:00"), H("17:00"));
  EXPECT_EQ(sortieApres(1, Garderie, "2016-10-03", "16:30"), H("17:00"));  // earlier
  EXPECT_EQ(sortieApres(1, Garderie, "2016-10-04", "17:00"), H("16:00"));  // there is an entry
  EXPECT_EQ(sortieApres(2, Garderie, "2016-10-05", "17:00"), H("15:00"));  // not an evening
  EXPECT_EQ(sortieApres(2, Etude, "2016-10-03", "16:20"), H("16:00"));
  presences->Save();
  EXPECT_EQ(base.Rangees("SELECT PRESENCE_ID, HEURE_SORTIE FROM PRESENCES WHERE ELEVE_ID = 1 ORDER BY 1"),
            (QStringList{"1;17:00:00.000", "2;16:00:00.000"}));
}

TEST_F(TGarderiesEssai, SansTarifToutEstDUneFamille) {
  charger();
  presences->Tarifs = nullptr;
  EXPECT_NE(presences->AjoutePresence(Presence(1, Garderie, "2016-10-03", "07:30", "")), nullptr);
  EXPECT_EQ(presences->AjoutePresence(Presence(1, Repas, "2016-10-03", "12:00", "")), nullptr);
  lignes.resize(2);
  EXPECT_EQ(Euros(presences->CoutGarderieMatin(1, BornesAnnee(2016), false, lignes)), "0.0000");
  EXPECT_TRUE(lignes.empty());
  EXPECT_EQ(presences->FinServiceMatinMidi(TTypeFamille::Matin), 0.0);
}

TEST_F(TGarderiesEssai, ChargementEtEnregistrement) {
  ecole.unEleve().scan(9, "2016-09-01", "07:30:15").scan(1, "2017-06-30", "", "16:00");
  ecole.unEleve()
      .scan(1, "2016-08-31", "07:30")
      .scan(1, "2017-07-01", "07:30")
      .scan(1, "2016-09-01", "07:00");
  base.Sql("UPDATE PRESENCES SET CODE_IMPLANTATION = 'S1' WHERE PRESENCE_ID = 5");
  charger();
  ASSERT_EQ(presences->Count(), 3);
  EXPECT_EQ((*presences)[0].CodeImplantation, u"S1");  // by date, then by entry
  EXPECT_EQ((*presences)[1].HeureEntree, H("07:30:15"));
  EXPECT_EQ((*presences)[1].HeureSortie, 0.0);
  EXPECT_EQ(Texte((*presences)[1].TypePresence), QString());
  auto nouvelle = Presence(1, Etude, "2016-10-03", "", "16:05");
  nouvelle->CodeImplantation = u"S2"_s;
  presences->AjoutePresence(std::move(nouvelle));
  presences->Save();
  EXPECT_EQ(base.Rangees("SELECT * FROM PRESENCES WHERE PRESENCE_ID = 6"),
            QStringList("6;1;4;2016-10-03;-;16:05:00.000;S2"));
}

TEST_F(TGarderiesEssai, RecherchesDUnEleve) {
  ecole.unEleve().scan(Garderie, "2016-10-04", "07:00");
  charger();
  EXPECT_NE(presences->ChercheDoublon(1, J("2016-10-04"), H("07:00"), 0.0), nullptr);
  EXPECT_EQ(presences->ChercheDoublon(1, J("2016-10-03"), H("07:00"), 0.0), nullptr);
  EXPECT_EQ(presences->ChercheDoublon(1, J("2016-10-04"), H("07:00"), H("08:00")), nullptr);
  EXPECT_TRUE(presences->PresencesEleve(1, {J("2016-10-31"), J("2016-10-01")}).empty())
      << "an upside-down span";
  presences->AjoutePresence(Presence(1, Garderie, "2016-10-03", "07:00", ""));
  EXPECT_EQ(presences->PresencesEleve(1, BornesAnnee(2016)).at(1)->DateReleve, J("2016-10-03"))
      << "a new record stands behind those loaded";
}

TEST_F(TGarderiesEssai, LesMontantsSuiventChaqueChangement) {
  tarifsUsuels();
  ecole.unEleve().scan(Garderie, "2016-10-03", "07:30").scan(Soupe, "2016-10-03", "12:00");
  ecole.unEleve();
  charger();
  const auto montants = [&](int eleve) {
    std::string texte;
    for (const int mois : {10, 11})
      texte += Euros(presences->CoutGarderieMatin(eleve, BornesMois(mois, 2016), false, lignes)) + ' ' +
               Euros(presences->CoutSoupe(eleve, BornesMois(mois, 2016), lignes)) + ' ';
    return texte;
  };
  EXPECT_EQ(montants(1), "1.0000 0.7000 0.0000 0.0000 ");
  TPresence& matin = *presences->PresencesEleve(1, BornesMois(10, 2016)).at(0);
  matin.DateReleve = J("2016-11-07");
  presences->Add(matin);
  EXPECT_EQ(montants(1), "0.0000 0.7000 1.0000 0.0000 ") << "another month";
  matin.EleveId = 2;
  matin.TypePresence = TTypePresence::Soupe;
  matin.HeureEntree = H("12:00");
  presences->Add(matin);
  EXPECT_EQ(montants(1), "0.0000 0.7000 0.0000 0.0000 ");
  EXPECT_EQ(montants(2), "0.0000 0.0000 0.0000 0.7000 ") << "another pupil, kind and time";
  presences->Remove(matin);
  EXPECT_EQ(montants(2), "0.0000 0.0000 0.0000 0.0000 ");
}

TEST(PresencesParticulieres, Marques) {
  TBaseEssai base;
  TEcoleEssai ecole(base);
  ecole.unEleve().marque(1, 10).marque(2, 1);
  base.Sql("INSERT INTO PRESENCES_PARTICULIERES VALUES (90, 1, 3, 6, 2016)");  // the year before
  base.Sql("INSERT INTO PRESENCES_PARTICULIERES VALUES (91, 1, 3, 7, 2016)");
  TPresencesParticulieres marques(*base, 2016);
  EXPECT_EQ(marques.Count(), 3);
  EXPECT_TRUE(marques.MarqueMoisMidi(1, 10) && marques.MarqueMoisEtude(1, 1) &&
              marques.MarqueMoisForfait(1, 7));
  EXPECT_FALSE(marques.MarqueMoisMidi(1, 1) || marques.MarqueMoisForfait(1, 6) ||
               marques.MarqueMoisMidi(2, 10));
  const auto ajoute = [&](int type, int mois) {
    auto marque = std::make_unique<TPresenceParticuliere>();
    marque->EleveId = 1;
    marque->TypePresence = static_cast<TTypeMarque>(type);
    marque->Mois = mois;
    marque->Annee = 2017;
    marques.AjouteMarque(std::move(marque));
  };
  for (const int type : {1, 2, 3, 3, 4, 0}) ajoute(type, 1);
  EXPECT_EQ(marques.Count(), 5);
  marques.RetireMarqueEtude(1, 1);
  marques.RetireMarqueEtude(1, 1);
  EXPECT_FALSE(marques.MarqueMoisEtude(1, 1));
  marques.Save();
  EXPECT_EQ(base.Rangees("SELECT * FROM PRESENCES_PARTICULIERES WHERE MOIS = 1 ORDER BY 1"),
            (QStringList{"3;1;1;1;2017", "4;1;3;1;2017"}));
}
