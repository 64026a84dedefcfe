#include "screens/pupils/frm_import.h"
#include "support/ecran_essai.h"
#include "support/fichier_registre.h"

namespace {

const QString kOuvrir = u"Ouvrir le fichier de données"_s;

/// The screen over a test's database.
class FrmImport : public testing::Test {
 protected:
  void SetUp() override { Form.Montrer(); }
  /// None: the dialog is given up.
  void Ouvrir(const std::optional<QString>& fichier) {
    Base.Dialogues.Saisit(kOuvrir, fichier);
    Form.btnEtape1Click();
  }
  QString Etats() const {
    QString lettres;
    for (int ligne = 0; ligne < Form.Grille.NombreLignes(); ++ligne)
      lettres += u"-eTRNMIXP"_s.at(Form.Grille.Ligne(ligne).Etat);
    return lettres;
  }

  TBaseEssai Base;
  TEcranEssai Ecran{Base};
  TFrmImport Form{Ecran.Contexte};
};

}  // namespace

TEST_F(FrmImport, AFileIsShownAsItStands) {
  Ouvrir(TFichierRegistre(1).Mettre(2, 6, u"2010/01/02"_s).Ecrire(Base));
  EXPECT_EQ(Form.Grille.Textes(0), (QStringList{"Nouveau", "1234-1", "Nom 1234-1", "Zoé", "28/02/2010",
                                                "P3 B", "SITE", "Père", "Wavre"}));
  EXPECT_EQ(Form.Grille.Texte(1, TFrmImport::Naissance), u"2010/01/02");
  EXPECT_EQ(Form.Effet(), u"8 nouveaux, 1 illisible") << "told before anything is written";
}

// Short files, an answer of "Non" and files that are no register: in the tests of the window.
TEST_F(FrmImport, AClosingThatFailsIsNoTransfer) {
  TEcoleEssai(Base).unEleve().enClasse(u"P1"_s, u"A"_s);
  const QString nouvelle = TFichierRegistre(1).Mettre(1, 16, u"01/07/2017"_s).Ecrire(Base);
  const QString question = u"Voulez-vous clôturer l'année scolaire 2016-2017 ?"_s;
  Ecran.Essai.Controleur.ChargerAnnee(2016);
  Base.Dialogues.Saisit(kOuvrir, nouvelle).Repond(question, true).Attend(u"est clôturée."_s);
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

  EXPECT_THROW(Ouvrir(TFichierRegistre(1).Mettre(1, 16, u"hier"_s).Ecrire(Base)), EConvertError);
  EXPECT_EQ(Form.Grille.NombreLignes(), 9) << "the rows are shown, so that one sees what is wrong";
  EXPECT_FALSE(Form.Etape2Active());
  Ouvrir({});
  EXPECT_EQ(Form.Grille.NombreLignes(), 0) << "what was shown is gone";
}

TEST_F(FrmImport, AFailureThatIsNoRowsMarksNone) {
  Ouvrir(TFichierRegistre(1).Ecrire(Base));
  Base.Sql(u"ALTER TABLE ELEVES ALTER NOM TO NOM_PERDU"_s);
  EXPECT_THROW(Form.btnEtape2Click(), Exception);
  EXPECT_EQ(Etats(), u"---------");
  EXPECT_EQ(Form.Feuille().Titre, u"Transfert arrêté");
}

TEST_F(FrmImport, WhoIsGoneStandsInTheListUntilTheTransfer) {
  TEcoleEssai(Base).unEleve().nomme(u"PARTI"_s, u"Luc"_s).enClasse(u"P1"_s, u"A"_s);
  Ouvrir(TFichierRegistre(1).Ecrire(Base));
  EXPECT_EQ(Form.Effet(), u"9 nouveaux, 1 parti (en fin de liste)");
  EXPECT_EQ(Etats(), u"NNNNNNNNNP");
  EXPECT_EQ(Form.Grille.Texte(9, TFrmImport::Nom), u"PARTI");
  Form.btnEtape2Click();
  EXPECT_EQ(Etats(), u"TTTTTTTTT") << "nothing is done to who is not in the file";
}

TEST_F(FrmImport, APupilWithoutASiteIsTold) {
  Ouvrir(TFichierRegistre(1).Mettre(3, 1, {}).Ecrire(Base));
  EXPECT_EQ(Form.Effet(), u"9 nouveaux, 1 sans implantation");
  Base.Dialogues.Attend(u"1 élève importé n'a pas d'implantation :\nNom 1234-3 Zoé"_s);
  bool bande = true;  // the last that the view heard before the message
  const TLien lien = Form.SurChangement.Suivre([&] {
    if (Base.Dialogues.Dits.isEmpty()) bande = Form.Feuille().Visible;
  });
  Form.btnEtape2Click();
  EXPECT_FALSE(bande) << "the band does not stand behind the message";
}
