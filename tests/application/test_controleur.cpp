#include "support/controleur_essai.h"

using Controleur = TEssaiControleur;

TEST_F(Controleur, AYearOnDisplayIsNotTheWorkingYear) {
  ecole.unEleve().enClasse("P1", "A");
  ecole.parametres("30=1|100=2|101=2,20|106=4|105=3|109=1|103=1|25=1");
  essai.Charger();
  EXPECT_EQ(Globals.Eleves->Count(), 1);
  const TReglesEcole& regles = Globals.Presences->Regles;
  EXPECT_TRUE(regles.GarderieUnique);
  EXPECT_TRUE(regles.DeductionEtude);
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 22000);
  EXPECT_EQ(regles.PrixRepas[2].EnBrut(), 0);
  EXPECT_EQ(regles.PrixRepas[3].EnBrut(), 40000);
  EXPECT_EQ(regles.ModeDeduction, TModeDeduction::QuartsHeure);
  EXPECT_EQ(regles.ActivitesExt, TTypeActivitesExt::DepuisOctobre);
  EXPECT_EQ(regles.TitreGarderieSoir(), u"Garderies du soir / études");
  EXPECT_TRUE(Globals.Eleves->Regles->ModeProvision);
  Globals.Parametres->SetParametre(TParam::RepasMaternel, "2,50");
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 25000) << "what is written shows in the next amount";
  Globals.Parametres->SetParametre(TParam::RepasPrimaire, "2.50");
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 25000) << "what does not convert changes nothing";
  Globals.Parametres->SetParametre(TParam::ModeProvision, "0");
  Globals.Parametres->SetParametre(TParam::RepasPrimaire, {});
  EXPECT_TRUE(regles.ModeProvision) << "until a year is loaded";
  essai.Controleur.ChargerAnnee(2016);
  EXPECT_FALSE(Globals.Eleves->Regles->ModeProvision);
  Globals.Parametres->Remettre();
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 22000);
  Globals.EleveCourant = &(*Globals.Eleves)[0];

  essai.Controleur.ChoisirAnnee(2015);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015);
  EXPECT_EQ(Globals.AnneeScolaire, 2016);
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  EXPECT_EQ(essai.Fenetre.Faits.last(), u"ferme");

  ecole.parametre(101, "deux");
  Globals.Parametres = std::make_unique<TParametres>(*base);
  TEleve eleve;
  Globals.EleveCourant = &eleve;
  EXPECT_THROW(essai.Controleur.ChargerAnnee(2016), EConvertError);
  EXPECT_EQ(Globals.EleveCourant, &eleve);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015) << "the display stays as it was";
}

TEST_F(Controleur, ASchoolBeginsWithTheYearOfTheDay) {
  essai.Charger();
  for (const auto& [mois, annee] : {std::pair(1, 2025), {6, 2025}, {7, 2026}, {12, 2026}}) {
    essai.Horloge.Moment = EncodeDate(2026, mois, 1);
    EXPECT_EQ(essai.Controleur.AnneeProposee(), annee) << mois;
  }
}

TEST_F(Controleur, TheFieldInHandIsLeftWhileItsDataAreThere) {
  struct TFenetreQuiRegarde : TFenetreEssai {
    void QuitterChamp() override { Faits += Globals.Eleves && Globals.Parametres ? "quitte" : "trop tard"; }
  } fenetre;
  essai.Charger();
  TControleur controleur(*base, base.Reglages, fenetre, essai.Horloge);
  controleur.FormClose();
  EXPECT_EQ(fenetre.Faits, QStringList{"quitte"});
  EXPECT_EQ(Globals.Parametres, nullptr);
}
