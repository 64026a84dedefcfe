// The settings and the school, typed in and read back.
#include "screens/parametres/frm_mon_ecole.h"
#include "screens/parametres/frm_parametres.h"
#include "ui/parametres/vue_mon_ecole.h"
#include "ui/parametres/vue_parametres.h"
#include "ui/reglages_essai.h"

namespace {

class Parametres : public TReglagesEssai {
 protected:
  void SetUp() override { Ecole.unEleve().enClasse("P1", "A"); }
  void Ouvrir() { Demarrer(TGestionnaire::AdvGlowButton6Click); }
};

class MonEcole : public TReglagesEssai {
 protected:
  void SetUp() override { Ecole.unEleve().enClasse("P1", "A", "S1"); }
};

}  // namespace

TEST_F(Parametres, EachFieldWritesItsSetting) {
  Ecole.parametre(56, "  abc ");
  Ouvrir();
  const QString champs =
      "memFacture 10  Merci |edRepasMaternel 101 2,2|edRepasPrimaire 102  3,10 |edProvisionGarderie 56 12.5|"
      "edProvisionFrais 57 7|memFraisEffectifs 26 Voici|edVirementBeneficiaire 50 É|edVirementIBAN 51 BE68 1|"
      "edVirementBIC 52 GKCC|edVirementAdresse 53 Rue 1|edVirementCodePostal 54 5|edVirementLocalite 55 "
      "Namur|edUserFTP 34 moi|edMdpFTP 35 secret";
  for (const QString& champ : champs.split('|')) {
    const QString tape = champ.section(' ', 2);
    Saisir(champ.section(' ', 0, 0), tape);
    EXPECT_EQ(Parametre(champ.section(' ', 1, 1).toInt()), tape.trimmed()) << champ.toStdString();
  }
  EXPECT_EQ(Controle<QLineEdit>("edMdpFTP").displayText().contains(u's'), false);
  for (const auto& [nom, id] : {std::pair("cbDatePaiement", 32), std::pair("cbFactureModeProvision", 25),
                                std::pair("cbGarderieUnique", 30), std::pair("cbBalance", 42),
                                std::pair("cbImpressionService", 24)}) {
    for (const char* valeur : {"1", "0", "1"}) {
      Cocher(nom);
      EXPECT_EQ(Parametre(id), valeur) << nom;
    }
  }
  Cocher("cbFactureModeProvision");
  EXPECT_TRUE(Etat().contains("chargée à nouveau")) << Etat().toStdString();
  Choisir("cmbTypeCompteBancaire", 2);
  EXPECT_EQ(Parametre(58), "2");
  Choisir("cmbTypeCompteBancaire", 0);
  EXPECT_EQ(Parametre(58), "");
  Choisir("cmbCodeBarre", 1);
  EXPECT_EQ(Parametre(28), "2");
  // What counts at once.
  EXPECT_EQ(Globals.Presences->Regles.PrixRepas[1].EnBrut(), 22000);
  EXPECT_EQ(Globals.Presences->Regles.PrixRepas[2].EnBrut(), 31000);
  EXPECT_TRUE(Globals.Presences->Regles.GarderieUnique);
  // A field that is left as it was is written all the same: another workstation has changed it.
  Base.Sql("UPDATE PARAMETRE SET VALEUR = 'autre' WHERE PARAMETRE_ID = 50");
  Aller(Controle("edVirementBeneficiaire"));
  Touche(Qt::Key_Tab);
  EXPECT_EQ(Parametre(50), "É");
  EXPECT_FALSE(Etat().startsWith("Enregistré : Nom du")) << "but nothing was typed";
  // The address of the remote site is written at each key.
  Taper("edServeurFTP", "ftp.e");
  EXPECT_EQ(Parametre(33), "ftp.e");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
  EXPECT_EQ(Parametre(33), "ftp.");
}

TEST_F(Parametres, AMealPriceThatIsNoneIsNeverStored) {
  Ecole.parametre(101, "2,20");
  Ouvrir();
  for (const char* mauvais : {"abc", "2.20", "1e3", "2,2,2"}) {
    Saisir("edRepasMaternel", mauvais);
    EXPECT_EQ(Globals.Parametres->GetParametre(TParam::RepasMaternel), mauvais) << "in memory only";
    EXPECT_EQ(Parametre(101), "2,20");
    EXPECT_TRUE(Etat().startsWith("Non enregistré")) << Etat().toStdString();
    EXPECT_EQ(Controle<QLineEdit>("edRepasMaternel").text(), mauvais);
    EXPECT_TRUE(Controle("edRepasMaternel").hasFocus());
    QTest::mouseClick(&Controle("cbBalance"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(Globals.Parametres->GetParametre(TParam::RepasMaternel), "2,20");
    EXPECT_EQ(Parametre(101), "2,20");
    EXPECT_EQ(Controle<QLineEdit>("edRepasMaternel").text(), mauvais) << "nothing typed is lost";
  }
  Saisir("edRepasMaternel", "");
  EXPECT_EQ(Parametre(101), "");
  EXPECT_EQ(Globals.Presences->Regles.PrixRepas[1].EnBrut(), 0) << "no price";
  Saisir("edRepasMaternel", "x");
  Programme.Dialogues.Repond("n'est pas enregistré", true);
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_EQ(Globals.Parametres->GetParametre(TParam::RepasMaternel), "") << "or no year could be loaded";
  EXPECT_EQ(Programme.Vue<VueParametres>(), nullptr);
}

TEST_F(Parametres, ABadSettingOfTheLoadIsMendedWithoutAYear) {
  Ecole.parametre(101, "abc");
  Programme.Dialogues.Attend("Paramètre 101 : « abc » n'est pas un montant");
  Programme.Demarrer();
  EXPECT_EQ(Globals.Eleves, nullptr);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton3Click);
  EXPECT_EQ(Programme.Vue<VueMonEcole>(), nullptr);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton6Click);
  EXPECT_EQ(Controle<QLineEdit>("edRepasMaternel").text(), "abc");
  Cocher("cbBalance");
  EXPECT_EQ(Parametre(42), "1");
  Saisir("edRepasMaternel", "2,5");
  EXPECT_EQ(Parametre(101), "2,5");
  Programme.Main().mnuAnneeClick(2016);
  EXPECT_EQ(Globals.Eleves->Count(), 1);
}

TEST_F(Parametres, WhatIsInsertedStandsAtTheCaretAndFits) {
  Ecole.parametre(10, "1\r\n2\r\nAB");
  Ecole.parametre(26, QString(300, 'x'));
  Ouvrir();
  auto& facture = Controle<QPlainTextEdit>("memFacture");
  Aller(facture);
  facture.moveCursor(QTextCursor::End);
  QTest::keyClick(&facture, Qt::Key_Left);
  Cliquer("Insérer la communication structurée");
  EXPECT_EQ(facture.toPlainText(), "1\n2\nA[ComStructParFacture]B");
  EXPECT_TRUE(facture.hasFocus());
  EXPECT_EQ(Parametre(10), "1\r\n2\r\nAB");
  QTest::keyClicks(&facture, "-");
  Touche(Qt::Key_Tab);
  EXPECT_EQ(Parametre(10), "1\n2\nA[ComStructParFacture]-B");
  Saisir("memFacture", "Merci ");
  Cliquer("Insérer la communication structurée");
  EXPECT_EQ(facture.toPlainText(), "Merci[ComStructParFacture]")
      << "what is stored is trimmed, the caret stays";

  auto& effectifs = Controle<QPlainTextEdit>("memFraisEffectifs");
  Programme.Dialogues.Attend("1000 au plus");
  Cliquer("Ajouter le texte légal");
  EXPECT_EQ(effectifs.toPlainText(), QString(300, 'x')) << "as it was";
  Saisir("memFraisEffectifs", "Voici");
  Cliquer("Ajouter le texte légal");
  EXPECT_TRUE(Parametre(26).startsWith("Voici\nFaisant suite à la circulaire 4516")) << "stored at once";
  EXPECT_TRUE(Parametre(26).endsWith("en passe d’être payées.</b>"));
  Aller(effectifs);
  QApplication::processEvents();
  effectifs.setPlainText(QString());
  QTest::keyClicks(&effectifs, "y");
  effectifs.insertPlainText(QString(1200, 'z'));
  EXPECT_EQ(effectifs.toPlainText().size(), 1000) << "no more than the setting keeps";
}

TEST_F(Parametres, GroupsComeAndGo) {
  Base.Sql("INSERT INTO GROUPE_FRAIS VALUES (900, 'Galettes')");
  Ecole.unEleve().paie("7", 11, 1, "Vente");
  Base.Sql("UPDATE FRAIS_ELEVE SET GROUPE_FRAIS_ID = 900");
  Ouvrir();
  auto& form = Form<TFrmParametres>();
  for (const QString& nom : {QString("  "), QString(251, 'n'), QString("Tombola")})
    Programme.Dialogues.Saisit("Veuillez entrer le nom de votre groupe", nom);
  form.btnAjoutFaitClick();
  EXPECT_EQ(Base.Rangees("SELECT LIBELLE FROM GROUPE_FRAIS ORDER BY LIBELLE"),
            (QStringList{"Galettes", "Tombola"}));
  form.lbGroupe.ChoisirLigne(0);
  Programme.Dialogues.Repond("Confirmez-vous la suppression du groupe: Galettes?", false);
  form.btnDeleteFaitClick();
  EXPECT_EQ(form.lbGroupe.NombreLignes(), 2);
  Programme.Dialogues.Repond("Confirmez-vous la suppression du groupe: Galettes?", true);
  form.btnDeleteFaitClick();
  EXPECT_EQ(Base.Rangees("SELECT LIBELLE FROM GROUPE_FRAIS"), QStringList("Tombola"));
  EXPECT_EQ(Base.Valeur("SELECT GROUPE_FRAIS_ID FROM FRAIS_ELEVE"), "900") << "the payment is left as it is";
}

TEST_F(Parametres, MaintenanceByMouseAndKeyboard) {
  Ecole.parametre(41, "1");
  Ouvrir();
  Controle("edServeurFTP");  // shows its page
  auto* etape1 = BoutonDe(Programme.Fenetre(), "Mise à jour de la base de données");
  Programme.Dialogues.Attend("Votre base de données est à jour !");
  Cliquer("Mise à jour de la base de données");
  Programme.Dialogues.Saisit("Paramètre", "113").Saisit("Valeur actuelle : ", "1");
  QTest::mouseClick(etape1, Qt::RightButton, Qt::ShiftModifier);
  EXPECT_EQ(Parametre(113), "1");
  Programme.Dialogues.Saisit("Paramètre", "41").Saisit("Valeur actuelle : 1", "0");
  Aller(*etape1);
  QTest::keyClick(etape1, Qt::Key_Menu, Qt::ShiftModifier);
  EXPECT_EQ(Parametre(41), "0");
  EXPECT_EQ(BoutonDe(Programme.Fenetre(), "Activer le mode professeur"), nullptr)
      << "not where meals are not used";
  Programme.Dialogues.Saisit("Paramètre", "113").Saisit("Valeur actuelle : 1", "");
  QTest::keyClick(etape1, Qt::Key_Menu, Qt::ShiftModifier);
  EXPECT_EQ(Base.Rangees("SELECT TRIM(VALEUR) FROM PARAMETRE WHERE PARAMETRE_ID = 113"), QStringList(""));
  Programme.Dialogues.Saisit("Paramètre", "abc")
      .Saisit("Paramètre", "0")
      .Clique("« 0 » n'est pas le numéro", "Annuler");
  QTest::keyClick(etape1, Qt::Key_Menu, Qt::ShiftModifier);
  QTest::mouseClick(etape1, Qt::RightButton);

  auto& form = Form<TFrmParametres>();
  Programme.Dialogues.Repond("mode professeur", false);
  form.btnBoutonProfesseurClick();
  EXPECT_EQ(Base.Reglages.Lire(TRacine::Utilisateur, "Mode"), "");
  Programme.Dialogues.Repond("mode professeur", true);
  form.btnBoutonProfesseurClick();
  EXPECT_EQ(Base.Reglages.Lire(TRacine::Utilisateur, "Mode"), "1");
}

TEST_F(MonEcole, EachFieldWritesItsSetting) {
  Demarrer(TGestionnaire::AdvGlowButton3Click);
  EXPECT_EQ(Base.Valeur("SELECT COUNT(*) FROM PARAMETRE"), "3") << "opening adds no row";
  const QStringList champs =
      u"edNomEcole 1 edEcoleAdresse 2 edEcoleCodePostal 3 edEcoleLocalite 4 edEcoleTelephone 5 "
      u"edImplantation "
      "9 edCompteBancaire 11 edHeureDebutLMJV 12 edMinuteDebutLMJV 13 edHeureFinLMJV 14 edMinuteFinLMJV 15 "
      "edHeureDebutMercredi 16 edMinuteDebutMercredi 17 edHeureFinMercredi 18 edMinuteFinMercredi 19 edEmail "
      "20 edNomDirection 21 edPrenomDirection 22 edTitreDirection 23 edNumeroEntreprise 117"_s.split(u' ');
  for (int i = 0; i < champs.size(); i += 2) {
    Saisir(champs[i], u" 0%1 "_s.arg(champs[i + 1]));
    EXPECT_EQ(Parametre(champs[i + 1].toInt()), u"0%1"_s.arg(champs[i + 1])) << champs[i].toStdString();
  }
  EXPECT_TRUE(Etat().contains("n'est pas un numéro d'entreprise")) << Etat().toStdString();
  Programme.Main().AllerAEcole("edNumeroEntreprise");
  EXPECT_TRUE(Controle<QLineEdit>("edNumeroEntreprise").hasFocus()) << "whence a paper lacks it";
  Saisir("edNumeroEntreprise", "0999.999.922");
  EXPECT_FALSE(Etat().contains("n'est pas")) << Etat().toStdString();
  Saisir("edHeureFinLMJV", "25");
  EXPECT_EQ(Parametre(14), "25");
  EXPECT_TRUE(Etat().contains("n'est pas une heure")) << Etat().toStdString();
}

TEST_F(MonEcole, ASiteTakesItsShortNameAndTheTreeFollowsOnClosing) {
  for (const char* site : {"90, 'S1', 'Centre', 'Rue Haute'", "91, 'S2', 'Gare', 'Quai'"})
    Base.Sql(
        "INSERT INTO IMPLANTATION (IMPLANTATION_ID, CODE_IMPLANTATION, LIBELLE_COURT, ADRESSE) VALUES (" +
        QString(site) + ')');
  Demarrer(TGestionnaire::AdvGlowButton2Click);
  Programme.Ouvrir(TGestionnaire::AdvGlowButton3Click);
  Saisir("edLibelleCourt", "Tilleuls");
  const QString site = "SELECT LIBELLE_COURT || ADRESSE FROM IMPLANTATION WHERE CODE_IMPLANTATION = 'S1'";
  EXPECT_EQ(Base.Valeur(site), "TilleulsRue Haute");
  EXPECT_EQ(Form<TFrmMonEcole>().grdImplantation.Texte(0, 1), "Tilleuls");
  TArbre& arbre = Programme.Main().Arbre;
  EXPECT_EQ(arbre.Premier()->Texte, "Centre");
  Programme.Ouvrir(TGestionnaire::AdvGlowButton2Click);
  EXPECT_EQ(arbre.Premier()->Texte, "Tilleuls") << "the record comes in front of a screen that stays open";
  Programme.Ouvrir(TGestionnaire::AdvGlowButton3Click);
  Saisir("edLibelleCourt", "Orme");
  QString fermee;  // the tree when the screen goes, before the one that comes makes it look at the sites
  const TLien lien = Programme.Main().Panneau.SurEtape.Suivre([&](TForm&, TEtapeForm etape) {
    if (etape == TEtapeForm::Liberee && fermee.isEmpty()) fermee = arbre.Premier()->Texte;
  });
  Programme.Ouvrir(TGestionnaire::AdvGlowButton5Click);
  EXPECT_EQ(fermee, "Orme");
  Programme.Ouvrir(TGestionnaire::AdvGlowButton3Click);
  Base.Sql("DELETE FROM IMPLANTATION WHERE CODE_IMPLANTATION = 'S1'");
  Saisir("edLibelleCourt", "Autre");
  EXPECT_TRUE(Etat().contains("un autre poste l'a supprimée")) << Etat().toStdString();
  Programme.Dialogues.Repond("n'est pas enregistré", true);
}

TEST_F(Parametres, NothingIsMissedByKeyboardOrReader) {
  Ecole.parametre(41, "1");
  Ouvrir();
  VerifierVuePartout([this] { return std::make_unique<VueParametres>(Form<TFrmParametres>(), nullptr); });
  Programme.Ouvrir(TGestionnaire::AdvGlowButton3Click);
  VerifierVuePartout([this] { return std::make_unique<VueMonEcole>(Form<TFrmMonEcole>(), nullptr); });
}
