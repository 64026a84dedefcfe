#include <gtest/gtest.h>

#include "core/exceptions.h"
#include "screens/principal/arbre_eleves.h"
#include "screens/principal/frm_ajout_professeur.h"
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
};

struct TAutreEcran : TEcranEssai {
  using TEcranEssai::TEcranEssai;
};

/// The teacher's dialog filled in and confirmed, then cancelled if it stays open.
struct TModaleEssai : IFenetreModale {
  TResultatModal MontrerModal(TForm& form) override {
    form.Montrer();
    auto& saisie = dynamic_cast<TFrmAjoutProfesseur&>(form);
    saisie.Nom = Nom;
    saisie.Prenom = Prenom;
    if (!saisie.btnValiderClick()) saisie.btnAnnulerClick();
    return form.ResultatModal;
  }
  QString Nom = QStringLiteral("Peeters ");
  QString Prenom = QStringLiteral("Anne");
};

struct TApercuEssai : IApercu {
  void Afficher(TRapport&) override {}
};

/// The main window over a test's database.
class FrmMain : public testing::Test {
 protected:
  void SetUp() override {
    journal.clear();
    Base->Deconnecter();
    Base.Reglages.Ecrire(TRacine::Machine, QStringLiteral("Serveur"), Base.FichierDeDonnees());
    Base->ConnectToServer();
    for (TCommandePrincipale& commande : Main.Commandes) {
      if (commande.Gestionnaire == TGestionnaire::AdvGlowButton2Click)
        commande.Ecran = Ecran<TEcranEssai>(TRemplacement::Cache);
      else
        commande.Ecran.reset();
      if (commande.Gestionnaire == TGestionnaire::AdvGlowButton16Click) commande.Ecran = Ecran<TAutreEcran>();
    }
    Main.SurQuitterChamp = [] { journal += QStringLiteral("quitte"); };
    Main.SurTerminer = [] { journal += QStringLiteral("fin"); };
  }
  void TearDown() override {
    Main.Fermer();
    Globals = {};
  }

  /// "P1 A", three pupils, the second struck off; "P2 A", one pupil.
  void Ecole() {
    TEcoleEssai ecole(Base);
    const auto eleve = [&](const char* nom, const char* classe) -> TEleveEssai {
      return ecole.unEleve()
          .nomme(QString::fromUtf8(nom), QStringLiteral("X"))
          .enClasse(QString::fromUtf8(classe), QStringLiteral("A"));
    };
    eleve("Adam", "P1");
    eleve("Bastin", "P1").avec(QStringLiteral("FLG_RADIE"));
    eleve("Élias", "P1");
    eleve("Pirard", "P2");
  }
  void Chercher(const char* texte) { Main.edSearchChange(QString::fromUtf8(texte)); }
  QString Choisi() const { return Main.Arbre.Selection() ? Main.Arbre.Selection()->Texte : QString(); }
  QStringList Textes() const {
    QStringList textes;
    for (TNoeud* n = Main.Arbre.Premier(); n; n = Main.Arbre.Suivant(*n))
      textes += QString(n->Niveau(), u'>') + n->Texte + (n->Marque == TMarqueNoeud::Barree ? u"-" : u"");
    return textes;
  }
  QStringList Pages() const {
    QStringList pages;
    for (const TPagePrincipale& page : Main.Pages())
      pages += (page.Page == Main.PageActive() ? u"*" : u"") + page.Titre;
    return pages;
  }

  TBaseEssai Base;
  THorlogeEssai Horloge;
  TModaleEssai Modale;
  TApercuEssai Apercu;
  TFrmMain Main{*Base, Base.Reglages, Horloge, Modale, Apercu};
};

}  // namespace

TEST_F(FrmMain, EveryWayShowsItsPages) {
  Ecole();
  struct {
    const char* reglage;
    const char* parametre41;
    QStringList pages;
    bool arbre;
  } const cas[] = {
      {"", "0", {"*Accueil", "Repas", "Administration"}, true},
      {"", "1", {"*Accueil", "Repas", "Repas (tickets)", "Administration"}, true},
      {"Mode", "0", {"*Repas"}, true},
      {"Tablette", "1", {"*Repas"}, false},
      {"Offline", "0", {"*Repas"}, false},
  };
  for (const auto& c : cas) {
    for (const char* nom : {"Mode", "Tablette", "Offline"})
      Base.Reglages.Ecrire(TRacine::Utilisateur, QString::fromLatin1(nom),
                           nom == std::string(c.reglage) ? QStringLiteral("1") : QString());
    Base->ConnectToServer();
    TEcoleEssai(Base).parametre(41, QString::fromLatin1(c.parametre41));
    if (c.reglage == std::string("Offline")) Base->Deconnecter();
    Globals = {};
    TFrmMain main(*Base, Base.Reglages, Horloge, Modale, Apercu);
    main.Montrer();
    QStringList pages, commandes;
    for (const TPagePrincipale& page : main.Pages())
      pages += (page.Page == main.PageActive() ? u"*" : u"") + page.Titre;
    EXPECT_EQ(pages, c.pages) << c.reglage;
    EXPECT_EQ(main.ArbreVisible(), c.arbre) << c.reglage;
    for (const auto& commande : main.Commandes)
      if (main.CommandeVisible(commande)) commandes += commande.Nom();
    if (c.reglage == std::string("Mode")) {
      EXPECT_EQ(commandes, QStringList{"Réservation"});
    } else if (!c.arbre) {
      EXPECT_EQ(commandes, (QStringList{"Transfert", "Réservation", "Quitter"}));
    }
    main.Fermer();
  }
}

TEST_F(FrmMain, ACommandOpensItsScreenWithItsTools) {
  Ecole();
  Main.Montrer();
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(journal, (QStringList{"quitte", "6029"})) << "the screen takes up the selected pupil at once";
  EXPECT_EQ(Main.CommandeOuverte()->Nom(), u"Élèves");
  EXPECT_TRUE(Main.OutilActif(TOutil::btnPrint));
  EXPECT_TRUE(Main.OutilActif(TOutil::btnMail));
  EXPECT_FALSE(Main.OutilVisible(TOutil::btnDelete));
  journal.clear();
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) Main.OutilClick(outil.Outil);
  EXPECT_EQ(journal, (QStringList{"quitte", "6032", "quitte", "6037"}));

  TForm* fiche = Main.Panneau.Courante();
  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  EXPECT_EQ(Main.PageActive(), TPage::PgParametre);
  EXPECT_FALSE(Main.OutilVisible(TOutil::btnPrint));
  journal.clear();
  for (const TOutilPrincipal& outil : OutilsPrincipaux()) Main.OutilClick(outil.Outil);
  EXPECT_EQ(journal, (QStringList{"quitte", "6027", "quitte", "6026", "quitte", "6024", "quitte", "6025"}));

  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(Main.Panneau.Courante(), fiche) << "it was only hidden";

  Main.Executer(TGestionnaire::btnVirementClick);
  EXPECT_EQ(Main.Panneau.Courante(), fiche) << "a screen that is not there says so and opens nothing";
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Alerte);
  Main.Executer(TGestionnaire::AdvGlowButton4Click);
  EXPECT_EQ(journal.last(), u"fin");
}

TEST_F(FrmMain, TheTreeOfTwoSitesLeavesOutAClassWithoutSite) {
  TEcoleEssai ecole(Base);
  const auto eleve = [&](const char* nom, const char* classe, const char* site) {
    ecole.unEleve()
        .nomme(QString::fromLatin1(nom), QStringLiteral("X"))
        .enClasse(QString::fromLatin1(classe), QStringLiteral("A"), QString::fromLatin1(site));
  };
  eleve("Zed", "P1", "S1");
  eleve("Adam", "P2", "S1");
  eleve("Noir", "P3", "  ");
  eleve("Blanc", "P1", "S2");
  Base.Sql(
      QStringLiteral("INSERT INTO IMPLANTATION (IMPLANTATION_ID, CODE_IMPLANTATION, LIBELLE_COURT) "
                     "VALUES (90, 'S1', 'Centre')"));
  Main.Montrer();
  EXPECT_EQ(Globals.Eleves->Count(), 4);
  EXPECT_EQ(Textes(),
            (QStringList{"Centre", ">P1 A", ">>Zed X", ">P2 A", ">>Adam X", "S2", ">P1 A", ">>Blanc X"}));
  // The sites take their new names.
  for (TImplantation& site : *Globals.Eleves->Implantations)
    if (site.Code == u"S2") site.LibelleCourt = QStringLiteral("Tilleuls");
  Main.Envoyer({TCodeMessage::ImplantationsChange, {}});
  EXPECT_TRUE(Textes().contains(QStringLiteral("Tilleuls")));
  EXPECT_FALSE(Textes().contains(QStringLiteral("S2")));

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
  EXPECT_EQ(Main.NombreRadies(), 1);

  for (const bool radie : {true, false}) {
    Globals.EleveCourant = &(*Globals.Eleves)[0];
    Globals.EleveCourant->FlgRadie = radie;
    Main.Envoyer({TCodeMessage::EleveRadie, {}});
    EXPECT_EQ(Textes().contains(QStringLiteral(">Adam X-")), radie);
  }
}

TEST_F(FrmMain, TheFieldInHandIsLeftBeforeThePupilChanges) {
  Ecole();
  Main.Montrer();
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  QString eleveQuitte = QStringLiteral("aucun");
  Main.SurQuitterChamp = [&] { eleveQuitte = Globals.EleveCourant ? Globals.EleveCourant->Nom : QString(); };
  journal.clear();
  Chercher("adam");
  Chercher("pir");
  EXPECT_EQ(eleveQuitte, u"Adam");
  EXPECT_EQ(journal, (QStringList{"6029 Adam", "6029 Pirard"}));
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
      {"p", "P1 A"}, {"  PIR ", "Pirard X"}, {"él", "Élias X"}, {"   ", "Élias X"}, {"zz", "Élias X"}};
  for (const auto& [texte, attendu] : cas) {
    Chercher(texte);
    EXPECT_EQ(Choisi().toStdString(), attendu) << texte;
  }
  EXPECT_EQ(TFrmMain::edSearchKeyPress(QStringLiteral("P1-a*b+c.d/e 9")), u"Pabcde ");

  const QString fin =
      QStringLiteral("Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?");
  Chercher("p");
  for (const char* attendu : {"P2 A", "Pirard X"}) {
    Main.btnRechercheClick();
    EXPECT_EQ(Choisi().toStdString(), attendu);
  }
  Base.Dialogues.Repond(fin, false);
  Main.btnRechercheClick();
  EXPECT_EQ(Choisi(), u"Pirard X") << "no stops";
  Base.Dialogues.Repond(fin, true);
  Main.btnRechercheClick();
  EXPECT_EQ(Choisi(), u"P2 A") << "from the node after the first";
  Chercher("zz");
  Base.Dialogues.Repond(fin, true).Repond(fin, true).Repond(fin, false);
  Main.btnRechercheClick();
}

TEST_F(FrmMain, ATeacherIsEnrolledInTheWorkingYear) {
  Ecole();
  Main.Montrer();
  Main.mnuAnneeClick(2015);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015);
  Main.Executer(TGestionnaire::AdvGlowButton2Click);

  Main.Ajouterunprofesseur1Click();
  const QString id = Base.Valeur(QStringLiteral("SELECT ELEVE_ID FROM ELEVES WHERE NOM='Peeters '"));
  EXPECT_EQ(Base.Valeur(QStringLiteral("SELECT MATRICULE FROM ELEVES WHERE PRENOM='Anne'")), u"000" + id);
  EXPECT_EQ(Base.Rangees(u"SELECT ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION FROM "
                         u"ELEVES_CLASSES WHERE ELEVE_ID=" +
                         id),
            QStringList{"2016;PROFESSEURS;;"});
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2016) << "the display is back on the working year";
  EXPECT_EQ(Main.AnneeCochee(), 2016);
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
  EXPECT_TRUE(Textes().contains(QStringLiteral(">Peeters  Anne")));

  // Only a teacher can be removed, and the open screen lets go of it first.
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  Chercher("pirard");
  EXPECT_FALSE(Main.PeutSupprimerProfesseur());
  Main.Supprimerunprofesseur1Click();
  Chercher("peeters");
  const QString question =
      QStringLiteral("Souhaitez-vous supprimer définitivement ce professeurs et les données de son compte ?");
  Base.Dialogues.Repond(question, false);
  Main.Supprimerunprofesseur1Click();
  EXPECT_EQ(Globals.EleveCourant->Prenom, u"Anne");
  Base.Dialogues.Repond(question, true);
  journal.clear();
  Main.Supprimerunprofesseur1Click();
  EXPECT_EQ(journal, (QStringList{"quitte", "6029", "quitte"}));
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  EXPECT_EQ(Base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVES WHERE PRENOM='Anne'")), u"0");
  EXPECT_EQ(Base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVES_CLASSES WHERE CLASSE='PROFESSEURS'")),
            u"1")
      << "its rows in other tables stay";
  EXPECT_FALSE(Textes().join(u' ').contains(u"Peeters"));
}

TEST_F(FrmMain, ATeacherThatIsNotStoredIsForgotten) {
  Ecole();
  Main.Montrer();
  Modale.Nom = QString(300, u'x');
  EXPECT_THROW(Main.Ajouterunprofesseur1Click(), Exception);
  EXPECT_EQ(Globals.Eleves->Count(), 4);
  Modale.Nom = QStringLiteral("Peeters");
  Main.Ajouterunprofesseur1Click();
  EXPECT_TRUE(Textes().contains(QStringLiteral(">Peeters Anne")));
}

TEST_F(FrmMain, ATeacherWithoutNameIsRefused) {
  Main.Montrer();
  Modale.Nom = QStringLiteral("   ");
  Base.Dialogues.Attend(QStringLiteral("Un nom est obligatoire"));
  Main.Ajouterunprofesseur1Click();
  EXPECT_EQ(Base.Dialogues.Dits.size(), 1);
  EXPECT_EQ(Base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVES")), u"0");
}

TEST_F(FrmMain, YearsGoOnWithTheWorkingYear) {
  Main.Montrer();
  EXPECT_EQ(Main.Annees(), (std::vector{2015, 2016, 2017, 2018}));
  EXPECT_EQ(Main.IntituleAnnee(), u"Année scolaire 2016 - 2017");
  Globals.AnneeScolaire = 2019;
  EXPECT_EQ(Main.Annees().back(), 2020);
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  Main.mnuAnneeClick(2017);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2017);
  EXPECT_EQ(Globals.AnneeScolaire, 2019);
  EXPECT_EQ(Main.AnneeCochee(), 2017);
  EXPECT_EQ(Main.Panneau.Courante(), nullptr) << "its data are gone";
}

TEST_F(FrmMain, LongWorkKeepsTheWindowShut) {
  Ecole();
  Main.Montrer();
  Main.Travail(10);
  EXPECT_FALSE(Main.Fermer());
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Alerte);
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  Main.mnuAnneeClick(2015);
  Main.Ajouterunprofesseur1Click();
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2016);
  Main.Travail(0);
  EXPECT_TRUE(Main.Fermer());
  EXPECT_EQ(Globals.Eleves, nullptr);
}

TEST_F(FrmMain, FirstUseUntilThereArePupils) {
  TEcoleEssai(Base).parametre(1, QStringLiteral("École"));
  Main.Montrer();
  ASSERT_TRUE(Main.PremiereUtilisation());
  QStringList etapes;
  for (const TEtapeAccueil& e : Main.Etapes())
    etapes += e.Titre + (e.Faite ? u" faite" : u"") + (e.Prochaine ? u" prochaine" : u"");
  EXPECT_EQ(etapes, (QStringList{"Mon école faite", "Importation", "Services", "Frais prochaine"}))
      << "the next step is the first one whose screen there is";
  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  EXPECT_FALSE(Main.PremiereUtilisation());
  Main.PageClick(TPage::PgEleve);
  EXPECT_TRUE(Main.PremiereUtilisation());
  EXPECT_EQ(Main.CommandeOuverte(), nullptr);
  Main.Executer(TGestionnaire::AdvGlowButton16Click);
  EXPECT_FALSE(Main.PremiereUtilisation());
  Ecole();
  Main.mnuAnneeClick(2016);
  EXPECT_FALSE(Main.PremiereUtilisation());
}

TEST_F(FrmMain, WithoutConnectionNothingOpens) {
  Base.Reglages.Ecrire(TRacine::Machine, QStringLiteral("Serveur"),
                       Base.Fichier(QStringLiteral("mauvais.fdb"), QByteArray(5000, 'z')));
  Base.Dialogues.Reessaie(true).Reessaie(false);
  Main.Montrer();
  EXPECT_FALSE(journal.contains(QStringLiteral("fin"))) << "the window stays";
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Erreur);
  for (const TCommandePrincipale& commande : Main.Commandes) {
    if (commande.Page != TPage::PgEleve) continue;
    EXPECT_FALSE(Main.CommandeActive(commande));
    Main.Executer(commande.Gestionnaire);
  }
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
  Main.mnuAnneeClick(2015);
  Main.btnRechercheClick();
  Main.Ajouterunprofesseur1Click();
  Main.Supprimerunprofesseur1Click();
}

TEST_F(FrmMain, WithoutYearNothingOpensEither) {
  TEcoleEssai(Base).parametre(27, QStringLiteral("deux mille"));
  EXPECT_THROW(Main.Montrer(), EConvertError);
  EXPECT_EQ(Main.Etat().Niveau, TNiveauEtat::Erreur);
  EXPECT_EQ(Main.RaisonInactive(Main.Commandes.front()), u"Aucune année scolaire n'est chargée");
  Main.Executer(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(Main.Panneau.Courante(), nullptr);
}
