#include "screens/principal/arbre_eleves.h"
#include "screens/principal/frm_main.h"
#include "support/controleur_essai.h"

namespace {

QStringList journal;

/// A screen that notes its messages.
class TEcranEssai : public TForm {
 public:
  explicit TEcranEssai(TContexteEcran&) {}
  bool RecevoirMessage(const TMessage& message) override {
    journal += QString::number(static_cast<int>(message.Code)) +
               (Globals.EleveCourant ? u' ' + Globals.EleveCourant->Nom : QString());
    return true;
  }
  bool Accepte(TCodeMessage) const override { return true; }
  bool LaisserChamp() override {
    journal += u"quitte"_s + (Globals.EleveCourant ? u' ' + Globals.EleveCourant->Nom : QString());
    return true;
  }
};

struct TAutreEcran : TEcranEssai {
  using TEcranEssai::TEcranEssai;
};

struct TMondeEssai : IFenetreModale, IApercu {
  TResultatModal MontrerModal(TForm&) override { return TResultatModal::Annule; }
  bool Afficher(TRapport&) override { return false; }
};

/// The main window over a test's database.
class FrmMain : public testing::Test {
 protected:
  void SetUp() override {
    journal.clear();
    Base->Deconnecter();
    Base.Reglages.Ecrire(TRacine::Machine, "Serveur", Base.FichierDeDonnees());
    Base->ConnectToServer();
    for (TCommandePrincipale& commande : Main.Commandes) {
      if (commande.Gestionnaire == TGestionnaire::AdvGlowButton2Click)
        commande.Ecran = Ecran<TEcranEssai>(TRemplacement::Cache);
      else
        commande.Ecran.reset();
      if (commande.Gestionnaire == TGestionnaire::AdvGlowButton16Click) commande.Ecran = Ecran<TAutreEcran>();
    }
  }
  void TearDown() override {
    Main.Fermer();
    Globals = {};
  }

  TEleveEssai Eleve(const char* nom, const char* classe, const char* site = "") {
    return ecole_.unEleve().nomme(nom, "X").enClasse(classe, "A", site);
  }
  /// "P1 A", three pupils, the second struck off; "P2 A", one pupil.
  void Ecole() {
    Eleve("Adam", "P1");
    Eleve("Bastin", "P1").avec("FLG_RADIE");
    Eleve("Élias", "P1");
    Eleve("Pirard", "P2");
  }
  void Chercher(const char* texte) { Main.edSearchChange(texte); }
  QString Choisi() const { return Main.Arbre.Selection() ? Main.Arbre.Selection()->Texte : QString(); }
  QStringList Textes() const {
    QStringList textes;
    for (TNoeud* n = Main.Arbre.Premier(); n; n = Main.Arbre.Suivant(*n))
      textes += QString(n->Niveau(), u'>') + n->Texte + (n->Marque == TMarqueNoeud::Barree ? u"-" : u"");
    return textes;
  }
  TBaseEssai Base;
  THorlogeEssai Horloge;
  TMondeEssai Monde;
  TFrmMain Main{*Base, Base.Reglages, Horloge, Monde, Monde};

 private:
  TEcoleEssai ecole_{Base};
};

}  // namespace

TEST_F(FrmMain, ACommandOpensItsScreenWithItsTools) {
  Ecole();
  Main.Montrer();
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(journal, QStringList{"6029"}) << "the screen takes up the selected pupil at once";
  EXPECT_FALSE(Main.OutilActif(TOutil::btnMail)) << "nothing is sent yet";
  journal.clear();
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) Main.OutilClick(outil.Outil);
  EXPECT_EQ(journal, (QStringList{"quitte", "6032"}));

  TForm* fiche = Main.Panneau.Courante();
  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  EXPECT_EQ(Main.PageActive(), TPage::PgParametre);
  journal.clear();
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) Main.OutilClick(outil.Outil);
  EXPECT_EQ(journal, (QStringList{"quitte", "6027", "quitte", "6026", "quitte", "6024", "quitte", "6025"}));
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(Main.Panneau.Courante(), fiche) << "it was only hidden";

  for (TCommandePrincipale& commande : Main.Commandes)
    if (commande.Gestionnaire == TGestionnaire::btnVirementClick) commande.Ecran.reset();
  Main.Executer(TGestionnaire::btnVirementClick);
  EXPECT_EQ(Main.Panneau.Courante(), fiche) << "a screen that is not there says so and opens nothing";
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Alerte);
  for (const TNiveauEtat niveau : {TNiveauEtat::Succes, TNiveauEtat::Alerte, TNiveauEtat::Erreur}) {
    Main.Etat(niveau, "Tarif enregistré");
    Main.Executer(TGestionnaire::AdvGlowButton16Click);
    EXPECT_EQ(Main.Etat().Texte.isEmpty(), niveau != TNiveauEtat::Erreur) << "no word about the next screen";
  }
}

TEST_F(FrmMain, TheTreeOfTwoSitesLeavesOutAClassWithoutSite) {
  Eleve("Zed", "P1", "S1");
  Eleve("Adam", "P2", "S1");
  Eleve("Noir", "P3", "  ");
  Eleve("Blanc", "P1", "S2");
  Base.Sql(
      u"INSERT INTO IMPLANTATION (IMPLANTATION_ID, CODE_IMPLANTATION, LIBELLE_COURT) "
      "VALUES (90, 'S1', 'Centre')"_s);
  Main.Montrer();
  EXPECT_EQ(Textes(),
            (QStringList{"Centre", ">P1 A", ">>Zed X", ">P2 A", ">>Adam X", "S2", ">P1 A", ">>Blanc X"}));
  TArbre sien;
  ConstruireArbre(sien, false, true);
  EXPECT_EQ(sien.Racines().front()->Enfants().front()->Enfants().size(), 0U);
}

TEST_F(FrmMain, AStruckOffPupilIsCrossedOutOrLeftOut) {
  Ecole();
  Main.Montrer();
  EXPECT_EQ(Textes(), (QStringList{"P1 A", ">Adam X", ">Bastin X-", ">Élias X", "P2 A", ">Pirard X"}));
  TArbre sien;
  ConstruireArbre(sien, true, false);
  EXPECT_EQ(sien.Racines().front()->Enfants().size(), 2U);
  EXPECT_EQ(Main.TexteNombres(), u"4 élèves, dont 1 radié");

  for (const bool radie : {true, false}) {
    Globals.EleveCourant = &(*Globals.Eleves)[0];
    Globals.EleveCourant->FlgRadie = radie;
    Main.Envoyer({TCodeMessage::EleveRadie, {}});
    EXPECT_EQ(Textes().contains(">Adam X-"), radie);
  }
}

TEST_F(FrmMain, TheFieldInHandIsLeftBeforeThePupilChanges) {
  Ecole();
  Main.Montrer();
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  journal.clear();
  Chercher("adam");
  Chercher("pir");
  EXPECT_EQ(journal, (QStringList{"quitte", "6029 Adam", "quitte Adam", "6029 Pirard"}));
  EXPECT_EQ(Globals.ClasseCourante, Globals.EleveCourant->Classe);
  Chercher("p1");
  EXPECT_EQ(journal.last(), u"6030 Pirard") << "a class leaves the current pupil";
  EXPECT_EQ(Globals.ClasseCourante->Libelle(), u"P1 A");

  Main.SuspendreArbre(true);
  Chercher("adam");
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard");
  Main.SuspendreArbre(false);

  // A screen that chose another pupil by itself.
  Globals.EleveCourant = &(*Globals.Eleves)[1];
  Main.Envoyer({TCodeMessage::EleveChange, {}});
  EXPECT_EQ(Choisi(), u"Bastin X");
}

TEST_F(FrmMain, SearchFromTheStartThenOnward) {
  Ecole();
  Main.Montrer();
  const char* const cas[][2] = {
      {"p", "P1 A"}, {"  PIR ", "Pirard X"}, {"él", "Élias X"}, {"   ", "Élias X"}, {"zz", ""}};
  for (const auto& [texte, attendu] : cas) {
    Chercher(texte);
    EXPECT_EQ(Choisi().toStdString(), attendu) << texte;
  }
  EXPECT_EQ(TFrmMain::edSearchKeyPress("P1-a*b+c.d/e 9"), u"Pabcde ");

  const QString fin = "Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?";
  Chercher("p");
  EXPECT_EQ(Main.Etat().Texte, u"1 sur 3 pour « p » : Entrée passe au suivant");
  for (const char* attendu : {"P2 A", "Pirard X"}) {
    Main.btnRechercheClick();
    EXPECT_EQ(Choisi().toStdString(), attendu);
  }
  EXPECT_EQ(Main.Etat().Texte, u"3 sur 3 pour « p »");
  Base.Dialogues.Repond(fin, false);
  Main.btnRechercheClick();
  EXPECT_EQ(Choisi(), u"Pirard X") << "no stops";
  Base.Dialogues.Repond(fin, true);
  Main.btnRechercheClick();
  EXPECT_EQ(Choisi(), u"P2 A") << "from the node after the first";
  Chercher("zz");
  Base.Dialogues.Repond(fin, true).Repond(fin, true).Repond(fin, false);
  Main.btnRechercheClick();
  EXPECT_EQ(Globals.ClasseCourante, nullptr) << "the first class of the tree was not looked for";
  EXPECT_EQ(Choisi(), QString());
}

// Nobody is current after a search that found nobody, so that nobody's bill is printed by mistake.
TEST_F(FrmMain, ASecondSearchWhereTheFirstFindsNothing) {
  Eleve("Adam", "P1");
  Eleve("Dubois", "P1").matricule("212-04127-38");
  Eleve("Éloy", "P2");
  Base.Sql("UPDATE ELEVES SET NOM_RESPONSABLE = 'Lefèvre' WHERE NOM <> 'Adam'");
  Main.Montrer();
  Chercher("lefevre");
  EXPECT_EQ(Main.Trouves().size(), 2U) << "several show a list";
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  Main.ChoisirTrouve(1);
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Éloy");
  EXPECT_TRUE(Main.Trouves().empty());
  EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Élèves") << "the first find opens its record";

  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  Chercher("BOIS");
  EXPECT_EQ(Choisi(), u"Dubois X");
  EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Frais");
  Main.btnRechercheClick();  // a single hit asks nothing, and shows its record
  EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Élèves");
  journal.clear();
  Chercher("personne");
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  EXPECT_EQ(journal.last(), u"6029") << "the record lets go of the pupil";
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Alerte);

  // As a hand scanner types it: the field stays empty, Enter looks for the number.
  Main.edSearchChange({});
  for (const char* morceau : {"212", "-04127-38"}) EXPECT_EQ(Main.edSearchSaisie(morceau), QString());
  Main.btnRechercheClick();
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Dubois");
  Main.edSearchSaisie("99");
  Main.btnRechercheClick();
  EXPECT_EQ(Globals.EleveCourant, nullptr);
}

TEST_F(FrmMain, TheTreeReadsAsAFrenchReaderExpects) {
  for (const char* nom : {"Éloy", "Zorn", "Evrard", "Şahin", "Simon"}) Eleve(nom, "P1", "S1");
  Eleve("Seul", "P2", "S2");
  Eleve("Perdu", "P3");
  Eleve("Maître", "PROFESSEURS");
  Main.Montrer();
  EXPECT_EQ(Textes().mid(2, 5),
            (QStringList{">>Éloy X", ">>Evrard X", ">>Şahin X", ">>Simon X", ">>Zorn X"}));
  EXPECT_EQ(Main.TexteNombres(), u"7 élèves, 1 sans implantation") << "a teacher is no pupil";

  // Who stands in no place of it is found all the same, by name and by number, and stays over a reading.
  for (const QString& cherche : {u"PERDU"_s, Globals.Eleves->TrouverParId(7)->Matricule}) {
    Chercher("seul");
    Main.edSearchSaisie(cherche);
    Main.btnRechercheClick();
    ASSERT_NE(Globals.EleveCourant, nullptr);
    EXPECT_EQ(Globals.EleveCourant->Nom, u"Perdu");
    EXPECT_EQ(Choisi(), QString()) << "nobody else looks chosen";
    EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Élèves");
  }
  Main.RechargerAnnee();
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Perdu");
}

TEST_F(FrmMain, ItReopensOnTheLastPupilAndScreen) {
  Ecole();
  Main.Montrer();
  Chercher("pirard");
  EXPECT_TRUE(Main.Fermer());
  Base->ConnectToServer();
  Main.Montrer();
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard");
  EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Élèves");
}

TEST_F(FrmMain, YearsGoOnWithTheWorkingYear) {
  Main.Montrer();
  EXPECT_EQ(Main.Annees(), (std::vector{2015, 2016, 2017, 2018}));
  Globals.AnneeScolaire = 2019;
  EXPECT_EQ(Main.Annees().back(), 2020);
}

TEST_F(FrmMain, FirstUseUntilThereArePupils) {
  TEcoleEssai(Base).parametre(1, "École");
  Main.Montrer();
  ASSERT_TRUE(Main.PremiereUtilisation());
  QStringList etapes;
  for (const TEtapeAccueil& e : Main.Etapes())
    etapes += e.Titre + (e.Faite ? u" faite" : u"") + (e.Prochaine ? u" prochaine" : u"");
  EXPECT_EQ(etapes, (QStringList{"Année scolaire faite", "Mon école faite", "Importation", "Services",
                                 "Paramètres", "Frais prochaine"}))
      << "the next step is the first one whose screen there is";
  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  EXPECT_FALSE(Main.PremiereUtilisation());
  Main.PageClick(TPage::PgEleve);
  EXPECT_TRUE(Main.PremiereUtilisation());
}

// A new database says 2016: pupils of 2026 must not land in it.
TEST_F(FrmMain, FirstUseBeginsWithTheYear) {
  Horloge.Moment = EncodeDate(2026, 11, 25);
  Main.Montrer();
  const auto annee = [&] { return Main.Etapes().front(); };
  ASSERT_TRUE(annee().Prochaine);
  for (const char* texte : {"", "abc", "26", "1999", "2028", "2026 - 2028", "2026,5"})
    Base.Dialogues.Saisit("Quelle année scolaire", texte);
  Base.Dialogues.Saisit("Quelle année scolaire", std::nullopt);
  Main.EtapeClick(annee());
  EXPECT_TRUE(Base.Dialogues.Dits.last().contains(
      "« 2026,5 » n'est pas une année scolaire. Introduisez par exemple 2026 - 2027"));
  EXPECT_EQ(Globals.AnneeScolaire, 2016);
  Base.Dialogues.Saisit("Quelle année scolaire", "2026 - 2027");
  Main.EtapeClick(annee());
  EXPECT_EQ(Base.Valeur("SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 27"), u"2026");
  EXPECT_EQ(Main.AnneeCochee(), 2026);
  EXPECT_TRUE(annee().Faite);
  TEcoleEssai(Base, 2015).unEleve().enClasse("P1", "A");
  EXPECT_FALSE(annee().Possible) << "somebody is enrolled, in whichever year";
  Main.EtapeClick(annee());
}

TEST_F(FrmMain, WhatIsLeftOfAYearStaysWithinReach) {
  Ecole();
  TEcoleEssai ecole(Base);
  ecole.parametre(1, "École");
  ecole.parametre(10, "Merci.");
  for (const int prix : {101, 102}) ecole.parametre(prix, {});
  ecole.tarif(Essai::FamilleRepas, Essai::TousLesJours, "12:00", "13:00", Essai::Forfait, "1",
              Essai::ScanPresence);
  Main.Montrer();
  EXPECT_TRUE(Main.PremiereUtilisation()) << "a new year without fees";
  Main.mnuAnneeClick(2015);
  EXPECT_TRUE(Main.PremiereUtilisation()) << "no pupil there";
  ecole.frais("Piscine", "10", 10);
  Main.mnuAnneeClick(2016);
  const TEtapeAccueil reglages = Main.Etapes()[4];
  ASSERT_FALSE(reglages.Faite) << "its meals would cost nothing";
  Main.EcarterClick(reglages);
  EXPECT_FALSE(Main.ResteAFaire());
}
