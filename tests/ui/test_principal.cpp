// The desktop program from its start to its end, by clicking and typing.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include "core/exceptions.h"
#include "screens/principal/frm_ajout_professeur.h"
#include "ui/commun/feuille_progression.h"
#include "ui/principal/application.h"
#include "ui/principal/barre_commandes.h"
#include "ui/principal/barre_etat.h"
#include "ui/principal/dialogue_reessai.h"
#include "ui/principal/dialogue_saisie.h"
#include "ui/principal/panneau_eleves.h"
#include "ui/principal/vue_accueil.h"
#include "ui/principal/vue_ajout_professeur.h"
#include "ui/programme_essai.h"
#include "ui/verifier_vue.h"

namespace {

const QString kFinDeListe =
    QStringLiteral("Vous avez atteint la fin de la liste. Voulez-vous recommencer depuis le début ?");
const QString kErreurConnexion = QStringLiteral("Erreur de connexion au serveur de données");

/// "P1 A" with three pupils, the second struck off, and "P2 A" with one.
void PetiteEcole(TProgrammeEssai& programme) {
  TEcoleEssai ecole(programme.Base);
  const auto eleve = [&](const char* nom, const char* classe) -> TEleveEssai {
    return ecole.unEleve()
        .nomme(QString::fromUtf8(nom), QStringLiteral("X"))
        .enClasse(QString::fromLatin1(classe), QStringLiteral("A"));
  };
  eleve("Adam", "P1");
  eleve("Bastin", "P1").avec(QStringLiteral("FLG_RADIE"));
  eleve("Dubois", "P1");
  eleve("Pirard", "P2");
}

/// A list, whose view is not looked at.
struct TListeEssai : TForm {
  explicit TListeEssai(TContexteEcran&) {}
};

class Principal : public testing::Test {
 protected:
  FenetrePrincipale& Fenetre() { return Programme.Fenetre(); }
  QLineEdit* Recherche() { return Fenetre().Eleves()->Recherche(); }
  QTreeView* Arbre() { return Fenetre().Eleves()->Arbre(); }
  QString Choisi() { return Arbre()->currentIndex().data().toString(); }
  QString Etat() { return Fenetre().Etat()->Texte(); }
  QStringList Pages() {
    QStringList pages;
    for (const TPagePrincipale& page : PagesPrincipales()) {
      const QToolButton* onglet = Fenetre().Barre()->Onglet(page.Page);
      if (onglet->isVisible()) pages += onglet->text() + (onglet->isChecked() ? u"*" : u"");
    }
    return pages;
  }
  QStringList CommandesVisibles() {
    QStringList commandes;
    for (const TCommandePrincipale& commande : Programme.Main().Commandes) {
      const QToolButton* bouton = Fenetre().Barre()->Bouton(commande.Gestionnaire);
      if (bouton->isVisible()) commandes += bouton->text();
    }
    return commandes;
  }
  /// What is pending first: a window is active again a moment after a dialog.
  void Touche(QWidget* ou, Qt::Key touche, Qt::KeyboardModifiers avec = {}) {
    QCoreApplication::processEvents();
    QTest::keyClick(ou, touche, avec);
  }

  TProgrammeEssai Programme;
};

}  // namespace

TEST_F(Principal, AnOfficeStartsOnItsPupils) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  EXPECT_EQ(Fenetre().windowTitle(), u"Calpenne");
  EXPECT_EQ(Pages(), (QStringList{"Accueil*", "Repas", "Administration"}));
  EXPECT_EQ(CommandesVisibles(), (QStringList{"Élèves", "Statistiques", "Présences", "Virements"}));
  EXPECT_EQ(Fenetre().Barre()->Annees()->text(), u"Année scolaire 2016 - 2017  ▾");
  EXPECT_TRUE(TextesDe(Fenetre()).contains(u"4 élèves, dont 1 radié"));
  EXPECT_EQ(Fenetre().VueCourante(), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), Recherche());
  const QToolButton* statistiques = Fenetre().Barre()->Bouton(TGestionnaire::AdvGlowButton7Click);
  EXPECT_FALSE(statistiques->isEnabled());
  EXPECT_TRUE(statistiques->toolTip().contains(u"Pas encore disponible")) << "off, not hidden";
}

TEST_F(Principal, TeachersAndTabletsSeeTheirPage) {
  struct {
    const char* reglage;
    QStringList commandes;
    bool arbre, connexion;
  } const cas[] = {
      {"Mode", {"Réservation"}, true, true},
      {"Tablette", {"Transfert", "Réservation", "Quitter"}, false, true},
      {"Offline", {"Transfert", "Réservation", "Quitter"}, false, false},
  };
  PetiteEcole(Programme);
  for (const auto& c : cas) {
    for (const auto& autre : cas)
      Programme.Base.Reglages.Ecrire(TRacine::Utilisateur, QString::fromLatin1(autre.reglage),
                                     &autre == &c ? QStringLiteral("1") : QString());
    Programme.Demarrer();
    EXPECT_EQ(Pages(), QStringList{"Repas*"}) << c.reglage;
    EXPECT_EQ(CommandesVisibles(), c.commandes) << c.reglage;
    EXPECT_EQ(Arbre()->isVisible(), c.arbre) << c.reglage;
    EXPECT_EQ(Programme.Tout().Base.EstConnecte(), c.connexion) << c.reglage;
    Programme.Fermer();
  }
  Programme.Base.Reglages.Ecrire(TRacine::Utilisateur, QStringLiteral("Offline"), QStringLiteral("1"));
  Programme.Demarrer();
  QTest::mouseClick(Fenetre().Barre()->Bouton(TGestionnaire::AdvGlowButton4Click), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Fenetre().isVisible()) << "Quitter closes the program";
}

TEST_F(Principal, GivingUpAtFirstEndsTheProgramAndLaterDoesNot) {
  const QString mauvais = Programme.Base.Fichier(QStringLiteral("mauvais.fdb"), QByteArray(5000, 'z'));
  Programme.Base.Reglages.Ecrire(TRacine::Machine, QStringLiteral("Serveur"), mauvais);
  Programme.Dialogues.Clique(kErreurConnexion, QStringLiteral("Annuler"));
  Programme.Demarrer();
  EXPECT_FALSE(Fenetre().isVisible());
  const QString dialogue = Programme.Dialogues.Vus.last();
  EXPECT_TRUE(dialogue.contains(u"de base de donnée nommé : " + mauvais));
  EXPECT_TRUE(dialogue.contains(u"2. Le serveur est allumé et accessible via le réseau."));
  Programme.Fermer();

  Programme.Dialogues.Fait(kErreurConnexion, [](QWidget& fenetre) {
    EXPECT_TRUE(static_cast<DialogueBase&>(fenetre).Principal()->isDefault());
    QTest::keyClick(&fenetre, Qt::Key_Return);
  });
  Programme.Dialogues.Fait(kErreurConnexion,
                           [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
  Programme.Demarrer();
  EXPECT_TRUE(Fenetre().isVisible()) << "the window stays, empty";
  EXPECT_EQ(Fenetre().VueCourante(), nullptr);
  EXPECT_EQ(Arbre()->model()->rowCount(), 0);
  EXPECT_FALSE(Recherche()->isEnabled());
  EXPECT_TRUE(Etat().startsWith(u"Pas de connexion"));
}

TEST_F(Principal, TheLinkOfTheRetryDialogChangesTheServer) {
  PetiteEcole(Programme);
  Programme.Base.Reglages.Ecrire(
      TRacine::Machine, QStringLiteral("Serveur"),
      Programme.Base.Fichier(QStringLiteral("mauvais.fdb"), QByteArray(5000, 'z')));
  Programme.Dialogues.Fait(kErreurConnexion, [](QWidget& fenetre) {
    for (QLabel* lien : fenetre.findChildren<QLabel*>())
      if (lien->text().contains(u"Cliquez ici afin de modifier le nom du serveur de données."))
        emit lien->linkActivated(QString());
  });
  Programme.Dialogues.Saisit(QStringLiteral("Identification du Serveur de données"),
                             Programme.Base.FichierDeDonnees());
  Programme.Dialogues.Clique(kErreurConnexion, QStringLiteral("Réessayer"));
  Programme.Demarrer();
  EXPECT_TRUE(Programme.Dialogues.Vus.at(1).contains(u"Le nom « local » fait travailler ce poste seul"));
  EXPECT_EQ(Arbre()->model()->rowCount(), 2);
}

TEST_F(Principal, TheSearchChoosesAPupil) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  Touche(Arbre(), Qt::Key_F3);
  EXPECT_EQ(QApplication::focusWidget(), Recherche());
  QTest::keyClicks(Recherche(), QStringLiteral("7p*i-2r"));
  EXPECT_EQ(Recherche()->text(), u"pir") << "digits and signs are dropped";
  EXPECT_EQ(Choisi(), u"Pirard X");
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard");
  EXPECT_EQ(QApplication::focusWidget(), Recherche());

  Touche(Recherche(), Qt::Key_Home);
  EXPECT_EQ(Recherche()->text(), QString());
  QTest::keyClicks(Recherche(), QStringLiteral("p"));
  EXPECT_EQ(Choisi(), u"P1 A");
  Touche(Recherche(), Qt::Key_Return);
  Touche(Recherche(), Qt::Key_Return);
  EXPECT_EQ(Choisi(), u"Pirard X");
  Programme.Dialogues.Repond(kFinDeListe, false);
  Touche(Recherche(), Qt::Key_Return);
  EXPECT_EQ(Choisi(), u"Pirard X");
  Programme.Dialogues.Repond(kFinDeListe, true);
  Touche(Recherche(), Qt::Key_Return);
  EXPECT_EQ(Choisi(), u"P2 A");

  Touche(Recherche(), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), Arbre());
  Touche(Arbre(), Qt::Key_Down);
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard") << "the pupil is current at once";
}

TEST_F(Principal, TheKeysOfTheWindow) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  const auto zone = [&]() -> QString {
    const QWidget* foyer = QApplication::focusWidget();
    if (foyer == nullptr) return {};
    return Fenetre().Barre()->isAncestorOf(foyer)    ? QStringLiteral("barre")
           : Fenetre().Eleves()->isAncestorOf(foyer) ? QStringLiteral("eleves")
                                                     : QStringLiteral("contenu");
  };
  Arbre()->setFocus();
  Touche(&Fenetre(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(zone(), u"barre");
  Touche(&Fenetre(), Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), Arbre()) << "the zone gives back the last focus";

  Touche(&Fenetre(), Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Pages(), (QStringList{"Accueil", "Repas", "Administration*"}));
  Touche(&Fenetre(), Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Pages(), (QStringList{"Accueil", "Repas*", "Administration"}));
  Touche(&Fenetre(), Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), Arbre()) << "the hand stays where it is";

  Touche(&Fenetre(), Qt::Key_0, Qt::ControlModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList annees;
  for (const QAction* annee : menu->actions()) annees += annee->text() + (annee->isChecked() ? u"*" : u"");
  EXPECT_EQ(annees, (QStringList{"2015 - 2016", "2016 - 2017*", "2017 - 2018", "2018 - 2019"}));
  Touche(menu, Qt::Key_Up);
  Touche(menu, Qt::Key_Return);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015);
  EXPECT_EQ(Globals.AnneeScolaire, 2016);
  EXPECT_TRUE(TextesDe(Fenetre()).contains(u"Année affichée ≠ année de travail"));
}

TEST_F(Principal, ATeacherIsAddedToTheWorkingYearAndRemoved) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  Programme.Main().mnuAnneeClick(2015);
  const auto menu = [&](int rang) {
    QTimer::singleShot(0, &Fenetre(), [rang] {
      QWidget* ouvert = QApplication::activePopupWidget();
      for (int i = 0; i <= rang; ++i) QTest::keyClick(ouvert, Qt::Key_Down);
      QTest::keyClick(ouvert, Qt::Key_Return);
    });
    emit Arbre()->customContextMenuRequested(QPoint(1, Arbre()->height() - 1));
  };
  Programme.Dialogues.Fait(QStringLiteral("Ajout d'un professeur"), [](QWidget& fenetre) {
    QTest::keyClicks(fenetre.findChildren<QLineEdit*>().at(0), QStringLiteral("   "));
    Cliquer(fenetre, QStringLiteral("Valider"));
  });
  Programme.Dialogues.Attend(QStringLiteral("Un nom est obligatoire"));
  Programme.Dialogues.Fait(QStringLiteral("Ajout d'un professeur"), [](QWidget& fenetre) {
    const auto champs = fenetre.findChildren<QLineEdit*>();
    EXPECT_EQ(fenetre.focusWidget(), champs.at(0));
    champs.at(0)->selectAll();
    QTest::keyClicks(champs.at(0), QStringLiteral("Peeters"));
    QTest::keyClick(champs.at(0), Qt::Key_Tab);
    QTest::keyClicks(champs.at(1), QStringLiteral("Anne"));
    QTest::keyClick(champs.at(1), Qt::Key_Return);
  });
  menu(0);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2016);
  EXPECT_EQ(Programme.Base.Rangees(QStringLiteral(
                "SELECT C.ANNEE_SCOLAIRE, C.CLASSE, E.NOM, E.PRENOM FROM ELEVES_CLASSES C JOIN ELEVES E ON "
                "E.ELEVE_ID=C.ELEVE_ID WHERE C.CLASSE='PROFESSEURS'")),
            QStringList{"2016;PROFESSEURS;Peeters;Anne"});

  QTest::keyClicks(Recherche(), QStringLiteral("peeters"));
  EXPECT_EQ(Choisi(), u"Peeters Anne");
  Programme.Dialogues.Fait(QStringLiteral("Souhaitez-vous supprimer définitivement ce professeurs"),
                           [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Return); });
  menu(1);
  EXPECT_EQ(Choisi(), u"Peeters Anne") << "Enter does not remove somebody";
  Programme.Dialogues.Repond(QStringLiteral("Souhaitez-vous supprimer définitivement ce professeurs"), true);
  menu(1);
  EXPECT_EQ(Programme.Base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVES WHERE NOM='Peeters'")), u"0");
  EXPECT_EQ(Globals.EleveCourant, nullptr);
}

TEST_F(Principal, TheTreeKeepsItsFoldsWhenItIsBuiltAnew) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  const auto ouverte = [&](int rang) { return Arbre()->isExpanded(Arbre()->model()->index(rang, 0)); };
  EXPECT_FALSE(ouverte(0));
  Arbre()->expand(Arbre()->model()->index(1, 0));
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_FALSE(ouverte(0));
  EXPECT_TRUE(ouverte(1));
  EXPECT_EQ(
      Arbre()->model()->index(1, 0, Arbre()->model()->index(0, 0)).data(Qt::AccessibleTextRole).toString(),
      u"Bastin X, radié");

  QTest::keyClicks(Recherche(), QStringLiteral("bas"));
  EXPECT_TRUE(ouverte(0));
  Arbre()->collapse(Arbre()->model()->index(0, 0));
  Programme.Main().Envoyer({TCodeMessage::EleveChange, {}});
  EXPECT_TRUE(ouverte(0)) << "a screen has found the pupil again";
}

TEST_F(Principal, FirstUseLeadsToTheImport) {
  Programme.Demarrer();
  EXPECT_TRUE(Fenetre().Accueil()->isVisible());
  EXPECT_FALSE(Recherche()->isEnabled());
  const QString textes = TextesDe(Fenetre());
  EXPECT_TRUE(textes.contains(u"Aucun élève en 2016 - 2017"));
  for (const char* etape : {"1.  Mon école", "2.  Importation", "3.  Services", "4.  Frais"})
    EXPECT_TRUE(textes.contains(QString::fromUtf8(etape))) << etape;
  PetiteEcole(Programme);
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_FALSE(Fenetre().Accueil()->isVisible());
  EXPECT_TRUE(Recherche()->isEnabled());
}

TEST_F(Principal, EveryControlOfTheWindowIsNamedReachedAndWhole) {
  Partout([&] {
    SCOPED_TRACE("first use");
    Programme.Demarrer();
    EXPECT_TRUE(Fenetre().Accueil()->isVisible());
    VerifierVue(Fenetre());
    Programme.Fermer();
  });
  PetiteEcole(Programme);
  Partout([&] {
    Programme.Demarrer();
    VerifierVue(Fenetre());
    SCOPED_TRACE("a pupil chosen");
    QTest::keyClicks(Recherche(), QStringLiteral("dub"));
    Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
    EXPECT_EQ(Globals.EleveCourant->Nom, u"Dubois");
    VerifierVue(Fenetre());
    SCOPED_TRACE("the longest page of the bar");
    for (TCommandePrincipale& commande : Programme.Main().Commandes)
      if (commande.Gestionnaire == TGestionnaire::AdvGlowButton16Click) commande.Ecran = Ecran<TListeEssai>();
    Programme.Main().Executer(TGestionnaire::AdvGlowButton16Click);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Fenetre().Barre()->Bouton(TOutil::btnDelete)->isVisible());
    EXPECT_LE(Fenetre().Barre()->minimumSizeHint().width(), 1366);
    VerifierVue(Fenetre());
    Programme.Fermer();
  });
}

TEST_F(Principal, EveryControlOfItsDialogsToo) {
  TReessai reessai;
  reessai.Titre = kErreurConnexion;
  reessai.Texte =
      QStringLiteral("Un problème empêche le logiciel de se connecter au serveur nommé : SECRETARIAT");
  reessai.Explication = QStringLiteral("Veuillez vérifier si :\n1. Le serveur est allumé.");
  reessai.Lien = QStringLiteral("Cliquez ici afin de modifier le nom du serveur de données.");
  reessai.Cause = QStringLiteral("Unable to complete network request to host \"SECRETARIAT\".");
  VerifierVuePartout([&] { return std::make_unique<DialogueReessai>(reessai); });
  VerifierVuePartout([] {
    return std::make_unique<DialogueSaisie>(
        QStringLiteral("Identification du Serveur de données"),
        QStringLiteral("Veuillez indiquer ci-dessous le nom du serveur de données ou son adresse réseau :\n"
                       "Attention : veuillez exécuter cette opération avec un compte administrateur"),
        QStringLiteral("SECRETARIAT"));
  });
  Programme.Demarrer();
  TFrmAjoutProfesseur ajout(Programme.Main().Contexte);
  VerifierVuePartout([&] { return std::make_unique<VueAjoutProfesseur>(ajout, nullptr); });
}

TEST_F(Principal, LongWorkKeepsTheWindowShutAndAlive) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  DialoguesQt& dialogues = Programme.Tout().Dialogues;
  {
    TProgression progression(dialogues, 10);
    progression.Avancer(4, QStringLiteral("DUBOIS Léa"));
    dialogues.TraiterEvenements();
    const auto* feuille = Fenetre().findChild<FeuilleProgression*>();
    ASSERT_NE(feuille, nullptr);
    EXPECT_TRUE(feuille->isVisible());
    EXPECT_TRUE(TextesDe(*feuille).contains(u"4 sur 10\n"));
    EXPECT_FALSE(Arbre()->isEnabled());
    EXPECT_FALSE(Fenetre().Barre()->Annees()->isEnabled());
    Fenetre().close();
    EXPECT_TRUE(Fenetre().isVisible());
    EXPECT_TRUE(Etat().startsWith(u"Un travail est en cours"));
  }
  EXPECT_FALSE(Fenetre().findChild<FeuilleProgression*>()->isVisible());
  EXPECT_TRUE(Arbre()->isEnabled());
  Fenetre().close();
  EXPECT_FALSE(Fenetre().isVisible());
}

TEST_F(Principal, WhatNobodyCatchesIsShownAndTheProgramGoesOn) {
  PetiteEcole(Programme);
  Programme.Demarrer();
  auto& application = *static_cast<Application*>(qApp);
  application.Dialogues = &Programme.Tout().Dialogues;
  QTimer::singleShot(0, &Fenetre(),
                     [] { throw EConvertError(QStringLiteral("« douze » n'est pas un nombre")); });
  Programme.Dialogues.Fait(QStringLiteral("« douze » n'est pas un nombre"), [&](QWidget& fenetre) {
    Cliquer(fenetre, QStringLiteral("OK"));
    QTimer::singleShot(0, &Fenetre(), [] { throw std::out_of_range("place 12"); });
  });
  Programme.Dialogues.Attend(QStringLiteral("Erreur inattendue : place 12"));
  while (Programme.Dialogues.Vus.size() < 2) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QCoreApplication::processEvents();
  application.Dialogues = nullptr;
  QTest::keyClicks(Recherche(), QStringLiteral("dub"));
  EXPECT_EQ(Choisi(), u"Dubois X");
}

TEST_F(Principal, AQuestionOnAClosingDefaultsToNo) {
  Programme.Demarrer();
  DialoguesQt& dialogues = Programme.Tout().Dialogues;
  const auto entree = [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Return); };
  Programme.Dialogues.Fait(QStringLiteral("Voulez-vous clôturer l'année scolaire 2016-2017 ?"), entree);
  EXPECT_FALSE(dialogues.ConfirmerGrave(QStringLiteral("Voulez-vous clôturer l'année scolaire 2016-2017 ?")));
  Programme.Dialogues.Fait(QStringLiteral("Continuer <b>ainsi</b> ?"), entree);
  EXPECT_TRUE(dialogues.Confirmer(QStringLiteral("Continuer <b>ainsi</b> ?")));
}
