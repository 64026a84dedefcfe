// A tablet from its first load to the transfer and back: serving without a server.
#include <QDir>
#include <QFileInfo>

#include "core/fichiers.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_transfert_repas.h"
#include "ui/commun/etat_vide.h"
#include "ui/meals/cadre_eleve.h"
#include "ui/meals/repas_essai.h"

namespace {

class Tablette : public TRepasEssai {
 protected:
  void SetUp() override {
    TRepasEssai::SetUp();
    using namespace Essai;
    Ecole.tarif(FamilleRepas, LundiMardiJeudiVendredi, "11:30", "13:30", Forfait, "2", ScanPresence);
    Base.Reglages.Ecrire(TRacine::Utilisateur, "DossierPresences", Base.Chemin("presences"));
    Base.Reglages.Ecrire(TRacine::Utilisateur, "Offline", "1");
    Base->Deconnecter();
  }
  QString Repas() const { return Base.Chemin("presences/presences.txt"); }
  /// The server is gone, and comes back.
  void Eteindre() {
    ASSERT_TRUE(QFile::rename(Base.FichierDeDonnees(), Base.Chemin("eteint")));
    Base.Fichier("essai.fdb", QByteArray(5000, 'z'));
  }
  void Allumer() {
    QFile::remove(Base.FichierDeDonnees());
    ASSERT_TRUE(QFile::rename(Base.Chemin("eteint"), Base.FichierDeDonnees()));
  }
  void Toucher(const QString& bouton) {
    for (QAbstractButton* b : Programme.Fenetre().findChildren<QAbstractButton*>())
      if (b->isVisible() &&
          (b->text().section('\n', 0, 0) == bouton || b->accessibleName().startsWith(bouton))) {
        QTest::mouseClick(b, Qt::LeftButton);
        for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
        return;
      }
    ADD_FAILURE() << bouton.toStdString();
  }
  void ToucherClasse(const QString& annee, const QString& classe) {
    Toucher(annee);
    Toucher(classe);
  }
  QStringList Cadres() {
    QStringList noms;
    for (const CadreEleve* cadre : Programme.Fenetre().findChildren<CadreEleve*>())
      if (cadre->isVisible()) noms += cadre->accessibleName();
    return noms;
  }
  /// The class that is marked on the left.
  QStringList EnMain() {
    QStringList classes;
    for (const QPushButton* bouton : Programme.Fenetre().findChildren<QPushButton*>())
      if (bouton->isVisible() && bouton->isChecked()) classes += bouton->text().section('\n', 0, 0);
    return classes;
  }
  void ServirApresTransfert() {
    Programme.Demarrer();
    Programme.Ouvrir(TGestionnaire::btnTransfertRepasClick);
    Programme.Ouvrir(TGestionnaire::btnReservationTabletteClick);
  }
  QStringList Presences() {
    Base->ServerName = Base.FichierDeDonnees();
    Base->Connecter();
    const QStringList rangees =
        Base.Rangees("SELECT ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE FROM PRESENCES ORDER BY 1");
    Base->Deconnecter();
    return rangees;
  }
};

}  // namespace

TEST_F(Tablette, FromTheFirstLoadToTheTransferAndBack) {
  Programme.Demarrer();
  EXPECT_TRUE(Montre("Aucun élève à servir"));
  const auto* vide = Programme.Fenetre().VueCourante()->findChild<EtatVide*>();
  QTest::mouseClick(vide->findChild<QPushButton*>(), Qt::LeftButton);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  EXPECT_TRUE(Montre("Les élèves sont à jour."));
  Programme.Fermer();

  Eteindre();
  Programme.Demarrer();
  EXPECT_TRUE(Montre("lundi 3 octobre 2016"));
  EXPECT_TRUE(Montre("Aucun repas à transférer"));
  EXPECT_TRUE(Programme.Fenetre().isMaximized());
  const auto foyer = [] { return qobject_cast<QPushButton*>(QApplication::focusWidget()); };
  ASSERT_NE(foyer(), nullptr) << "the field of the search would bring up the keyboard";
  Toucher("P1");
  EXPECT_NE(foyer(), nullptr);
  Toucher("P1 A");
  EXPECT_TRUE(Montre("P1 A  ·  0 sur 2"));
  EXPECT_EQ(EnMain(), QStringList("P1 A"));
  Toucher("P1 A");
  EXPECT_EQ(EnMain(), QStringList("P1 A")) << "pressed again it stays in hand";
  Toucher("ALVES Rui");
  Toucher("BODART Léa");
  EXPECT_EQ(Cadres(), (QStringList{"ALVES Rui, Repas complet", "BODART Léa, Repas complet"}));
  EXPECT_TRUE(Montre("2 repas à transférer"));
  Toucher("BODART Léa");  // tapped again, it is taken back
  auto& recherche = Nomme<QLineEdit>("Rechercher un élève");
  Aller(recherche);
  QTest::keyClicks(&recherche, "zoe mar");
  EXPECT_EQ(Cadres(), QStringList("MARIN Zoé"));
  EXPECT_EQ(EnMain(), QStringList());
  Toucher("MARIN Zoé");
  Toucher("RETOUR");
  EXPECT_EQ(Cadres(), QStringList());

  // Without a server the transfer leaves all as it is.
  Programme.Dialogues.Clique("Un problème empêche", "Annuler");
  Programme.Ouvrir(TGestionnaire::btnTransfertRepasClick);
  EXPECT_TRUE(Montre("Le serveur n'a pas été atteint : la tablette continue hors ligne."));
  EXPECT_TRUE(Programme.EstOuvert());
  Activer();
  Allumer();
  Cliquer("Recommencer le transfert");
  EXPECT_TRUE(Montre("2 repas transférés, les élèves sont à jour."));
  EXPECT_EQ(Programme.Main().IntituleAnnee(), "") << "no year to choose without a server";
  EXPECT_FALSE(QFile::exists(Repas()));
  Programme.Ouvrir(TGestionnaire::btnReservationTabletteClick);
  ToucherClasse("M1", "M1 B");
  EXPECT_EQ(Cadres(), QStringList("MARIN Zoé, transféré"));
  Programme.Fermer();
  EXPECT_EQ(Presences(), (QStringList{"1;2;2016-10-03", "3;2;2016-10-03"}));
}

// What is asked about is there to be read; "Non" leaves a tablet, also at the next start.
TEST_F(Tablette, AnAnomalyIsShownBeforeItIsAskedAbout) {
  Programme.Demarrer();
  Programme.Ouvrir(TGestionnaire::btnTransfertRepasClick);
  const QByteArray taps = "11;2;20161003;120000000;1\n11;2;20161009;120000000;1\n99;2;20161003;120000000;1\n";
  EcrireFichier(Repas(), taps);
  Programme.Dialogues.Fait("2 repas ne seront pas enregistrés.", [&](QWidget& question) {
    EXPECT_TRUE(Montre("Nombre d'anomalies détectées:"));
    const TGrille& anomalies = Form<TFrmTransfertRepas>().Anomalies;
    EXPECT_EQ(anomalies.Texte(0, 0), "Matricule inconnu (99)");
    EXPECT_EQ(anomalies.Texte(1, 2), "dimanche 9 octobre");
    const QAbstractButton* non = BoutonDe(question, "Non");
    EXPECT_TRUE(non->width() >= 96 && non->height() >= 48) << "for a finger";
    ::Cliquer(question, "Non");
  });
  Cliquer("Recommencer le transfert");
  EXPECT_EQ(LireFichier(Repas()), taps);
  Programme.Fermer();
  Programme.Demarrer();
  EXPECT_FALSE(Programme.Main().PageVisible(TPage::PgEleve)) << "no office";
  Programme.Dialogues.Fait("2 repas ne seront pas enregistrés.", [&](QWidget& question) {
    EXPECT_TRUE(Montre("Nombre d'anomalies détectées:")) << "at the first opening too";
    ::Cliquer(question, "Oui");
  });
  Programme.Ouvrir(TGestionnaire::btnTransfertRepasClick);
  EXPECT_TRUE(Montre("1 repas transféré, les élèves sont à jour."));
}

TEST_F(Tablette, AFingerThatScrollsServesNobody) {
  ServirApresTransfert();
  ToucherClasse("P1", "P1 A");
  CadreEleve* cadre = Programme.Fenetre().findChild<CadreEleve*>();
  const QPoint debut = cadre->rect().center(), fin = debut - QPoint(0, 60);
  QTest::mousePress(cadre, Qt::LeftButton, {}, debut);
  QTest::mouseMove(cadre, fin);
  QTest::mouseRelease(cadre, Qt::LeftButton, {}, fin);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  EXPECT_FALSE(QFile::exists(Repas()));
}

TEST_F(Tablette, TheDateFollowsTheClockAndSaysWhatIsWrongWithIt) {
  ServirApresTransfert();
  ToucherClasse("M1", "M1 B");
  Toucher("MARIN Zoé");
  const QString dehors = "Cette date est hors de l'année scolaire 2016 - 2017";
  const std::tuple<const char*, QString, QString> cas[] = {
      {"2016-10-08", "samedi 8 octobre 2016", "C'est le week-end"},
      {"2016-09-30", "vendredi 30 septembre 2016",
       "Cette date vient avant le dernier repas noté (03/10/2016)"},
      {"1999-01-04", "lundi 4 janvier 1999", dehors},
      {"2017-07-03", "lundi 3 juillet 2017", dehors},
      {"2098-10-06", "lundi 6 octobre 2098", dehors}};
  for (const auto& [jour, date, avertissement] : cas) {
    Programme.Horloge.Moment = J(jour) + 0.5;
    Form<TFrmPresenceRepas>().Horloge();
    EXPECT_TRUE(Montre(date)) << jour;
    EXPECT_TRUE(Montre(avertissement + " : vérifiez l'horloge de la tablette.")) << jour;
    Toucher("MARIN Zoé");
    EXPECT_EQ(Cadres(), QStringList("MARIN Zoé, Repas complet")) << "it forbids nothing";
    Toucher("MARIN Zoé");
  }
}

TEST_F(Tablette, EveryTargetIsLargeEnoughForAFinger) {
  ServirApresTransfert();
  VerifierVue(*Programme.Fenetre().VueCourante());
  ToucherClasse("P1", "P1 A");
  VerifierVue(*Programme.Fenetre().VueCourante());
  for (const QAbstractButton* bouton : Programme.Fenetre().VueCourante()->findChildren<QAbstractButton*>())
    EXPECT_TRUE(!bouton->isVisible() || bouton->inherits("QLineEditIconButton") ||
                (bouton->width() >= 48 && bouton->height() >= 48))
        << bouton->text().toStdString();
}
