#include <gtest/gtest.h>

#include "screens/pupils/frm_import.h"
#include "support/ecran_essai.h"
#include "support/fichier_registre.h"

namespace {

const QString kOuvrir = QStringLiteral("Ouvrir le fichier de données");

/// The screen over a test's database.
class FrmImport : public testing::Test {
 protected:
  void SetUp() override { Form.Montrer(); }
  void Ouvrir(const QString& fichier) {
    Base.Dialogues.Saisit(kOuvrir, fichier);
    Form.btnEtape1Click();
  }
  QString Etats() const {
    QString lettres;
    for (int ligne = 0; ligne < Form.Grille.NombreLignes(); ++ligne)
      lettres += QStringLiteral("-eTR").at(Form.Grille.Ligne(ligne).Etat);
    return lettres;
  }

  TBaseEssai Base;
  TEcranEssai Ecran{Base};
  TFrmImport Form{Ecran.Contexte};
};

}  // namespace

TEST_F(FrmImport, AFileIsShownThenTransferred) {
  EXPECT_FALSE(Form.Etape2Active());
  Ouvrir(TFichierRegistre(1).Mettre(2, 6, QStringLiteral("2010/01/02")).Ecrire(Base));
  ASSERT_EQ(Form.Grille.NombreLignes(), 9);
  EXPECT_EQ(Form.Grille.Ligne(0).Textes,
            (QStringList{"", "1234-1", "Nom 1234-1", "Zoé", "28/02/2010", "P3 B", "SITE", "Père", "Wavre"}));
  EXPECT_EQ(Form.Grille.Texte(1, TFrmImport::Naissance), u"2010/01/02") << "shown as it stands";
  EXPECT_EQ(Form.NombreEleves(), 9);
  EXPECT_EQ(Form.Fichier().Texte, u"Fichier lu : registre.csv");
  EXPECT_TRUE(Form.Etape2Suivante());

  Ouvrir(TFichierRegistre(1).Ecrire(Base));
  // What a view sees while it runs.
  QStringList vus;
  Form.SurChangement = [&] {
    if (!Form.Feuille().Visible) return;
    vus += QStringLiteral("%1 %2/%3 %4")
               .arg(Etats())
               .arg(Form.Feuille().Fait)
               .arg(Form.Feuille().Total)
               .arg(Form.Feuille().Nom);
    EXPECT_FALSE(Form.Etape1Active() || Form.Etape2Active());
    Form.btnEtape1Click();
    Form.btnEtape2Click();
    EXPECT_FALSE(Form.Fermer()) << "nothing starts or closes meanwhile";
    EXPECT_EQ(Ecran.Niveau, TNiveauEtat::Alerte);
  };
  Form.btnEtape2Click();
  ASSERT_EQ(vus.size(), 10);
  EXPECT_EQ(vus[0], u"e-------- 1/9 Nom 1234-1 Zoé");
  EXPECT_EQ(vus[3], u"TTTe----- 4/9 Nom 1234-4 Zoé");
  EXPECT_EQ(Etats(), u"TTTTTTTTT");
  EXPECT_FALSE(Form.Feuille().Visible);
  EXPECT_FALSE(Form.Etape2Active());
  EXPECT_EQ(Form.Fichier().Texte, u"9 élèves transférés : 9 nouveaux, 0 mis à jour");
  EXPECT_EQ(Globals.Eleves->Count(), 9);
  EXPECT_EQ(Globals.EleveCourant, nullptr);
  Form.SurChangement = nullptr;
  EXPECT_TRUE(Form.Fermer());
}

TEST_F(FrmImport, WhyAFileIsNotTaken) {
  TEcoleEssai(Base).unEleve().enClasse(QStringLiteral("P1"), QStringLiteral("A"));
  Ecran.Essai.Controleur.ChargerAnnee(2016);
  Ouvrir(TFichierRegistre(1, 8).Ecrire(Base));
  EXPECT_EQ(Form.Fichier().Texte, u"Fichier trop court : rien à transférer");
  EXPECT_EQ(Form.NombreEleves(), 8);
  EXPECT_FALSE(Form.Etape2Active());

  const QString nouvelle = TFichierRegistre(1).Mettre(1, 16, QStringLiteral("01/07/2017")).Ecrire(Base);
  const QString question = QStringLiteral("Voulez-vous clôturer l'année scolaire 2016-2017 ?");
  Base.Dialogues.Saisit(kOuvrir, nouvelle).Repond(question, false);
  Form.btnEtape1Click();
  EXPECT_EQ(Form.Fichier().Texte, u"Année non clôturée : pas de transfert");
  EXPECT_EQ(Ecran.Niveau, TNiveauEtat::Alerte);
  EXPECT_FALSE(Form.Etape2Active());
  Base.Dialogues.Saisit(kOuvrir, nouvelle).Repond(question, true).Attend(QStringLiteral("est clôturée."));
  Form.btnEtape1Click();
  EXPECT_TRUE(Form.Etape2Active());
  // The rows of that closing stop another one.
  Globals.AnneeScolaire = 2016;
  Base.Dialogues.Saisit(kOuvrir, nouvelle).Repond(question, true);
  EXPECT_THROW(Form.btnEtape1Click(), ECloture);
  EXPECT_EQ(Form.Fichier().Texte, u"Année non clôturée : pas de transfert");
  EXPECT_EQ(Ecran.Niveau, TNiveauEtat::Erreur);
  EXPECT_TRUE(Form.Etape1Active());
  EXPECT_FALSE(Form.Etape2Active());

  // No file, then files that cannot be read: what was shown is gone, and nothing can be transferred.
  Base.Dialogues.Saisit(kOuvrir, {});
  Form.btnEtape1Click();
  EXPECT_EQ(Form.Grille.NombreLignes(), 0);
  EXPECT_FALSE(Form.Etape2Active());
  for (const QString& mauvais :
       {Base.Chemin({}), Base.Fichier(QStringLiteral("b"), QByteArray("a;\0;", 4))}) {
    EXPECT_THROW(Ouvrir(mauvais), Exception);
    EXPECT_TRUE(Form.Fichier().Texte.startsWith(u"Fichier refusé : "));
    EXPECT_TRUE(Form.Etape1Active());
    EXPECT_FALSE(Form.Etape2Active());
  }
  EXPECT_THROW(Ouvrir(TFichierRegistre(1).Mettre(1, 16, QStringLiteral("hier")).Ecrire(Base)), EConvertError);
  EXPECT_EQ(Form.Grille.NombreLignes(), 9) << "the rows are shown, so that one sees what is wrong";
  EXPECT_FALSE(Form.Etape2Active());
}

TEST_F(FrmImport, AFaultStopsAtItsRowAndTheTransferCanBeginAgain) {
  Ouvrir(TFichierRegistre(1).Mettre(5, 14, QStringLiteral("B-1300")).Ecrire(Base));
  EXPECT_THROW(Form.btnEtape2Click(), EConvertError);
  EXPECT_EQ(Etats(), u"TTTTR----");
  EXPECT_EQ(Form.Grille.LigneCourante(), 4);
  EXPECT_TRUE(Form.Feuille().Arretee);
  EXPECT_EQ(Form.Feuille().Titre, u"Arrêté à la ligne 6") << "the header is a line of the file";
  EXPECT_EQ(Ecran.Niveau, TNiveauEtat::Erreur);
  EXPECT_TRUE(Form.Etape2Active());
  EXPECT_FALSE(Form.Etape2Suivante()) << "a mended file comes first";
  EXPECT_EQ(Base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVES")), u"4");

  Ouvrir(TFichierRegistre(1).Ecrire(Base));
  EXPECT_FALSE(Form.Feuille().Visible);
  Form.btnEtape2Click();
  EXPECT_EQ(Form.Fichier().Texte, u"9 élèves transférés : 5 nouveaux, 4 mis à jour");

  // A failure that is no row's marks none.
  Ouvrir(TFichierRegistre(1).Ecrire(Base));
  Base.Sql(QStringLiteral("ALTER TABLE ELEVES ALTER NOM TO NOM_PERDU"));
  EXPECT_THROW(Form.btnEtape2Click(), Exception);
  EXPECT_EQ(Etats(), u"---------");
  EXPECT_EQ(Form.Feuille().Titre, u"Transfert arrêté");
}
