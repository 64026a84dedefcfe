// The desktop program from its start to its end, by clicking and typing.
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include "screens/principal/frm_ajout_professeur.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/vue_dialogue.h"
#include "ui/principal/barre_commandes.h"
#include "ui/principal/dialogue_reessai.h"
#include "ui/principal/dialogue_saisie.h"
#include "ui/principal/panneau_eleves.h"
#include "ui/principal/vue_accueil.h"
#include "ui/reglages_essai.h"

namespace {

const QString kErreurConnexion = u"Erreur de connexion au serveur de données"_s;

class Principal : public TReglagesEssai {
 protected:
  /// "P1 A" with three pupils, the second struck off, and "P2 A" with one.
  void EcrireLEcole() {
    for (const QString& nom : {u"Adam"_s, u"Bastin"_s, u"Dubois"_s})
      Ecole.unEleve().nomme(nom, u"X"_s).enClasse(u"P1"_s, u"A"_s);
    TEleveEssai(Ecole, 2).avec(u"FLG_RADIE"_s);
    Ecole.unEleve().nomme(u"Pirard"_s, u"X"_s).enClasse(u"P2"_s, u"A"_s);
  }
  void DemarrerLEcole() {
    EcrireLEcole();
    Programme.Demarrer();
  }
  /// The server's file is no database.
  QString PerdreLeServeur() {
    const QString mauvais = Base.Fichier(u"mauvais.fdb"_s, QByteArray(5000, 'z'));
    Base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, mauvais);
    return mauvais;
  }
  FenetrePrincipale& Fenetre() { return Programme.Fenetre(); }
  QLineEdit* Recherche() { return Fenetre().Eleves()->Recherche(); }
  QTreeView* Arbre() { return Fenetre().Eleves()->Arbre(); }
  QString Choisi() { return Arbre()->currentIndex().data().toString(); }
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
};

}  // namespace

TEST_F(Principal, AnOfficeStartsOnItsPupilsAndChoosesOne) {
  DemarrerLEcole();
  EXPECT_EQ(Fenetre().windowTitle(), u"Calpenne");
  EXPECT_EQ(Fenetre().Barre()->Annees()->text(), u"Année scolaire 2016 - 2017  ▾");
  EXPECT_TRUE(Dit(u"4 élèves, dont 1 radié"_s));
  EXPECT_EQ(QApplication::focusWidget(), Recherche());

  Touche(Arbre(), Qt::Key_F3);
  EXPECT_EQ(QApplication::focusWidget(), Recherche());
  QTest::keyClicks(Recherche(), u"7p*i-2r"_s);
  EXPECT_EQ(Recherche()->text(), u"pir") << "digits and signs are dropped";
  EXPECT_EQ(Choisi(), u"Pirard X");
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard");
  EXPECT_EQ(QApplication::focusWidget(), Recherche());

  Touche(Recherche(), Qt::Key_Home);
  EXPECT_EQ(Recherche()->text(), QString());
  QTest::keyClicks(Recherche(), u"p"_s);
  EXPECT_EQ(Choisi(), u"P1 A");
  Touche(Recherche(), Qt::Key_Return);
  EXPECT_EQ(Choisi(), u"P2 A");

  Touche(Recherche(), Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), Arbre());
  Touche(Arbre(), Qt::Key_Down);
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Pirard") << "the pupil is current at once";
}

TEST_F(Principal, EveryWayShowsItsPages) {
  const QStringList bureau{"Élèves", "Statistiques", "Présences", "Virements"};
  const QStringList tablette{"Transfert", "Réservation", "Quitter"};
  const struct {
    const char* Reglage;
    const char* Parametre41;
    QStringList Pages, Commandes;
    bool Arbre, Connexion;
  } cas[] = {
      {"", "1", {"Accueil*", "Repas", "Repas (tickets)", "Administration"}, bureau, true, true},
      {"Mode", "0", {"Repas*"}, {"Réservation"}, true, true},
      {"Tablette", "1", {"Repas*"}, tablette, false, true},
      {"Offline", "0", {"Repas*"}, tablette, false, false},
  };
  EcrireLEcole();
  for (const auto& c : cas) {
    Ecole.parametre(41, QLatin1String(c.Parametre41));
    for (const char* reglage : {"Mode", "Tablette", "Offline"})
      Base.Reglages.Ecrire(TRacine::Utilisateur, QLatin1String(reglage),
                           QLatin1String(c.Reglage) == QLatin1String(reglage) ? u"1"_s : u"oui"_s);
    Programme.Demarrer();
    EXPECT_EQ(Pages(), c.Pages) << c.Reglage;
    EXPECT_EQ(CommandesVisibles(), c.Commandes) << c.Reglage;
    EXPECT_EQ(Arbre()->isVisible(), c.Arbre) << c.Reglage;
    EXPECT_EQ(Programme.Tout().Base.EstConnecte(), c.Connexion) << c.Reglage;
    if (&c != std::end(cas) - 1) Programme.Fermer();
  }
  for (const bool oui : {false, true}) {
    Programme.Dialogues.Repond(u"Souhaitez-vous quitter"_s, oui);
    QTest::mouseClick(Fenetre().Barre()->Bouton(TGestionnaire::AdvGlowButton4Click), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(Fenetre().isVisible(), !oui) << "Quitter closes the program";
  }
}

TEST_F(Principal, GivingUpAtFirstEndsTheProgramAndLaterDoesNot) {
  const QString mauvais = PerdreLeServeur();
  Programme.Dialogues.Clique(kErreurConnexion, u"Annuler"_s);
  Programme.Demarrer();
  EXPECT_FALSE(Fenetre().isVisible());
  const QString dialogue = Programme.Dialogues.Vus.last();
  for (const QString& texte :
       {u"Un problème empêche le logiciel de se connecter au serveur de base de donnée nommé : "_s.append(
            mauvais),
        u"Veuillez vérifier si :\n1. Le nom du serveur est correctement orthographié.\n2. Le serveur est "
        "allumé et accessible via le réseau.\n3. Les paramètres réseau de votre ordinateur sont corrects\n"
        "Actions:"_s})
    EXPECT_TRUE(dialogue.contains(texte)) << dialogue.toStdString();
  Programme.Fermer();

  Programme.Dialogues.Fait(kErreurConnexion, [](QWidget& fenetre) {
    EXPECT_TRUE(static_cast<DialogueBase&>(fenetre).Principal()->isDefault());
    QTest::keyClick(&fenetre, Qt::Key_Return);
  });
  Programme.Dialogues.Fait(kErreurConnexion,
                           [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
  Programme.Demarrer();
  EXPECT_TRUE(Fenetre().isVisible()) << "the window stays, empty";
  EXPECT_FALSE(Recherche()->isEnabled());
  EXPECT_TRUE(Etat().startsWith(u"Pas de connexion"));
  Programme.Main().Executer(TGestionnaire::AdvGlowButton2Click);
  Programme.Main().mnuAnneeClick(2015);
  Programme.Main().Ajouterunprofesseur1Click();
  EXPECT_EQ(Fenetre().VueCourante(), nullptr) << "nothing opens";
}

TEST_F(Principal, TheRetryDialogChangesTheServerOrTakesAFileThatWasMoved) {
  EcrireLEcole();
  PerdreLeServeur();
  Programme.Dialogues.Fait(kErreurConnexion, [](QWidget& fenetre) {
    for (QLabel* lien : fenetre.findChildren<QLabel*>())
      if (lien->text().contains(u"Cliquez ici afin de modifier le nom du serveur de données."))
        emit lien->linkActivated(QString());
  });
  Programme.Dialogues.Saisit(u"Identification du Serveur de données"_s, Base.FichierDeDonnees());
  Programme.Dialogues.Clique(kErreurConnexion, u"Réessayer"_s);
  Programme.Demarrer();
  EXPECT_TRUE(Programme.Dialogues.Vus.at(1).contains(u"Le nom « local » fait travailler ce poste seul"));
  EXPECT_EQ(Arbre()->model()->rowCount(), 2);
  Programme.Fermer();

  PerdreLeServeur();
  Programme.Dialogues.Clique(kErreurConnexion, u"Choisir le fichier..."_s)
      .Fichier(u"Choisir le fichier de données"_s, Base.FichierDeDonnees());
  Programme.Demarrer();
  EXPECT_EQ(Arbre()->model()->rowCount(), 2) << "it is tried at once";
}

TEST_F(Principal, TheHandStaysInTheTreeWhenARefusedTextGoesWithItsPupil) {
  DemarrerLEcole();
  QTest::keyClicks(Recherche(), u"dub"_s);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  auto* date = Fenetre().findChild<QLineEdit*>(u"lblDateNaissance"_s);
  date->setFocus();
  QTest::keyClicks(date, u"31/02/2010"_s);
  const QRect autre = Arbre()->visualRect(Arbre()->indexAbove(Arbre()->currentIndex()));
  QTest::mouseClick(Arbre()->viewport(), Qt::LeftButton, {}, autre.center());
  QCoreApplication::processEvents();
  EXPECT_EQ(Globals.EleveCourant->Nom, u"Bastin");
  EXPECT_TRUE(Etat().startsWith(u"Abandonné"_s)) << Etat().toStdString();
  EXPECT_EQ(QApplication::focusWidget(), Arbre()) << "what is typed next is for nobody's date";
}

TEST_F(Principal, TheKeysOfTheWindow) {
  DemarrerLEcole();
  Arbre()->setFocus();
  Touche(&Fenetre(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_TRUE(Fenetre().Barre()->isAncestorOf(QApplication::focusWidget()));
  Touche(&Fenetre(), Qt::Key_F6);
  EXPECT_EQ(QApplication::focusWidget(), Arbre()) << "the zone gives back the last focus";
  bool menuOuvert = false;
  QTimer::singleShot(0, &Fenetre(), [&] {
    menuOuvert = QApplication::activePopupWidget() != nullptr;
    if (menuOuvert) QApplication::activePopupWidget()->close();
  });
  QTest::keyClick(Arbre(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(menuOuvert) << "also where the keyboard has no key for it";
  QApplication::setActiveWindow(&Fenetre());  // no window manager does it
  Arbre()->setFocus();

  Touche(&Fenetre(), Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(Pages(), (QStringList{"Accueil", "Repas", "Administration*"}));
  Touche(&Fenetre(), Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), Arbre()) << "the hand stays where it is";
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  Touche(&Fenetre(), Qt::Key_M, Qt::ControlModifier);
  EXPECT_EQ(Etat(), u"Envoyer : l'envoi par courriel n'est pas encore disponible")
      << "a grey command says why";

  Touche(&Fenetre(), Qt::Key_0, Qt::ControlModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList annees;
  for (const QAction* annee : menu->actions()) annees += annee->text() + (annee->isChecked() ? u"*" : u"");
  EXPECT_EQ(annees.sliced(0, 4), (QStringList{"2015 - 2016", "2016 - 2017*", "2017 - 2018", "2018 - 2019"}));
  Touche(menu, Qt::Key_Up);
  Touche(menu, Qt::Key_Return);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2015);
  EXPECT_EQ(Globals.AnneeScolaire, 2016);
  EXPECT_TRUE(Dit(u"Année affichée ≠ année de travail"_s));
}

TEST_F(Principal, ATeacherIsAddedToTheWorkingYearAndRemoved) {
  DemarrerLEcole();
  Programme.Main().mnuAnneeClick(2015);
  const auto menu = [&](int rang) {
    QTimer::singleShot(0, &Fenetre(), [rang] {
      QWidget* ouvert = QApplication::activePopupWidget();
      for (int i = 0; i <= rang; ++i) QTest::keyClick(ouvert, Qt::Key_Down);
      QTest::keyClick(ouvert, Qt::Key_Return);
    });
    emit Arbre()->customContextMenuRequested(QPoint(1, Arbre()->height() - 1));
  };
  Programme.Dialogues.Fait(u"Ajout d'un professeur"_s, [](QWidget& fenetre) {
    QTest::keyClicks(fenetre.findChildren<QLineEdit*>().at(0), u"   "_s);
    ::Cliquer(fenetre, u"Valider"_s);
  });
  Programme.Dialogues.Fait(u"Un nom est obligatoire"_s, [](QWidget& fenetre) {
    const auto champs = fenetre.findChildren<QLineEdit*>();
    EXPECT_EQ(fenetre.focusWidget(), champs.at(0));
    champs.at(0)->selectAll();
    QTest::keyClicks(champs.at(0), u"Peeters"_s);
    QTest::keyClick(champs.at(0), Qt::Key_Tab);
    QTest::keyClicks(champs.at(1), u"Anne"_s);
    QTest::keyClick(champs.at(1), Qt::Key_Return);
  });
  menu(0);
  EXPECT_EQ(Globals.Eleves->AnneeScolaire, 2016);
  EXPECT_EQ(Base.Rangees("SELECT C.ANNEE_SCOLAIRE, E.NOM, E.PRENOM, E.MATRICULE FROM ELEVES_CLASSES C JOIN "
                         "ELEVES E ON E.ELEVE_ID=C.ELEVE_ID WHERE C.CLASSE='PROFESSEURS'"),
            QStringList("2016;Peeters;Anne;0005"));

  QTest::keyClicks(Recherche(), u"peeters"_s);
  Programme.Dialogues.Fait(u"Souhaitez-vous supprimer définitivement ce professeurs"_s,
                           [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Return); });
  menu(1);
  EXPECT_EQ(Choisi(), u"Peeters Anne") << "Enter does not remove somebody";
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  Programme.Dialogues.Repond(u"Souhaitez-vous supprimer définitivement ce professeurs"_s, true);
  menu(1);
  EXPECT_EQ(Base.Valeur(u"SELECT COUNT(*) FROM ELEVES WHERE NOM='Peeters'"_s), u"0");
  EXPECT_EQ(Base.Valeur(u"SELECT COUNT(*) FROM ELEVES_CLASSES WHERE CLASSE='PROFESSEURS'"_s), u"1")
      << "its rows in other tables stay";
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  Recherche()->clear();
  QTest::keyClicks(Recherche(), u"peeters"_s);
  EXPECT_NE(Choisi(), u"Peeters Anne") << "nor in the tree";
  Recherche()->clear();
  QTest::keyClicks(Recherche(), u"pirard"_s);
  EXPECT_EQ(Choisi(), u"Pirard X");
  EXPECT_FALSE(Programme.Main().PeutSupprimerProfesseur()) << "a pupil";
}

TEST_F(Principal, TheTreeKeepsItsFoldsWhenItIsBuiltAnew) {
  DemarrerLEcole();
  const auto ouverte = [&](int rang) { return Arbre()->isExpanded(Arbre()->model()->index(rang, 0)); };
  EXPECT_FALSE(ouverte(0));
  Arbre()->expand(Arbre()->model()->index(1, 0));
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_FALSE(ouverte(0));
  EXPECT_TRUE(ouverte(1));
  EXPECT_EQ(
      Arbre()->model()->index(1, 0, Arbre()->model()->index(0, 0)).data(Qt::AccessibleTextRole).toString(),
      u"Bastin X, radié");

  QTest::keyClicks(Recherche(), u"bas"_s);
  EXPECT_TRUE(ouverte(0));
  Arbre()->collapse(Arbre()->model()->index(0, 0));
  Programme.Main().Envoyer({TCodeMessage::EleveChange, {}});
  EXPECT_TRUE(ouverte(0)) << "a screen has found the pupil again";
}

TEST_F(Principal, FirstUseLeadsToTheImport) {
  Programme.Demarrer();
  EXPECT_TRUE(Fenetre().Accueil()->isVisible());
  EXPECT_FALSE(Recherche()->isEnabled());
  for (const char* texte : {"Aucun élève en 2016 - 2017", "1.  Année scolaire", "6.  Frais"})
    EXPECT_TRUE(Dit(texte)) << texte;
  EcrireLEcole();
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_TRUE(Fenetre().Accueil()->isVisible()) << "neither tariffs nor fees yet";
  Cliquer(u"Pas de frais cette année"_s);
  EXPECT_TRUE(Dit(u"se passe sans frais"_s));
  EXPECT_EQ(BoutonDe(Fenetre(), u"Pas de frais cette année"_s), nullptr);
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
  EcrireLEcole();
  Partout([&] {
    Programme.Demarrer();
    VerifierVue(Fenetre());
    SCOPED_TRACE("a pupil chosen");
    QTest::keyClicks(Recherche(), u"dub"_s);
    Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
    EXPECT_EQ(Globals.EleveCourant->Nom, u"Dubois");
    VerifierVue(Fenetre());
    SCOPED_TRACE("the longest page of the bar");
    Programme.Ouvrir(TGestionnaire::AdvGlowButton16Click);
    EXPECT_TRUE(Fenetre().Barre()->Bouton(TOutil::btnDelete)->isVisible());
    EXPECT_LE(Fenetre().Barre()->minimumSizeHint().width(), 1366);
    VerifierVue(Fenetre());
    Programme.Fermer();
  });
}

TEST_F(Principal, EveryControlOfItsDialogsToo) {
  TReessai reessai;
  reessai.Titre = kErreurConnexion;
  reessai.Texte = u"Un problème empêche le logiciel de se connecter au serveur nommé : SECRETARIAT"_s;
  reessai.Explication = u"Veuillez vérifier si :\n1. Le serveur est allumé."_s;
  reessai.Lien = u"Cliquez ici afin de modifier le nom du serveur de données."_s;
  reessai.Cause = u"Unable to complete network request to host \"SECRETARIAT\"."_s;
  reessai.SurFichier = [] { return false; };
  VerifierVuePartout([&] { return std::make_unique<DialogueReessai>(reessai); });
  VerifierVuePartout([] {
    return std::make_unique<DialogueSaisie>(TSaisie{
        .Titre = u"Identification du Serveur de données"_s,
        .Invite = u"Veuillez indiquer ci-dessous le nom du serveur de données ou son adresse réseau :\n"
                  "Attention : veuillez exécuter cette opération avec un compte administrateur"_s,
        .Valeur = u"SECRETARIAT"_s,
        .Principal = u"&Se connecter à un serveur"_s,
        .Autre = u"&Travailler seul"_s});
  });
  DemarrerLEcole();
  VerifierVuePartout([&] {
    auto accueil = std::make_unique<VueAccueil>(Programme.Main());  // with what does without a step
    accueil->Actualiser();
    return accueil;
  });
  TFrmAjoutProfesseur ajout(Programme.Main().Contexte);
  VerifierVuePartout([&] { return std::make_unique<VueDialogue>(ajout, nullptr); });
}

TEST_F(Principal, LongWorkKeepsTheWindowShutAndAlive) {
  DemarrerLEcole();
  DialoguesQt& dialogues = Programme.Tout().Dialogues;
  {
    TProgression progression(dialogues, 10);
    progression.Avancer(4, u"DUBOIS Léa"_s);
    dialogues.TraiterEvenements();
    EXPECT_TRUE(TextesDe(*Fenetre().findChild<FeuilleProgression*>()).contains(u"4 sur 10\n"));
    EXPECT_TRUE(Etat().startsWith(u"Travail en cours")) << Etat().toStdString();
    EXPECT_FALSE(Arbre()->isEnabled() || Fenetre().Barre()->Annees()->isEnabled());
    Fenetre().close();
    EXPECT_TRUE(Fenetre().isVisible());
    EXPECT_TRUE(Etat().startsWith(u"Un travail est en cours"));
  }
  EXPECT_FALSE(Fenetre().findChild<FeuilleProgression*>()->isVisible());
  EXPECT_TRUE(Arbre()->isEnabled());
}

TEST_F(Principal, WhatNobodyCatchesIsShownAndTheProgramGoesOn) {
  DemarrerLEcole();
  QTimer::singleShot(0, &Fenetre(), [] { throw std::out_of_range("place 12"); });
  Programme.Dialogues.Attend(u"Erreur inattendue : place 12"_s);
  while (Programme.Dialogues.Vus.isEmpty()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QCoreApplication::processEvents();
  QTest::keyClicks(Recherche(), u"dub"_s);
  EXPECT_EQ(Choisi(), u"Dubois X");
}

TEST_F(Principal, APlainQuestionDefaultsToYes) {
  Programme.Demarrer();
  Programme.Dialogues.Fait(u"Continuer <b>ainsi</b> ?"_s,
                           [](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Return); });
  EXPECT_TRUE(Programme.Tout().Dialogues.Confirmer(u"Continuer <b>ainsi</b> ?"_s));
}
