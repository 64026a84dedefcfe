#include <gtest/gtest.h>

#include "core/exceptions.h"
#include "support/controleur_essai.h"

using namespace Qt::StringLiterals;

namespace {

void Regler(TBaseEssai& base, const char* nom, const QString& valeur) {
  base.Reglages.Ecrire(TRacine::Utilisateur, QString::fromLatin1(nom), valeur);
}

/// A workstation whose server is the test's own file.
void ConnaitreLeServeur(TBaseEssai& base) {
  base->Deconnecter();
  base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, base.FichierDeDonnees());
}

}  // namespace

TEST(Controleur, TheFourWaysOfStarting) {
  TBaseEssai base;
  TEcoleEssai(base).unEleve().enClasse(u"P1"_s, u"A"_s, u"S1"_s);
  ConnaitreLeServeur(base);
  const QStringList annee{u"Année scolaire 2016 - 2017"_s, "arbre", "coche 2016"};
  struct {
    const char* reglage;  // set to "1"
    QString parametre41;
    QStringList attendu;
  } const cas[] = {
      {"", {}, QStringList{"-pgRepas", "-pgRepas3"} + annee + QStringList{"*PgEleve"}},
      {"", u"1"_s, QStringList{"+pgRepas", "-pgRepas3"} + annee + QStringList{"*PgEleve"}},
      {"Mode", u"0"_s,
       QStringList{"-pgRepas", "-pgRepas3"} + annee +
           QStringList{"-PgEleve", "-PgParametre", "-pgRepasNew", "+pgRepas", "*pgRepas", "-bouton",
                       "-bouton", "-bouton", "reservation"}},
      {"Tablette",
       {},
       QStringList{"-PgEleve", "-PgParametre", "-pgRepas", "-pgRepasNew", "-arbre", "+pgRepas3",
                   "*pgRepas3"} +
           annee + QStringList{"tablette"}},
  };
  for (const auto& c : cas) {
    for (const char* nom : {"Mode", "Tablette", "Offline"})
      Regler(base, nom, nom == std::string(c.reglage) ? u"1"_s : u"oui"_s);
    base->ConnectToServer();
    TEcoleEssai(base).parametre(41, c.parametre41);
    TControleurEssai essai(base);
    essai.Controleur.FormShow();
    EXPECT_EQ(essai.Fenetre.Faits, c.attendu) << c.reglage;
    EXPECT_EQ(Globals.Eleves->Count(), 1);
    EXPECT_EQ(Globals.Eleves->Implantations->Count(), 1) << "the site of a pupil is known after the load";
    essai.Controleur.FormClose();
    EXPECT_EQ(Globals.Eleves, nullptr);
  }
}

TEST(Controleur, OffLineNeedsNoServer) {
  TBaseEssai base;
  base->Deconnecter();
  Regler(base, "Offline", u"1"_s);
  Regler(base, "Mode", u"1"_s);
  Regler(base, "Photo", u"3 octobre"_s);
  TControleurEssai essai(base);
  essai.Controleur.FormShow();
  EXPECT_TRUE(Globals.ModeHorsLigne);
  EXPECT_FALSE(Globals.ModeProfesseur) << "the other modes are not read";
  EXPECT_EQ(Globals.DatePhoto, u"3 octobre");
  EXPECT_EQ(essai.Fenetre.Faits.last(), u"tablette");
  EXPECT_FALSE(base->EstConnecte());

  // On-line for a transfer, then off-line again.
  base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, base.FichierDeDonnees());
  essai.Controleur.PasserEnLigne();
  EXPECT_TRUE(base->EstConnecte());
  EXPECT_EQ(base.Reglages.Lire(TRacine::Utilisateur, u"Offline"_s), u"0");
  EXPECT_TRUE(essai.Fenetre.Faits.contains(u"*pgRepas3"_s));
  Globals.Parametres->SetParametre(TParam::DatePhoto, u"demain"_s);
  essai.Controleur.MemoriserDatePhoto();
  EXPECT_EQ(base.Reglages.Lire(TRacine::Utilisateur, u"Photo"_s), u"demain");
  essai.Controleur.PasserHorsLigne();
  EXPECT_FALSE(base->EstConnecte());
  EXPECT_EQ(base.Reglages.Lire(TRacine::Utilisateur, u"Offline"_s), u"1");
  EXPECT_TRUE(Globals.ModeHorsLigne);
}

TEST(Controleur, RetryAndGiveUp) {
  TBaseEssai base;
  base->Deconnecter();
  const QString mauvais = base.Fichier(u"mauvais.fdb"_s, QByteArray(5000, 'z'));
  base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, mauvais);
  {
    TControleurEssai essai(base);
    base.Dialogues.Reessaie(false);
    essai.Controleur.FormShow();
    EXPECT_EQ(essai.Fenetre.Faits, QStringList{"fin"}) << "giving up at the first failure ends the program";
    EXPECT_EQ(
        base.Dialogues.Questions.last(),
        QString(u"Erreur de connexion au serveur de données\n"
                u"Un problème empêche le logiciel de se connecter au serveur de base de donnée nommé : " %
                mauvais %
                u"\nVeuillez vérifier si :\n"
                u"1. Le nom du serveur est correctement orthographié.\n"
                u"2. Le serveur est allumé et accessible via le réseau.\n"
                u"3. Les paramètres réseau de votre ordinateur sont corrects\n"
                u"Actions:\n"
                u"Cliquez ici afin de modifier le nom du serveur de données."));
  }
  {
    TControleurEssai essai(base);
    base.Dialogues.Reessaie(true).Reessaie(false);
    essai.Controleur.FormShow();
    EXPECT_TRUE(essai.Fenetre.Faits.isEmpty()) << "giving up after a retry leaves an empty window";
  }
  TControleurEssai essai(base);
  base.Dialogues.Reessaie(true, true).Saisit(u"Identification"_s, base.FichierDeDonnees());
  essai.Controleur.FormShow();
  EXPECT_EQ(essai.Fenetre.Faits.last(), u"*PgEleve");
}

TEST(Controleur, AYearOnDisplayIsNotTheWorkingYear) {
  TBaseEssai base;
  TEcoleEssai ecole(base);
  ecole.unEleve().enClasse(u"P1"_s, u"A"_s);
  for (const auto& [id, valeur] : {std::pair{30, "1"},
                                   {100, "2"},
                                   {101, "2,20"},
                                   {106, "4"},
                                   {105, "3"},
                                   {109, "1"},
                                   {103, "1"},
                                   {25, "1"}})
    ecole.parametre(id, QString::fromLatin1(valeur));
  TControleurEssai essai(base);
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
  Globals.Parametres->SetParametre(TParam::RepasMaternel, u"2,50"_s);
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 25000) << "what is written shows in the next amount";
  Globals.Parametres->SetParametre(TParam::RepasPrimaire, u"2.50"_s);
  EXPECT_EQ(regles.PrixRepas[1].EnBrut(), 25000) << "what does not convert changes nothing";
  Globals.Parametres->SetParametre(TParam::ModeProvision, u"0"_s);
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

  ecole.parametre(101, u"deux"_s);
  Globals.Parametres = std::make_unique<TParametres>(*base);
  TEleve eleve;
  Globals.EleveCourant = &eleve;
  EXPECT_THROW(essai.Controleur.ChargerAnnee(2016), EConvertError);
  EXPECT_EQ(Globals.EleveCourant, &eleve);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015) << "the display stays as it was";
}

TEST(Controleur, AnUnreadableYearStopsTheStartUntilItIsMended) {
  TBaseEssai base;
  TEcoleEssai ecole(base);
  ecole.parametre(27, u"deux mille seize"_s);
  TControleurEssai essai(base);
  try {
    essai.Charger();
    ADD_FAILURE() << "the year was read";
  } catch (const EConvertError& e) {
    EXPECT_TRUE(e.Message.startsWith(u"Paramètre 27 : ")) << e.what();
  }
  ASSERT_NE(Globals.Parametres, nullptr) << "where it is mended";
  Globals.Parametres->SetParametre(TParam::AnneeScolaire, u"2018"_s);
  essai.Charger();
  EXPECT_EQ(Globals.AnneeScolaire, 2018);
}

TEST(Controleur, ASchoolBeginsWithTheYearOfTheDay) {
  TBaseEssai base;
  TControleurEssai essai(base);
  essai.Charger();
  for (const auto& [mois, annee] : {std::pair(1, 2025), {6, 2025}, {7, 2026}, {12, 2026}}) {
    essai.Horloge.Moment = EncodeDate(2026, mois, 1);
    EXPECT_EQ(essai.Controleur.AnneeProposee(), annee) << mois;
  }
  EXPECT_FALSE(essai.Controleur.EleveInscrit());
  essai.Controleur.CommencerAnnee(2026);
  EXPECT_EQ(Globals.AnneeScolaire, 2026);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2026);
  EXPECT_EQ(base.Valeur(u"SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 27"_s), u"2026");
  TEcoleEssai(base).unEleve().enClasse(u"P1"_s, u"A"_s);
  EXPECT_TRUE(essai.Controleur.EleveInscrit());
}

TEST(Controleur, TheFieldInHandIsLeftWhileItsDataAreThere) {
  struct TFenetreQuiRegarde : TFenetreEssai {
    void QuitterChamp() override {
      Faits += Globals.Eleves && Globals.Parametres ? u"quitte"_s : u"trop tard"_s;
    }
  } fenetre;
  TBaseEssai base;
  TControleurEssai essai(base);
  essai.Charger();
  TControleur controleur(*base, base.Reglages, fenetre, essai.Horloge);
  controleur.FormClose();
  EXPECT_EQ(fenetre.Faits, QStringList{"quitte"});
  EXPECT_EQ(Globals.Parametres, nullptr);
}
