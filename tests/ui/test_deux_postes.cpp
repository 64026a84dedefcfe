// What another workstation changes on the same server while this one has its screen open.
#include <QTreeWidget>

#include "screens/pupils/frm_signaletique.h"
#include "screens/services/frm_liste_frais.h"
#include "screens/services/frm_parametres_garderies.h"
#include "support/serveur_firebird.h"
#include "ui/reglages_essai.h"
#include "ui/services/arbre_coches.h"

namespace {

/// The program on a real server; `Base` is the other workstation.
class DeuxPostes : public TReglagesEssai {
 protected:
  void SetUp() override {
    Base->Deconnecter();
    Base->ServerName = serveur_.Nom();
    Base->Connecter();
    Base.Reglages.Ecrire(TRacine::Machine, u"Serveur"_s, serveur_.Nom());
    for (int i = 1; i < 5; ++i) Ecole.unEleve().enClasse("P1", "A");
  }
  void TearDown() override {  // before the server ends
    Programme.Fermer();
    Base->Deconnecter();
  }
  QString Lignes() {
    return Base.Rangees("SELECT ELEVE_ID, MONTANT_VERSE FROM FRAIS_ELEVE ORDER BY ELEVE_ID, FRAIS_ELEVE_ID")
        .join(' ');
  }
  void CocherEleve(int id) {
    for (ArbreCoches* arbre : Programme.Fenetre().findChildren<ArbreCoches*>())
      for (QTreeWidgetItem* noeud :
           arbre->findItems(u"Eleve%1 "_s.arg(id), Qt::MatchStartsWith | Qt::MatchRecursive)) {
        if (!arbre->isVisible()) continue;
        arbre->setCurrentItem(noeud);
        Aller(*arbre);
        QTest::keyClick(arbre, Qt::Key_Space);
      }
  }

 private:
  TServeurFirebird serveur_;
};

}  // namespace

TEST_F(DeuxPostes, ATariffThatTheOtherHasDeletedIsToldAndWhatWasTypedStays) {
  Ecole.tarif(Essai::Matin, Essai::TousLesJours, "07:00", "08:00", Essai::Forfait, "1", Essai::ScanPresence);
  Ecole.tarif(Essai::Soir, Essai::TousLesJours, "16:00", "18:00", Essai::Heure, "2", Essai::ScanSortie);
  Demarrer(TGestionnaire::AdvGlowButton5Click);
  auto& form = Form<TFrmParametresGarderies>();
  ASSERT_EQ(form.Grille.NombreLignes(), 2);
  Touche(Qt::Key_F2);
  Taper("edCout", "2,5");
  Base.Sql("DELETE FROM TARIF_GARDERIE WHERE TYPE_FAMILLE = 2");
  Programme.Dialogues.Attend("Cette ligne n'existe plus : un autre poste l'a supprimée.");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM TARIF_GARDERIE"), "1") << "nothing comes back by itself";
  EXPECT_EQ(form.Grille.NombreLignes(), 1);
  EXPECT_TRUE(Controle<QLineEdit>("edCout").text().startsWith("2,5")) << "what was typed stays";
  Touche(Qt::Key_F9);
  EXPECT_EQ(Base.Rangees("SELECT TYPE_FAMILLE, COUT FROM TARIF_GARDERIE ORDER BY 1"),
            (QStringList{"1;1.0000", "2;2.5000"}));

  Base.Sql("DELETE FROM TARIF_GARDERIE WHERE TYPE_FAMILLE = 2");
  form.Grille.ChoisirLigne(0);
  Programme.Dialogues.Repond("Voulez-vous supprimer ce tarif ?", true);
  Touche(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(form.Grille.NombreLignes(), 1) << "deleted twice is deleted";
}

TEST_F(DeuxPostes, AFeeSavedOnBothGivesNobodyTwoLines) {
  const int frais = Ecole.frais("Piscine", "10", 10);
  TEleveEssai(Ecole, 1).doit(frais, "10");
  Demarrer(TGestionnaire::AdvGlowButton16Click);
  Touche(Qt::Key_F2);
  TEleveEssai(Ecole, 2).doit(frais, "10");
  Base.Sql("UPDATE LISTE_FRAIS SET LIBELLE = 'de l''autre'");
  CocherEleve(2);
  CocherEleve(3);
  Taper("edLibelle", "de celui-ci");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Lignes(), "1;10.0000 2;10.0000 3;0.0000") << "and what was paid meanwhile stays paid";
  EXPECT_EQ(Base.Valeur("SELECT LIBELLE FROM LISTE_FRAIS"), "de celui-ci") << "the last one wins";

  Base.Sql("DELETE FROM FRAIS_ELEVE");
  Base.Sql("DELETE FROM LISTE_FRAIS");
  Touche(Qt::Key_F2);
  Taper("edMontant", "12");
  Programme.Dialogues.Attend("Cette ligne n'existe plus : un autre poste l'a supprimée.");
  Touche(Qt::Key_F9);
  EXPECT_EQ(Lignes(), "") << "no line without its fee";
  EXPECT_EQ(Form<TFrmListeFrais>().Mode(), TModeEdition::Modification);
  EXPECT_TRUE(Controle<QLineEdit>("edMontant").text().startsWith("12"));
  Form<TFrmListeFrais>().Annuler();
}

TEST_F(DeuxPostes, ARecordFollowsAfterF5AndSaysWhatIsGone) {
  TEleveEssai(Ecole, 2).nomme("Zorn", "Ada").paie("5", 10, 0, "Acompte");
  Demarrer(TGestionnaire::AdvGlowButton2Click);
  Programme.Main().edSearchChange("zorn");
  auto& fiche = Form<TFrmSignaletique>();
  ASSERT_EQ(fiche.Frais.Grille.NombreLignes(), 1);
  Base.Sql("UPDATE ELEVES SET NOM = 'Zornig' WHERE ELEVE_ID = 2");
  TEleveEssai(Ecole, 2).paie("7", 10, 0, "Solde");
  EXPECT_EQ(fiche.NomComplet(), "Zorn Ada") << "what is loaded does not change by itself";
  Touche(Qt::Key_F5);
  auto& relue = Form<TFrmSignaletique>();
  EXPECT_EQ(relue.NomComplet(), "Zornig Ada") << "the same pupil, read again";
  EXPECT_EQ(relue.Frais.Grille.NombreLignes(), 2);

  Base.Sql("DELETE FROM FRAIS_ELEVE WHERE REMARQUE = 'Acompte'");
  relue.Frais.Grille.ChoisirLigne(0);
  Programme.Dialogues.Repond("Confirmez-vous la suppression du paiement de 5,00 euros (Acompte)", true);
  relue.SpeedButton2Click();
  EXPECT_EQ(relue.Frais.Grille.NombreLignes(), 1) << "deleted by both";

  Base.Sql("DELETE FROM ELEVES_CLASSES WHERE ELEVE_ID = 2");
  Base.Sql("DELETE FROM ELEVES WHERE ELEVE_ID = 2");
  Programme.Dialogues.Attend("Cet élève n'existe plus : un autre poste l'a supprimé.");
  relue.Champs().Choisir(relue.Champs().Indice("cbEleveRadie"), 1);
  EXPECT_EQ(Etat(), "Non enregistré : Élève radié");
  Touche(Qt::Key_F5);
  EXPECT_EQ(Programme.Main().NombreEleves(), 3);
}
