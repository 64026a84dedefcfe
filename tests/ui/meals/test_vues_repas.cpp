// The meal screens of the office and of a teacher, by mouse and keyboard, read back from the database.
#include <QTreeWidget>

#include "screens/documents/frm_apercu.h"
#include "screens/meals/frm_ajout_ticket.h"
#include "screens/meals/frm_comptabilite.h"
#include "screens/meals/frm_compte_eleve.h"
#include "screens/meals/frm_cuisine.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_reservation.h"
#include "screens/meals/frm_ticket.h"
#include "screens/meals/frm_transfert_repas.h"
#include "screens/meals/frm_transfert_ticket.h"
#include "ui/commun/dialogue_base.h"
#include "ui/documents/vue_apercu.h"
#include "ui/meals/repas_essai.h"
#include "ui/vues_seules.h"

namespace {

class VuesRepas : public TRepasEssai {
 protected:
  void ChercherEleve(const QString& nom) {
    Touche(Qt::Key_F3);
    QTest::keyClicks(QApplication::focusWidget(), nom);
    QCoreApplication::processEvents();
  }
  /// A field of the dialog, by its control's name.
  static QLineEdit& Champ(QWidget& fenetre, const QString& nom) {
    return *fenetre.findChild<QLineEdit*>(nom);
  }
  static void Taper(QWidget& fenetre, const QString& nom, const QString& texte) {
    QLineEdit& champ = Champ(fenetre, nom);
    champ.setFocus();
    champ.selectAll();
    QTest::keyClicks(&champ, texte);
  }
  using TRepasEssai::Dit;
  static bool Dit(const QWidget& fenetre, const QString& texte) { return TextesDe(fenetre).contains(texte); }
  void Manquant(const QString& jour) {
    Programme.Dialogues.Fait("Ajouter des tickets à ALVES Rui", [jour](QWidget& fenetre) {
      auto* manquant = fenetre.findChild<QAbstractButton*>("cbTicketManquant");
      Taper(fenetre, "edNombre", "7");
      manquant->setFocus();
      QTest::keyClick(manquant, Qt::Key_Space);
      EXPECT_EQ(Champ(fenetre, "edNombre").text(), "1");
      EXPECT_FALSE(Champ(fenetre, "edNombre").isEnabled());
      EXPECT_FALSE(BoutonDe(fenetre, "Comptant")->isEnabled());
      EXPECT_TRUE(Dit(fenetre, "Date d'utilisation"));
      Taper(fenetre, "dtDate", jour);
      ::Cliquer(fenetre, "Valider");
    });
    Cliquer("Ajouter des tickets");
    Activer();
  }
  /// The preparation sheet, as far as its preview.
  void Fiche(const std::function<void(QWidget&)>& dansLApercu) {
    Programme.Dialogues
        .Fait("Assistant d'impression",
              [](QWidget& fenetre) {
                QTest::mouseClick(dynamic_cast<DialogueBase&>(fenetre).Principal(), Qt::LeftButton);
              })
        .Fait("Aperçu : Fiche de préparation", [&](QWidget& fenetre) {
          dansLApercu(fenetre);
          fenetre.close();
        });
    Touche(Qt::Key_F8);
    Activer();
  }
};

}  // namespace

TEST_F(VuesRepas, TicketsAreSoldIntoTheRedAndSettled) {
  Demarrer(TGestionnaire::btnTicketClick);
  Programme.Dialogues.Attend("Veuillez sélectionner un élève dans la liste.");
  Cliquer("Ajouter des tickets");
  ChercherEleve("ALVES");
  const auto eleves = [this] { return Lignes(Nomme<VueGrille>("Élèves de la classe")); };
  EXPECT_EQ(eleves(), (QStringList{"ALVES Rui|0|sans ticket", "BODART Léa|0|sans ticket"}));
  Manquant("03/10/2016");
  Manquant("04/10/2016");
  EXPECT_EQ(eleves()[0], "ALVES Rui|-2|en négatif");
  EXPECT_TRUE(Montre("1 élève(s) en négatif"));

  Programme.Dialogues.Fait("Ajouter des tickets à ALVES Rui", [this](QWidget& fenetre) {
    EXPECT_EQ(Champ(fenetre, "edPrix").text(), "2,60");
    for (const char* nombre : {"0", "-1", "abc", "1000000000", ""}) {
      Taper(fenetre, "edNombre", "x");  // what stood there leaves
      Champ(fenetre, "edNombre").clear();
      Taper(fenetre, "edNombre", nombre);
      ::Cliquer(fenetre, "Valider");
      EXPECT_TRUE(fenetre.isVisible() && Dit(fenetre, "de 1 à 999")) << nombre;
    }
    Taper(fenetre, "edNombre", "5");
    EXPECT_TRUE(Dit(fenetre, "2 tickets manquants seront réglés."));
    Taper(fenetre, "edPrix", "trois");
    ::Cliquer(fenetre, "Valider");
    EXPECT_TRUE(fenetre.isVisible());
    Taper(fenetre, "edPrix", "2,5");
    QTest::mouseClick(BoutonDe(fenetre, "Comptant"), Qt::LeftButton, {}, {8, 8});
    Base.Sql("UPDATE TICKET SET VALEUR = VALEUR + 1");
    Programme.Dialogues.Attend("Un autre poste a changé les tickets de ALVES Rui");
    ::Cliquer(fenetre, "Valider");
    EXPECT_TRUE(fenetre.isVisible() && Champ(fenetre, "edNombre").text() == "5") << "what was typed stays";
    ::Cliquer(fenetre, "Valider");
  });
  Cliquer("Ajouter des tickets");
  Activer();
  EXPECT_EQ(eleves()[0], "ALVES Rui|3|");
  const QString libre = "1;2016-10-03;-;2.5000;2";
  EXPECT_EQ(Tickets(), (QStringList{"1;2016-10-03;2016-10-03;2.5000;2", "1;2016-10-03;2016-10-04;2.5000;2",
                                    libre, libre, libre}));

  // One is handed on, one deleted; what stands above it counts down.
  QTest::keyClick(&Nomme<VueGrille>("Élèves de la classe"), Qt::Key_Return);
  auto& detail = Nomme<VueGrille>("Tickets de l'élève");
  EXPECT_EQ(Lignes(detail).size(), 6);
  EXPECT_EQ(Lignes(detail)[0], "#03/10/2016||5");
  Programme.Dialogues.Attend("Veuillez sélectionner un ticket dans la liste.");
  Cliquer("Transférer un ticket");
  detail.Grille().ChoisirLigne(5);
  Programme.Dialogues.Fait("Transférer un ticket", [this](QWidget& fenetre) {
    Programme.Dialogues.Attend("Veuillez sélectionner un élève dans la liste.");
    ::Cliquer(fenetre, "Valider");
    EXPECT_TRUE(fenetre.isVisible());
    auto* filtre = fenetre.findChild<QLineEdit*>();
    QTest::keyClicks(filtre, "bod");
    auto* liste = fenetre.findChild<VueGrille*>();
    liste->setFocus();
    QTest::keyClick(liste, Qt::Key_Down);
    QTest::keyClick(liste, Qt::Key_Home);
    EXPECT_TRUE(Dit(fenetre, "Classe de l'élève : P1 A"));
    ::Cliquer(fenetre, "Valider");
  });
  Cliquer("Transférer un ticket");
  Activer();
  EXPECT_EQ(Tickets().count("2;2016-10-03;-;2.5000;2"), 1);
  detail.Grille().ChoisirLigne(3);
  Programme.Dialogues.Repond("Confirmez-vous la suppression définitive de ce ticket ?", true);
  Cliquer("Supprimer un ticket");
  EXPECT_EQ(Lignes(detail)[0], "#03/10/2016||3");
  EXPECT_EQ(Tickets().size(), 4);

  // An order takes a ticket while the list stands behind: it is another list that comes back.
  for (const auto ecran : {TGestionnaire::btnReservationClick, TGestionnaire::btnTicketClick,
                           TGestionnaire::btnReservationClick})
    Programme.Ouvrir(ecran);
  auto& reservation = Form<TFrmReservation>();
  reservation.cmbClasseChange(2);
  for (int i = 0; i < 2; ++i) reservation.btnAvanceDateClick();
  reservation.grdEleveClickCell(0, 1);
  Programme.Ouvrir(TGestionnaire::btnTicketClick);
  EXPECT_EQ(eleves()[0], "ALVES Rui|0|sans ticket");
  EXPECT_EQ(Lignes(detail)[3], "03/10/2016|05/10/2016|1");
  // And what is sold here shows on the screens that stood behind.
  const auto vendre = [this](Currency prix) {
    Globals.Eleves->TrouverParId(1)->AcheterTickets(1, TPaiementTicket::Comptant, prix,
                                                    EncodeDate(2016, 10, 3));
  };
  vendre({});
  Programme.Ouvrir(TGestionnaire::btnReservationClick);
  Activer();
  EXPECT_TRUE(Montre("1 ticket disponible"));
  Programme.Ouvrir(TGestionnaire::btnComptabiliteClick);
  Programme.Ouvrir(TGestionnaire::btnTicketClick);
  vendre(Currency::Euros(3));
  Programme.Ouvrir(TGestionnaire::btnComptabiliteClick);
  Activer();
  EXPECT_EQ(Form<TFrmComptabilite>().Comptant.Texte(0, 4), "6");
}

TEST_F(VuesRepas, AClassIsOrderedByKeyboardIntoTheLockAndOut) {
  Demarrer(TGestionnaire::btnReservationClick);
  ChoisirClasse(2);
  auto& grille = Nomme<QTableWidget>("Commandes de la classe");
  Aller(grille);
  grille.setCurrentCell(0, 1);
  Frapper("D");
  EXPECT_EQ(grille.item(0, 0)->text(), "ALVES Rui  ·  incomplète");
  EXPECT_FALSE(Nomme<QComboBox>("Classe").isEnabled()) << "an incomplete order holds class and day";
  Programme.Dialogues.Attend("Attention le choix du sandwich est incomplet !");
  Touche(Qt::Key_Down);
  EXPECT_EQ(grille.currentRow(), 0);
  EXPECT_TRUE(grille.item(0, 1)->isSelected()) << "what is chosen stays with the hand";
  Aller(grille);
  Frapper("JB");
  EXPECT_TRUE(Nomme<QComboBox>("Classe").isEnabled());
  EXPECT_EQ(grille.item(0, 0)->text(), "ALVES Rui");
  Touche(Qt::Key_Down);
  EXPECT_EQ(grille.currentRow(), 1);
  Frapper(" ");  // the column in hand is that of the meal
  EXPECT_EQ(grille.item(1, 1)->text(), "Repas");
  EXPECT_TRUE(Montre("1 ticket manquant"));
  EXPECT_EQ(Commandes(), (QStringList{"1;2016-10-03;01010010", "2;2016-10-03;10000000"}));
  Frapper("R");
  EXPECT_EQ(Commandes()[1], "2;2016-10-03;00000000");
  EXPECT_EQ(Tickets(), QStringList("1;-;2016-10-03;2.6000;0"));
  Frapper("R");

  Touche(Qt::Key_Right, Qt::AltModifier);
  EXPECT_TRUE(Montre("mardi 4 octobre"));
  Cliquer("Comme la veille");
  EXPECT_EQ(Commandes().mid(2), (QStringList{"1;2016-10-04;01010010", "2;2016-10-04;10000000"}));
  Cliquer("Le mois");
  EXPECT_TRUE(Lignes(Nomme<VueGrille>("Commandes du mois"))[1].startsWith("BODART Léa|R|R||"));
}

TEST_F(VuesRepas, WhoHasLessThanThreeTicketsInTheSchool) {
  Ecole.unEleve().nomme("NOEL", "Tom").enClasse("M1", "B").avec("FLG_RADIE");
  Ecole.unEleve().nomme("OGER", "Ana").enClasse("M1", "B").avec("FLG_RADIE");
  const auto ticket = [this](const char* eleve, const char* colonne) {
    Ecole.Ajouter("TICKET", QString("TICKET_ID, ELEVE_ID, VALEUR, TYPE_PAIEMENT, ") + colonne,
                  {eleve, "2.60", "0", "'2016-09-30'"});
  };
  for (int i = 0; i < 3; ++i) ticket("1", "DATE_ACHAT");
  ticket("2", "DATE_ACHAT");
  ticket("5", "DATE_UTILISATION");
  Demarrer(TGestionnaire::btnTicketClick);
  auto* pages = Programme.Fenetre().VueCourante()->findChild<QTabWidget*>();
  pages->setCurrentIndex(2);
  auto& vue = Nomme<VueGrille>("Élèves avec moins de 3 tickets");
  EXPECT_EQ(Lignes(vue), (QStringList{"OGER Ana|M1 B|-1|en négatif", "MARIN Zoé|M1 B|0|sans ticket",
                                      "BODART Léa|P1 A|1|< 3 tickets"}));
  EXPECT_TRUE(Montre("3 élèves avec moins de 3 tickets"));
  const auto apparence = [&vue](int ligne, int colonne, int role) {
    return vue.model()->index(ligne, colonne).data(role);
  };
  const QColor couleurs[] = {Theme::Couleur(TRole::ErreurGrave), Theme::Couleur(TRole::Erreur),
                             Theme::Couleur(TRole::Succes)};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(apparence(i, 2, Qt::ForegroundRole).value<QColor>(), couleurs[i]) << i;
    EXPECT_TRUE(apparence(i, 2, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(apparence(i, 0, Qt::FontRole).value<QFont>().strikeOut(), i == 0) << "who has left";
  }
  // The pupil that is chosen is the one in hand, with his class, and may be sold tickets at once.
  vue.setFocus();
  for (int i = 0; i < 2; ++i) QTest::keyClick(&vue, Qt::Key_Down);
  vue.Grille().ChoisirLigne(2);
  EXPECT_EQ(Form<TFrmTicket>().NomEleve(), "BODART Léa");
  EXPECT_EQ(Globals.EleveCourant->NomComplet(), "BODART Léa");
  EXPECT_EQ(Form<TFrmTicket>().NomClasse(), "P1 A");
  Programme.Dialogues.Fait("Ajouter des tickets à BODART Léa", [](QWidget& fenetre) {
    Taper(fenetre, "edNombre", "2");
    ::Cliquer(fenetre, "Valider");
  });
  Cliquer("Ajouter des tickets");
  Activer();
  EXPECT_EQ(Lignes(vue).size(), 2) << "three now";
  Programme.Dialogues.Apercu("Aperçu : Élèves avec moins de 3 tickets", [](const QString& texte) {
    EXPECT_TRUE(texte.contains("OGER Ana") && texte.contains("MARIN Zoé") && !texte.contains("BODART"))
        << texte.toStdString();
  });
  Cliquer("Imprimer la liste");
}

TEST_F(VuesRepas, AFileIsCalledAfterTheListAndWhoseItIsAndOfWhen) {
  const auto propose = [this](const QString& liste) {
    QString nom;
    Programme.Dialogues.Fait("Exporter la liste", [&](QWidget& dialogue) {
      nom = dialogue.findChild<QLineEdit*>("fileNameEdit")->text();
      dialogue.close();
    });
    Nomme<VueGrille>(liste).Exporter();
    return nom;
  };
  Demarrer(TGestionnaire::btnTicketClick);
  ChercherEleve("ALVES");
  EXPECT_EQ(propose("Élèves de la classe"), "Élèves de la classe - P1 A - 2016 - 2017.csv");
  auto* pages = Programme.Fenetre().VueCourante()->findChild<QTabWidget*>();
  pages->setCurrentIndex(1);
  EXPECT_EQ(propose("Tickets de l'élève"), "Tickets de l'élève - ALVES Rui - 2016 - 2017.csv");
  pages->setCurrentIndex(2);
  EXPECT_EQ(propose("Élèves avec moins de 3 tickets"), "Élèves avec moins de 3 tickets - 2016 - 2017.csv")
      << "of the whole school";
  Programme.Horloge.Moment = EncodeDate(2017, 1, 9);
  for (const TGestionnaire ecran : {TGestionnaire::btnReservationClick, TGestionnaire::btnCompteEleveClick}) {
    Programme.Ouvrir(ecran);
    ChoisirClasse(2);
    if (ecran == TGestionnaire::btnReservationClick) Cliquer("Le mois");
    const QString liste = Programme.Fenetre().VueCourante()->findChild<VueGrille*>()->accessibleName();
    EXPECT_EQ(propose(liste), liste + " - P1 A - janvier 2017.csv");
  }
}

TEST_F(VuesRepas, BothKitchens) {
  for (const int eleve : {1, 2})
    Ecole.Ajouter(
        "COMMANDE", "COMMANDE_ID, ELEVE_ID, DATE_COMMANDE, FLG_REPAS, FLG_DAGO, FLG_JAMBON",
        {QString::number(eleve), "'2016-10-03'", eleve == 1 ? "1" : "0", eleve == 2 ? "1" : "0", "1"});
  const auto arbre = [this] {
    QStringList textes;
    auto& vue = Nomme<QTreeWidget>("Commandes par classe");
    for (QTreeWidgetItemIterator i(&vue); *i != nullptr; ++i) textes += (*i)->text(0);
    return textes.join('|');
  };
  Demarrer(TGestionnaire::btnClick);
  EXPECT_EQ(arbre(), "P1 A|Repas Complet;1|Sandwich");
  Programme.Ouvrir(TGestionnaire::btnCuisineClick);
  EXPECT_EQ(arbre(), "P1 A|Repas Complet;1|Dago;1");
  EXPECT_TRUE(Montre("Récapitulatif du lundi 03/10"));
  EXPECT_TRUE(Montre("1 commande incomplète : elle est dans les totaux et dans aucune variété."));

  // What another workstation changes is told against the sheet that came out, also to a screen opened anew;
  // one that was only looked at is none.
  Fiche([](QWidget& apercu) { EXPECT_NE(dynamic_cast<VueApercu*>(&apercu), nullptr); });
  Base.Sql("UPDATE COMMANDE SET FLG_JAMBON = 0, FLG_FROMAGE = 1 WHERE ELEVE_ID = 2");
  const auto rouvrir = [this] {
    Programme.Ouvrir(TGestionnaire::btnReservationClick);
    Programme.Ouvrir(TGestionnaire::btnCuisineClick);
  };
  rouvrir();
  EXPECT_FALSE(Dit("Depuis l'impression"));
  const auto exporter = [this](QWidget& apercu) {
    Programme.Dialogues.Fichier("Exporter en PDF", Base.Chemin("fiche.pdf"));
    for (QAbstractButton* bouton : apercu.findChildren<QAbstractButton*>())
      if (bouton->toolTip().startsWith("Exporter en PDF")) bouton->click();
  };
  Fiche(exporter);
  Base.Sql("UPDATE COMMANDE SET FLG_REPAS = 0, FLG_SANDWICH = 1 WHERE ELEVE_ID = 1");
  rouvrir();
  EXPECT_EQ(arbre(), "P1 A|Sandwichs;1|Dago;1");
  const QString depuis = "Depuis l'impression de la fiche, le 03/10/2016 à 07h05 : ";
  EXPECT_TRUE(Montre(depuis + "P1 A, Repas Complet : 1 → 0  ·  P1 A, Sandwichs : 0 → 1  ·  "
                              "Sandwichs jambon : 0 → 1  ·  ALVES Rui (P1 A) : rien → Sandwichs jambon"));
  // Two who swap leave the numbers of the class as they were.
  EXPECT_TRUE(QFile::remove(Base.Chemin("fiche.pdf"))) << "it was written";
  Fiche(exporter);
  Base.Sql("UPDATE COMMANDE SET FLG_DAGO = 1 - FLG_DAGO, FLG_SANDWICH = 1 - COALESCE(FLG_SANDWICH, 0)");
  rouvrir();
  EXPECT_TRUE(Montre(depuis +
                     "Dago fromage : 1 → 0  ·  Dago jambon : 0 → 1  ·  Sandwichs fromage : 0 → 1  ·  "
                     "Sandwichs jambon : 1 → 0  ·  ALVES Rui (P1 A) : Sandwichs jambon → Dago jambon  ·  "
                     "BODART Léa (P1 A) : Dago fromage → Sandwichs fromage"));
  Touche(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(arbre(), "");
  EXPECT_TRUE(Montre("Préparations du vendredi 30 septembre"));
}

TEST_F(VuesRepas, CashIsCountedCorrectedAndCancelled) {
  Demarrer(TGestionnaire::btnCompteEleveClick);
  ChoisirClasse(2);
  auto& comptes = Nomme<VueGrille>("Comptes des élèves");
  EXPECT_EQ(Lignes(comptes), (QStringList{"ALVES Rui|0,00 €", "BODART Léa|0,00 €"}));
  EXPECT_TRUE(Montre("Total reçu ce jour : 0,00 €"));
  const auto compter = [this](const QString& coupure, const QString& nombre) {
    auto& champ = Nomme<QLineEdit>("Nombre : " + coupure);
    Aller(champ);
    champ.selectAll();
    QTest::keyClicks(&champ, nombre);
  };
  Cliquer("Ajouter un paiement");
  EXPECT_EQ(QApplication::focusWidget(), &Nomme<QLineEdit>("Nombre : 100 euros"));
  EXPECT_EQ(BoutonDe(Programme.Fenetre(), "Valider"), nullptr) << "nothing is counted yet";
  compter("100 euros", "beaucoup");
  compter("2 euros", "1");
  Cliquer("2 euros");  // one more
  compter("50 cents", "1");
  EXPECT_TRUE(Montre("4,50 €"));
  Touche(Qt::Key_Return);
  EXPECT_EQ(Lignes(comptes)[0], "ALVES Rui|4,50 €  (+4,50)");
  const auto rangees = [this] {
    return Base.Rangees(
        "SELECT P.ELEVE_ID, P.MONTANT, P.TYPE_PAIEMENT, D.TOT_2_EUR, D.TOT_50_CNT FROM REPAS_PAIEMENT P JOIN "
        "DETAIL_PAIEMENT_LIQUIDE D ON D.REPAS_PAIEMENT_ID = P.REPAS_PAIEMENT_ID");
  };
  EXPECT_EQ(rangees(), QStringList("1;4.5000;0;2;1"));

  Cliquer("Modifier le paiement");
  EXPECT_EQ(Nomme<QLineEdit>("Nombre : 2 euros").text(), "2");
  compter("2 euros", "9");
  Touche(Qt::Key_Escape);
  EXPECT_EQ(rangees(), QStringList("1;4.5000;0;2;1")) << "given up";
  EXPECT_TRUE(comptes.isEnabled());
  Cliquer("Modifier le paiement");
  compter("2 euros", "3");
  Cliquer("Valider");
  EXPECT_EQ(rangees(), QStringList("1;6.5000;0;3;1")) << "it takes the place of the first";

  Cliquer("Modifier le paiement");
  compter("1 euro", "1");
  Base.Sql("UPDATE REPAS_PAIEMENT SET MONTANT = 7");
  Programme.Dialogues.Attend("Un autre poste a changé le paiement du jour pour ALVES Rui");
  Cliquer("Valider");
  EXPECT_EQ(Lignes(comptes)[0], "ALVES Rui|7,00 €  (+7,00)");
  EXPECT_EQ(Nomme<QLineEdit>("Nombre : 1 euro").text(), "1") << "what was counted stays";
  Globals.Eleves->BaseDeDonnees().Deconnecter();
  Programme.Dialogues.Attend("La connexion à la base de données n'est pas ouverte.");
  Cliquer("Valider");
  Globals.Eleves->BaseDeDonnees().Connecter();
  Cliquer("Valider");
  EXPECT_EQ(Lignes(comptes)[0], "ALVES Rui|7,50 €  (+7,50)") << "also when nothing can be read";

  Programme.Horloge.Moment += 1.0;
  ChoisirClasse(2);
  EXPECT_EQ(Lignes(comptes)[0], "ALVES Rui|7,50 €");
}

TEST_F(VuesRepas, ATeacherOrdersForToday) {
  Base.Reglages.Ecrire(TRacine::Utilisateur, "Mode", "1");
  Programme.Demarrer();
  ChoisirClasse(1);
  for (QAbstractButton* pas : Programme.Fenetre().findChildren<QAbstractButton*>())
    EXPECT_FALSE(pas->accessibleName().startsWith("Jour ") && pas->isVisible()) << "today only";
  auto& grille = Nomme<QTableWidget>("Commandes de la classe");
  Aller(grille);
  grille.setCurrentCell(0, 0);
  Frapper("R");
  EXPECT_EQ(Commandes(), QStringList("3;2016-10-03;10000000"));
  EXPECT_EQ(Tickets(), QStringList("3;-;2016-10-03;2.2000;0"));
}

TEST_F(VuesRepas, SalesAreCountedDayByDay) {
  const auto vendre = [this](const QString& eleve, const QString& jour, const QString& prix) {
    Ecole.Ajouter("TICKET", "TICKET_ID, ELEVE_ID, DATE_ACHAT, VALEUR, TYPE_PAIEMENT",
                  {eleve, jour, prix, "1"});
  };
  vendre("1", "'2016-10-03'", "2.60");
  vendre("3", "'2016-09-30'", "2.20");
  Demarrer(TGestionnaire::btnComptabiliteClick);
  auto& ventes = Nomme<VueGrille>("Versement sur le compte");
  const QStringList dAujourdhui{"#03/10/2016|0|2,20 €|0,00 €|1|2,60 €|2,60 €|2,60 €",
                                "ALVES Rui||||1|2,60 €|2,60 €|"};
  EXPECT_EQ(Lignes(ventes), dAujourdhui);
  const auto depuis = [this](const QString& date, Qt::Key touche) {
    auto& debut = Nomme<QLineEdit>("Début de la période");
    Aller(debut);
    debut.selectAll();
    QTest::keyClicks(&debut, date);
    Touche(touche);
  };
  depuis("31/11/2016", Qt::Key_F8);  // nothing comes out for other dates than those that are read
  EXPECT_TRUE(Etat().startsWith("Non enregistré : « Début de la période »")) << Etat().toStdString();
  EXPECT_EQ(Lignes(ventes), dAujourdhui);
  depuis("01/09/2016", Qt::Key_Return);
  EXPECT_EQ(Lignes(ventes)[0], "#30/09/2016|1|2,20 €|2,20 €|0|2,60 €|0,00 €|2,20 €");
}

TEST_F(TVuesSeules, TheMealsAreWithinReach) {
  Verifier<TFrmTicket>();
  const auto choisir = [](TFrmReservation& form) {
    form.cmbClasseChange(1);
    form.grdEleveRowChanging(0);
  };
  Verifier<TFrmReservation>(choisir);
  Verifier<TFrmReservation2>(choisir);
  Verifier<TFrmCuisine>();
  Verifier<TFrmCuisine2>();
  Verifier<TFrmComptabilite>();
  Verifier<TFrmCompteEleve>([](TFrmCompteEleve& form) {
    form.cmbClasseChange(1);
    form.btnAjouteArgentClick();
    form.btnCoupureClick(0);
  });
  Verifier<TFrmPresenceRepas>();
  Verifier<TFrmTransfertRepas>([](TFrmTransfertRepas& form) {
    form.Anomalies.Ajouter({"ALVES", "Rui", EncodeDate(2016, 10, 9), "Repas", "Aucun tarif"});
  });
  TFrmAjoutTicket ajout(ecran->Contexte, *Globals.Eleves->TrouverParId(1), {});
  VerifierForme(ajout);
  TFrmTransfertTicket transfert(ecran->Contexte.Dialogues());
  VerifierForme(transfert);
}
