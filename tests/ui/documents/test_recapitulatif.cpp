// The statistics, worked by keyboard: each page, what it prints and exports, and balances that are carried.
#include <QHeaderView>
#include <QRadioButton>
#include <QScrollBar>

#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/diagramme_mois.h"
#include "ui/commun/theme.h"
#include "ui/documents/arbre_passages.h"
#include "ui/documents/vue_recapitulatif.h"
#include "ui/reglages_essai.h"

namespace {

using enum TFrmRecapitulatif::TPage;

/// One owes 14, one has 5 too much and is enrolled in 2017 too, one has 7 too much and has left.
class Recapitulatif : public TReglagesEssai {
 protected:
  void SetUp() override {
    using namespace Essai;
    const int piscine = Ecole.frais("Piscine", "14", 10);
    TEleveEssai anne = Ecole.unEleve().nomme("ADAM", "Anne").enClasse("P1", "A").doit(piscine);
    Ecole.unEleve().nomme("BODART", "Max").enClasse("P1", "A").paie("5", 9, 1, "Don");
    Ecole.unEleve().nomme("CLAES", "Zoé").enClasse("M1", "A").paie("7", 9, 1, "Trop");
    anne.scan(Garderie, "2016-10-03", "07:10").scan(Repas, "2016-10-04", "12:10");
    Ecole.tarif(Matin, TousLesJours, "07:00", "08:30", Forfait, "1.25", ScanPresence);
    Base.Sql("INSERT INTO GROUPE_FRAIS (GROUPE_FRAIS_ID, LIBELLE) VALUES (3, 'Fête')");
    Base.Sql("UPDATE FRAIS_ELEVE SET GROUPE_FRAIS_ID = 3 WHERE REMARQUE = 'Don'");
    TEcoleEssai suivante(Base, 2017);
    for (const int id : {1, 2}) TEleveEssai(suivante, id).enClasse("P2", "A");
  }
  void Ouvrir() { Demarrer(TGestionnaire::AdvGlowButton7Click); }
  QTabWidget& Onglets() { return *Programme.Vue<VueRecapitulatif>()->findChild<QTabWidget*>(); }
  void Aller(int page) {
    Activer();
    Onglets().setFocus();
    Onglets().setCurrentIndex(page);
  }
  /// F8, and what the first page of the preview says.
  QString Imprime() {
    QString texte;
    Programme.Dialogues.Apercu("Aperçu", [&](const QString& lu) { texte = lu; });
    Touche(Qt::Key_F8);
    return texte;
  }
  void Filtrer(const QString& texte) {
    for (auto* filtre : Programme.Fenetre().findChildren<ChampFiltre*>())
      if (filtre->isVisible()) QTest::keyClicks(filtre, texte);
  }
  QByteArray Exporte() {
    const QString chemin = Base.Chemin("liste.csv");
    QFile::remove(chemin);
    Programme.Dialogues.Fichier("Exporter la liste", chemin)
        .Attend("L'exportation des informations est terminée.");
    Cliquer("Exporter la liste");
    return LireFichier(chemin);
  }
  TFrmRecapitulatif& Ecran() { return Form<TFrmRecapitulatif>(); }
};

}  // namespace

TEST_F(Recapitulatif, TheListsPrintAndGoIntoFiles) {
  Ouvrir();
  EXPECT_EQ(Lignes(Ecran().Impayes), QStringList{"ADAM Anne|P1 A|15,25 €"});
  EXPECT_TRUE(Dit("Montant total des impayés :\n15,25"));
  Cocher("cbFrais");
  EXPECT_EQ(Lignes(Ecran().Impayes), QStringList{"ADAM Anne|P1 A|1,25 €"});
  EXPECT_TRUE(Imprime().contains("Liste des services\n"));
  auto* jusque = dynamic_cast<QRadioButton*>(BoutonDe(Programme.Fenetre(), "jusqu'au"));
  TReglagesEssai::Aller(*jusque);
  Touche(Qt::Key_Space);
  EXPECT_TRUE(Dit("Choisissez un mois."));
  Programme.Dialogues.Attend("Aucune information à imprimer");
  Touche(Qt::Key_F8);
  Choisir("cmbMois", 1);
  EXPECT_EQ(Ecran().Impayes.NombreLignes(), 1);
  Choisir("cmbMois", 0);
  EXPECT_EQ(Ecran().Impayes.NombreLignes(), 0) << "nothing is owed until September";
  Choisir("cmbMois", 1);
  EXPECT_TRUE(Exporte().contains("\"ADAM\";\"Anne\";\"P1 A\";\"1,25\""));

  Aller(TabBalancePositive);
  EXPECT_EQ(Lignes(Ecran().Positives), (QStringList{"CLAES Zoé|M1 A|7,00 €||", "BODART Max|P1 A|5,00 €||"}));
  EXPECT_TRUE(Imprime().contains("Liste des balances positives"));
  Filtrer("zoe");
  const QString filtree = Imprime();
  EXPECT_TRUE(filtree.contains("Lignes contenant « zoe »") && filtree.contains("CLAES"));
  EXPECT_FALSE(filtree.contains("BODART"));
  EXPECT_TRUE(Exporte().contains("\"BODART\";\"Max\";\"P1 A\";\"5,00\""));
  EXPECT_EQ(Programme.Main().Etat().Niveau, TNiveauEtat::Succes);
  Programme.Dialogues.Fait("Exporter la liste", [&](QWidget& dialogue) {
    auto* nom = dialogue.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_TRUE(nom->text().endsWith(" - 2016 - 2017.csv")) << nom->text().toStdString();
    nom->setText("/proc/liste.csv");
    QTest::keyClick(nom, Qt::Key_Return);
  });
  Programme.Dialogues.Attend("/proc/liste.csv");
  Cliquer("Exporter la liste");
  EXPECT_NE(Programme.Main().Etat().Niveau, TNiveauEtat::Succes) << "no green word of an earlier file";
}

TEST_F(Recapitulatif, TheOtherPages) {
  Ouvrir();
  Aller(pgDetailEntree);
  EXPECT_FALSE(Programme.Main().OutilActif(TOutil::btnPrint)) << "no paper of it";
  auto& arbre = *Programme.Vue<VueRecapitulatif>()->findChild<ArbrePassages*>();
  ASSERT_EQ(arbre.topLevelItemCount(), 1);
  QTreeWidgetItem& anne = *arbre.topLevelItem(0);
  EXPECT_EQ(anne.childCount(), 0) << "lines are made when they are asked for";
  TReglagesEssai::Aller(arbre);
  Touche(Qt::Key_Right);
  ASSERT_EQ(anne.childCount(), 2);
  arbre.header()->setSortIndicator(0, Qt::DescendingOrder);
  EXPECT_EQ(anne.child(0)->text(1), "Garderie") << "her day stays in its order";
  EXPECT_EQ(anne.child(0)->text(2), "07:10");
  Cliquer("Etendre l'arborescence");
  EXPECT_TRUE(anne.isExpanded());
  Cliquer("Réduire l'arborescence");
  EXPECT_FALSE(anne.isExpanded());
  Saisir("dtFin", "03/10/2016");
  Cliquer("Etendre l'arborescence");
  EXPECT_EQ(arbre.topLevelItem(0)->childCount(), 1);
  Saisir("dtFin", "01/09/2016");
  EXPECT_TRUE(Dit("La première date est après la seconde."));

  Aller(pgReleveAnnuel);
  EXPECT_EQ(Ecran().Annuel.Textes(1), (QStringList{"Octobre :", "46,25 €"}))
      << "and three flat rates of midday";
  const auto* diagramme = Programme.Vue<VueRecapitulatif>()->findChild<DiagrammeMois*>();
  EXPECT_TRUE(diagramme->accessibleDescription().contains("Octobre : 46,25"));
  EXPECT_TRUE(Imprime().contains("Relevé annuel"));

  Aller(TabListePaiement);
  Programme.Dialogues.Attend("Veuillez choisir un groupe de paiement dans la liste déroulante");
  Touche(Qt::Key_F8);
  TReglagesEssai::Aller(Controle("cmbGroupePaiement"));
  Touche(Qt::Key_Down);
  EXPECT_EQ(Lignes(Ecran().Paiements), (QStringList{"#BODART Max|P1 A|5,00 €", "Don||5,00 €"}));
  EXPECT_TRUE(Imprime().contains("Relevé des paiements : Fête"));

  Aller(TabContribution);
  EXPECT_EQ(Ecran().Fiscales.NombreLignes(), 0);
  Programme.Dialogues.Attend("Aucune information à imprimer");
  Touche(Qt::Key_F8);

  Aller(TabFrais);
  EXPECT_EQ(Lignes(Ecran().Frais), QStringList{"Piscine|1|Octobre|14,00 €|14,00 €"});
  EXPECT_TRUE(Dit("Coût total des frais sélectionnés : \n0,00"));
  Programme.Dialogues.Attend("Veuillez cocher un ou plusieurs frais dans la liste.");
  Touche(Qt::Key_F8);
  for (auto* grille : Programme.Fenetre().findChildren<VueGrille*>())
    if (grille->isVisible()) TReglagesEssai::Aller(*grille);
  Ecran().Frais.ChoisirLigne(0);
  Touche(Qt::Key_Space);
  EXPECT_TRUE(Dit("Coût total des frais sélectionnés : \n14,00"));
  EXPECT_TRUE(Imprime().contains("Statistique des frais"));
}

TEST_F(Recapitulatif, BalancesAreCarriedOnce) {
  Ecole.parametre(27, "2017");
  Programme.Demarrer();
  Programme.Main().mnuAnneeClick(2016);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton7Click);
  const QString lignes = "SELECT COUNT(*) FROM FRAIS_ELEVE WHERE REMARQUE LIKE '%année scolaire%'";
  const QString positifs = "Transfert des soldes positifs", question = "soldes positifs de 2 élèves ";
  Aller(TabBalancePositive);
  Programme.Dialogues.Repond(question, false);
  Cliquer(positifs);
  EXPECT_EQ(Base.Valeur(lignes), "0");
  Filtrer("bodart");
  Cliquer("Ne rien sélectionner");
  Cliquer("Tout sélectionner");
  Programme.Dialogues.Repond("positifs de 1 élève ", false);
  Cliquer(positifs);
  for (auto* filtre : Programme.Fenetre().findChildren<ChampFiltre*>()) filtre->clear();
  Cliquer("Tout sélectionner");
  Base.Sql("UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 6 WHERE ELEVE_ID = 2");  // by another workstation
  Programme.Dialogues.Repond(question, true);
  Programme.Dialogues.Attend("relisez les données (F5).\n\nDéjà transférés : 0.");
  Cliquer(positifs);
  EXPECT_EQ(Base.Valeur(lignes), "0");
  Base.Sql("UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 5 WHERE ELEVE_ID = 2");
  Programme.Dialogues.Repond(question, true);
  Cliquer(positifs);
  EXPECT_EQ(Base.Valeur(lignes), "2") << "who is not in the working year keeps his balance";
  EXPECT_EQ(Lignes(Ecran().Positives), QStringList{"CLAES Zoé|M1 A|7,00 €||"});
  EXPECT_TRUE(Etat().startsWith("1 solde transféré vers l'année scolaire 2017-2018")) << Etat().toStdString();
  Programme.Dialogues.Repond("positifs de 1 élève ", true);
  Cliquer(positifs);
  EXPECT_EQ(Base.Valeur(lignes), "2");

  Aller(TabImpaye);
  Cliquer("Ne rien sélectionner");
  Programme.Dialogues.Attend("Veuillez cocher un ou plusieurs élèves dans la liste.");
  Cliquer("Transfert des soldes négatifs");
  Cliquer("Tout sélectionner");
  Programme.Dialogues.Repond("transférer les soldes négatifs", true);
  Cliquer("Transfert des soldes négatifs");
  EXPECT_EQ(Base.Valeur(lignes), "4");
  EXPECT_TRUE(Dit("Tous les élèves sont en ordre de paiement."));
  EXPECT_EQ(Base.Valeur("SELECT MONTANT_VERSE FROM FRAIS_ELEVE WHERE REMARQUE = "
                        "'Report de l''année scolaire 2016-2017'"),
            "-15.2500");
}

TEST_F(Recapitulatif, NothingIsCarriedFromAYearToItself) {
  Ouvrir();
  Programme.Dialogues.Attend("L'année affichée est l'année de travail 2016-2017");
  Cliquer("Transfert des soldes négatifs");
}

TEST_F(Recapitulatif, EveryPageIsWithinReachOfTheKeyboard) {
  Ouvrir();
  for (const int page : {TabImpaye, pgDetailEntree, pgReleveAnnuel})  // the others have the form of the first
    VerifierVuePartout([this, page] {
      auto vue = std::make_unique<VueRecapitulatif>(Ecran(), nullptr);
      vue->findChild<QTabWidget*>()->setCurrentIndex(page);
      return vue;
    });
  VueRecapitulatif vue(Ecran(), nullptr);
  vue.resize(Theme::Px(711), Theme::Px(400));  // of the smallest window
  vue.show();
  for (int page = TabImpaye; page <= TabFrais; ++page) {
    vue.findChild<QTabWidget*>()->setCurrentIndex(page);
    QCoreApplication::processEvents();
    EXPECT_EQ(vue.horizontalScrollBar()->maximum(), 0) << page;
  }
}
