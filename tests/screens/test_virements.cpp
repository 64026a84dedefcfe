// The movements of the year, the file that brings them, and by hand whom they went to.

#include "screens/payments/frm_attribution_virement.h"
#include "screens/payments/frm_repartition.h"
#include "screens/payments/frm_virement.h"
#include "support/ecran_essai.h"
#include "support/fichier_camt.h"
#include "support/grilles.h"

namespace {

/// Two namesakes in different classes, a third pupil, and one of another year (4).
struct FrmVirement : TEssaiEcole {
  FrmVirement() {
    ecole.unEleve().nomme(u"DUPONT"_s, u"Zoé"_s).enClasse(u"P2"_s, u"B"_s);
    ecole.unEleve().nomme(u"DUPONT"_s, u"Zoé"_s).enClasse(u"P1"_s, u"A"_s);
    ecole.unEleve().nomme(u"LAMBERT"_s, u"Élise"_s).enClasse(u"P3"_s, u"A"_s);
    ecole.unEleve().nomme(u"PARTI"_s, u"Luc"_s);
    ecole.Ajouter(u"GROUPE_FRAIS"_s, u"GROUPE_FRAIS_ID, LIBELLE"_s, {u"'Classes de mer'"_s});
  }
  /// A movement of that day of October; returns its key.
  int Mouvement(const QString& donneur, int jour, bool cache = false) {
    const int id = ecole.mouvement(donneur, u"2016-10-%1"_s.arg(jour), u"12.5"_s, u"BE68"_s, u"merci"_s);
    if (cache) base.Sql(u"UPDATE EXTRAITS SET FLG_IGNORE = 1 WHERE EXTRAIT_ID = %1"_s.arg(id));
    return id;
  }
  void Credit(int extrait, int eleve, int annee = 2016) {
    ecole.Ajouter(u"FRAIS_ELEVE"_s, u"FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, EXTRAIT_ID, MONTANT_VERSE"_s,
                  {QString::number(eleve), QString::number(annee), QString::number(extrait), u"12.5"_s});
  }
  TFrmVirement& Ouvrir() {
    Ecran.Essai.Charger();
    Form = std::make_unique<TFrmVirement>(Ecran.Contexte);
    Form->Montrer();
    return *Form;
  }
  /// The first step, on a file of layout A with these lines; the message that it gives.
  void Etape1(const QByteArray& lignes, const QString& message = {}) {
    base.Dialogues.Saisit(u"Importer vos virements"_s,
                          base.Fichier(u"releve.csv"_s, QByteArray(";\n").repeated(13) + lignes));
    if (!message.isEmpty()) base.Dialogues.Attend(message);
    Form->btnEtape1Click();
  }
  /// Payer, pupil and state of each row of the history.
  QStringList Historique() const {
    QStringList lignes;
    for (int i = 0; i < Form->Historique.NombreLignes(); ++i) {
      const QStringList textes = Form->Historique.Textes(i);
      lignes += textes[TFrmVirement::Donneur] % u'|' % textes[TFrmVirement::Eleve] % u'|' % textes.last();
    }
    return lignes;
  }
  QString Comptes() const {
    return u"%1 %2 %3"_s.arg(Form->lblCompta()).arg(Form->lblInconnu()).arg(Form->lblTotal());
  }
  QString Extrait(const QString& colonne, int id) {
    return base.Valeur(u"SELECT %1 FROM EXTRAITS WHERE EXTRAIT_ID = %2"_s.arg(colonne).arg(id));
  }
  /// Payments of that pupil to the group.
  static int Details(int eleve) {
    TGroupeFrais::TDetails details;
    return (*Globals.GroupesFrais)[0].DetailsPaiement(details, eleve);
  }
  /// In the dialog over the current row.
  void Attribuer(const std::function<void(TFrmAttributionVirement&)>& faire) {
    Ecran.SurModale = [faire](TForm& form) {
      faire(dynamic_cast<TFrmAttributionVirement&>(form));
      form.Fermer();
    };
    Form->grdHistoriqueDblClick();
  }

  TEcranEssai Ecran{base};
  std::unique_ptr<TFrmVirement> Form;
};

}  // namespace

TEST_F(FrmVirement, TheHistoryShowsCountsAndHides) {
  const int inconnu = Mouvement(u"A"_s, 3), comptabilise = Mouvement(u"B"_s, 4);
  const int cache = Mouvement(u"C"_s, 28, true), ailleurs = Mouvement(u"D"_s, 5);
  Credit(comptabilise, 3);
  Credit(cache, 3);
  Credit(ailleurs, 4, 2015);
  Ouvrir();
  EXPECT_EQ(Form->TitreHistorique(), u"Récapitulatif du 03/10/2016 au 28/10/2016") << "the hidden one too";
  const QStringList tous{u"A||Inconnu"_s, u"B|LAMBERT Élise|Comptabilisé"_s,
                         u"D|élève d'une autre année|Comptabilisé"_s};
  EXPECT_EQ(Historique(), tous);
  EXPECT_EQ(Comptes(), u"2 1 3");
  EXPECT_EQ(Form->Historique.Textes(0).mid(1, 4), (QStringList{"03/10/2016", "12,50 €", "merci", "BE68"}));

  Form->btnComptabiliseClick();
  EXPECT_EQ(Historique(), QStringList{tous[0]});
  EXPECT_EQ(Comptes(), u"2 1 3") << "the filters change no count";
  Form->btnInconnuClick();
  EXPECT_EQ(Historique(), QStringList());
  Form->btnComptabiliseClick();
  EXPECT_EQ(Historique(), tous.mid(1));
  Form->btnInconnuClick();

  Form->mnuAfficheMouvementClick();
  EXPECT_EQ(Historique()[2], u"C|LAMBERT Élise|Caché") << "hidden goes before accounted";
  EXPECT_EQ(Comptes(), u"3 1 4");
  Form->Historique.ChoisirLigne(0);
  Form->Supprimerlextrait1Click();
  EXPECT_EQ(Historique()[0], u"A||Caché") << "shown again, it stays";
  EXPECT_EQ(Extrait(u"FLG_IGNORE"_s, inconnu), u"1");
  EXPECT_EQ(Form->lblInconnu(), 1);
  base.Dialogues.Attend(u"Vous ne pouvez pas cacher un mouvement comptabilisé !"_s);
  Form->Historique.ChoisirLigne(1);
  Form->Supprimerlextrait1Click();
  EXPECT_EQ(Extrait(u"FLG_IGNORE"_s, comptabilise), QString()) << "never 0";

  Form->Compteresponsable21Click();
  EXPECT_EQ(Form->Historique.Texte(1, TFrmVirement::Resp), u"2");
  EXPECT_EQ(Extrait(u"TYPE_RESPONSABLE"_s, comptabilise), u"2");
}

TEST_F(FrmVirement, ARowThatGoesGivesItsPlaceToTheNextOnTheScreen) {
  const int a = Mouvement(u"A"_s, 3), b = Mouvement(u"B"_s, 4), c = Mouvement(u"C"_s, 5);
  Credit(c, 3);
  Ouvrir();
  const TLien aRebours =
      Form->SurOrdre.Suivre([](std::vector<int>& lignes) { std::ranges::reverse(lignes); });
  // The file in the preview holds a movement that leaves the year.
  Etape1("x;04/10/2016;;;BE68;B;;;;;12,50;EUR;;;merci\n");
  ASSERT_EQ(Form->Apercu.NombreLignes(), 1);
  Form->Historique.ChoisirLigne(1);
  base.Sql(u"ALTER TABLE EXTRAITS ADD CONSTRAINT PAS_2017 CHECK (ANNEE_SCOLAIRE <> 2017)"_s);
  EXPECT_THROW(Form->AnneeSuivanteClick(), Exception);
  Form->Cocher(0, false);
  EXPECT_EQ(Form->Apercu.NombreLignes() + Form->TotalEtape2(), 1 + 2) << "refused, it stays";
  base.Sql(u"ALTER TABLE EXTRAITS DROP CONSTRAINT PAS_2017"_s);
  Form->AnneeSuivanteClick();
  EXPECT_EQ(Extrait(u"ANNEE_SCOLAIRE"_s, b), u"2017");
  EXPECT_EQ(Form->Apercu.NombreLignes(), 0);
  EXPECT_EQ(Historique(), (QStringList{"A||Inconnu", "C|LAMBERT Élise|Comptabilisé"}));
  EXPECT_EQ(Form->Courant()->Id, a);
  EXPECT_EQ(Comptes(), u"1 1 3");
  Form->Historique.ChoisirLigne(1);
  Form->AnneePrecedenteClick();
  EXPECT_EQ(Extrait(u"ANNEE_SCOLAIRE"_s, c), u"2015");
  EXPECT_EQ(Ecran.Etats.last(), u"Mouvement attribué à 2015-2016 ; son paiement reste en 2016-2017");
  EXPECT_EQ(Comptes(), u"1 0 3") << "whatever its state was";
  Form->Historique.ChoisirLigne(0);
  Form->Supprimerlextrait1Click();
  EXPECT_EQ(Historique(), QStringList());
  Form->Supprimerlextrait1Click();
  EXPECT_EQ(Ecran.Niveau, TNiveauEtat::Alerte);
}

// The screen may stand open all day.
TEST_F(FrmVirement, WhatAnotherWorkstationHasGivenOrStoredIsSeen) {
  const int a = Mouvement(u"A"_s, 3);
  Ouvrir();
  Form->Historique.ChoisirLigne(0);
  Credit(a, 3);
  base.Dialogues.Attend(u"Vous ne pouvez pas cacher un mouvement comptabilisé !"_s);
  Form->Supprimerlextrait1Click();
  EXPECT_EQ(Extrait(u"FLG_IGNORE"_s, a), QString());
  EXPECT_EQ(Historique(), QStringList{u"A|LAMBERT Élise|Comptabilisé"_s});

  const int b = Mouvement(u"B"_s, 4);
  Credit(b, 3);
  Etape1("x;04/10/2016;;;BE68;B;;;;;12,50;EUR;;;merci\n");
  EXPECT_EQ(Form->Apercu.Texte(0, TFrmVirement::Eleve), u"LAMBERT Élise");
  Form->btnEtape2Click();
  EXPECT_EQ(Historique(),
            (QStringList{u"A|LAMBERT Élise|Comptabilisé"_s, u"B|LAMBERT Élise|Comptabilisé"_s}));
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM EXTRAITS"_s), u"2");
}

TEST_F(FrmVirement, ByHandToAPupilAndOnToTheNext) {
  const int c = Mouvement(u"C"_s, 5), a = Mouvement(u"A"_s, 3), b = Mouvement(u"B"_s, 4);
  Mouvement(u"D"_s, 6, true);
  Ouvrir();
  Form->mnuAfficheMouvementClick();
  const TLien ordre = Form->SurOrdre.Suivre([](std::vector<int>& lignes) {
    lignes = {1, 2, 0, 3};
  });  // A, B, C, D
  Form->Historique.ChoisirLigne(1);
  Attribuer([&](TFrmAttributionVirement& dialogue) {
    // Whose movement is shown after each button.
    const auto avant = [&] { return dialogue.Button1Click(), dialogue.lblDonneurOrdre(); };
    const auto valide = [&] { return dialogue.Button3Click(), dialogue.lblDonneurOrdre(); };
    const auto apres = [&] { return dialogue.Button2Click(), dialogue.lblDonneurOrdre(); };
    EXPECT_EQ(dialogue.lblDonneurOrdre(), u"A");
    EXPECT_EQ(dialogue.lblMontant(), u"12,50 €");
    EXPECT_EQ(dialogue.Champs().Texte(0), u"Votre virement du 03/10/2016");
    EXPECT_EQ(dialogue.lblClasse(), QString());
    EXPECT_EQ(avant(), u"A") << "nothing before it";
    EXPECT_EQ(valide(), u"B") << "without a pupil it goes on";
    dialogue.Button1Click();

    dialogue.LUCombo1Change(u"zoe du"_s);
    ASSERT_EQ(dialogue.LUCombo1.NombreLignes(), 2) << "namesakes are two";
    dialogue.LUCombo1Change(u"dup"_s);
    dialogue.LUCombo1.ChoisirLigne(dialogue.LUCombo1.Texte(0, 1) == u"P1 A" ? 0 : 1);
    EXPECT_EQ(dialogue.lblClasse(), u"P1 A");
    dialogue.Champs().Choisir(1, 2);  // services
    dialogue.Champs().Choisir(2, 1);
    dialogue.btnAjoutLibelleClick();
    dialogue.btnAjoutLibelleClick();
    EXPECT_EQ(dialogue.Champs().Texte(0), u"Votre virement du 03/10/2016 (Classes de mer)") << "once";
    EXPECT_EQ(valide(), u"B");
    EXPECT_EQ(dialogue.Champs().Entier(2), 0) << "the group is cleared";
    EXPECT_FALSE(Globals.Eleves->ChargerExtraits) << "only when it closes";

    dialogue.Button1Click();
    EXPECT_TRUE(dialogue.imgValide());
    EXPECT_FALSE(dialogue.Actif());
    EXPECT_EQ(dialogue.SaisieEleve(), u"DUPONT Zoé");
    EXPECT_EQ(dialogue.lblClasse(), u"P1 A");
    dialogue.LUCombo1Change(u"LAMBERT"_s);
    EXPECT_EQ(valide(), u"B") << "not given twice";
    dialogue.LUCombo1Change(u"lamb"_s);
    dialogue.Button3Click();
    EXPECT_EQ(apres(), u"D");
    EXPECT_FALSE(dialogue.Actif()) << "a hidden one is nobody's";
    EXPECT_EQ(apres(), u"D") << "nothing behind it";

    Credit(c, 3);  // at another workstation
    dialogue.Button1Click();
    dialogue.LUCombo1Change(u"dup"_s);
    base.Dialogues.Attend(u"Ce mouvement est déjà attribué à LAMBERT Élise."_s);
    dialogue.Button3Click();
    EXPECT_EQ(dialogue.lblDonneurOrdre() % dialogue.SaisieEleve(), u"CLAMBERT Élise") << "whom it went to";
    EXPECT_FALSE(dialogue.Actif());
  });
  EXPECT_TRUE(Globals.Eleves->ChargerExtraits);
  EXPECT_EQ(Comptes(), u"3 1 4");
  EXPECT_EQ(Historique(), (QStringList{"C|LAMBERT Élise|Comptabilisé", "A|DUPONT Zoé|Comptabilisé",
                                       "B|LAMBERT Élise|Comptabilisé", "D||Caché"}));
  EXPECT_EQ(base.Rangees(u"SELECT EXTRAIT_ID, ELEVE_ID, MOIS, TYPE_FAMILLE_FRAIS, GROUPE_FRAIS_ID, REMARQUE "
                         "FROM FRAIS_ELEVE WHERE EXTRAIT_ID <> %1 ORDER BY FRAIS_ELEVE_ID"_s.arg(c)),
            (QStringList{u"%1;2;0;2;1;Votre virement du 03/10/2016 (Classes de mer)"_s.arg(a),
                         u"%1;3;0;2;-;Votre virement du 04/10/2016"_s.arg(b)}));
  EXPECT_EQ(Details(2), 1) << "the group sees its payment";
}

// Who stands out is proposed, not chosen, and given nothing until that is accepted; a movement of several
// goes on as a part is left.
TEST_F(FrmVirement, ProposedWithTheReasonAndSharedOut) {
  Credit(Mouvement(u"A"_s, 3), 3);
  const int b = Mouvement(u"B"_s, 4), c = Mouvement(u"C"_s, 5);
  Ouvrir();
  Form->Historique.ChoisirLigne(1);
  QString reste;
  Ecran.SurModale = [&](TForm& form) {
    if (auto* parts = dynamic_cast<TFrmRepartition*>(&form)) {
      parts->Ajouter(*Globals.Eleves->TrouverParId(2));  // typed to nothing, it is left out
      parts->Champs().Taper(0, u"0"_s);
      EXPECT_TRUE(parts->Champs().Quitter(0));
      parts->Ajouter(*Globals.Eleves->TrouverParId(1));
      parts->Champs().Taper(0, u"4"_s);
      EXPECT_TRUE(parts->Champs().Quitter(0));
      reste += parts->Parts.Texte(0, 0) % u' ' % parts->TexteReste() % u'|';
      parts->btnValiderClick();
      return;
    }
    auto& dialogue = dynamic_cast<TFrmAttributionVirement&>(form);
    EXPECT_EQ(dialogue.LUCombo1.Textes(0),
              (QStringList{u"LAMBERT Élise"_s, u"P3 A"_s, u"a déjà payé par ce compte"_s}));
    EXPECT_EQ(dialogue.LUCombo1.LigneCourante(), -1);
    EXPECT_EQ(dialogue.lblClasse(), QString());
    EXPECT_EQ(dialogue.LUCombo1.NombreLignes(), 3);
    dialogue.Button3Click();
    EXPECT_EQ(dialogue.lblDonneurOrdre(), u"C") << "without a choice it goes on";
    dialogue.Button1Click();
    EXPECT_EQ(dialogue.lblProposition(), u"Proposition : LAMBERT Élise (P3 A), a déjà payé par ce compte");
    dialogue.btnAccepterClick();
    EXPECT_EQ(Details(1), 0);
    dialogue.Champs().Choisir(2, 1);
    dialogue.btnRepartirClick();  // of the last one, which stays
    EXPECT_EQ(Details(1), 1) << "the group sees the part";
    EXPECT_TRUE(dialogue.Partiel());
    EXPECT_FALSE(dialogue.Actif());
    EXPECT_TRUE(dialogue.PeutRepartir());
    form.Fermer();
  };
  Form->grdHistoriqueDblClick();
  EXPECT_EQ(reste, u"LAMBERT Élise Reste 2,25 €|");
  EXPECT_EQ(
      base.Rangees(u"SELECT EXTRAIT_ID, ELEVE_ID, MONTANT_VERSE FROM FRAIS_ELEVE WHERE EXTRAIT_ID >= %1 "
                   "ORDER BY FRAIS_ELEVE_ID"_s.arg(b)),
      (QStringList{u"%1;3;12.5000"_s.arg(b), u"%1;3;6.2500"_s.arg(c), u"%1;1;4.0000"_s.arg(c)}));
  EXPECT_EQ(Comptes(), u"3 0 3");
  EXPECT_EQ(Historique().last(),
            u"C|LAMBERT Élise 6,25 €, DUPONT Zoé 4,00 €, reste 2,25 €|Attribué en partie");
}

TEST_F(FrmVirement, TheTwoStepsOfAFile) {
  Ouvrir();
  base.Dialogues.Saisit(u"Importer vos virements"_s, {});
  Form->btnEtape1Click();
  EXPECT_TRUE(Form->Etape2Active()) << "also when no file is chosen";
  const QByteArray bonne = "x;05/10/2016;;;BE68;DUPONT;;;;;10,00;EUR;;;+++000/0310/16102+++\n";
  Etape1(bonne + "x;05/10/2016;;;BE68;SUITE;;;;;dix;EUR;;;\n", u"Ligne 15 : « dix » n'est pas un montant"_s);
  EXPECT_FALSE(Form->Etape2Active());
  EXPECT_EQ(Form->Apercu.Texte(1, TFrmVirement::Montant), u"dix");
  EXPECT_EQ(Form->Apercu.Textes(0).last() % u", " % Form->Apercu.Textes(1).last(), u"Nouveau, Illisible");
  EXPECT_EQ(Form->EnSuspens(), QString());

  Etape1(bonne + bonne);
  EXPECT_EQ(Form->Statut(), u"Le fichier compte 2 mouvements.");
  EXPECT_EQ(Form->EnSuspens(), u"2 mouvements non mémorisés");
  bool vu = false;
  const TLien lien = Form->SurChangement.Suivre([&] {
    vu = vu || Form->EnCours();
    EXPECT_FALSE(Form->EnCours() && (Form->Etape1Active() || Form->Etape2Active()));
  });
  Form->btnEtape2Click();
  EXPECT_TRUE(vu);
  EXPECT_EQ(Form->Apercu.Textes(0).mid(TFrmVirement::Eleve, 3),
            (QStringList{"LAMBERT Élise", "P3 A", "Comptabilisé"}));
  EXPECT_EQ(Comptes(), u"2 0 2") << "the history follows";
  EXPECT_FALSE(Form->Etape2Suivante());
  Etape1(bonne);
  Form->btnEtape2Click();
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM EXTRAITS"_s), u"2");
}

// One more of the same day, account and amount is near none that the file has throughout, and two right
// communications are two payments.
TEST_F(FrmVirement, WhatIsPerhapsImportedIsStoredWhenTicked) {
  using namespace FichierCamt;
  Mouvement(u"A"_s, 15);
  Ouvrir();
  const auto ecriture = [](const QString& communication, const QString& donneur = {}) {
    return Ecriture(
        "12.5", "CRDT",
        Valeur("2016-10-15") + FichierCamt::Details(Detail(donneur, "BE68", Libre(communication))));
  };
  const auto etape1 = [&](const QString& ecritures) {
    base.Dialogues.Saisit(u"Importer vos virements"_s,
                          base.Fichier(u"releve.xml"_s, Camt(Releve(1, {}, ecritures), "08")));
    Form->btnEtape1Click();
    return TextesColonne(Form->Apercu, Form->Apercu.NombreColonnes() - 1).join(u'|');
  };
  for (const int annee : {2015, 2016}) {
    base.Sql(u"UPDATE EXTRAITS SET COMMUNICATION = '+++000/0110/16166+++', ANNEE_SCOLAIRE = %1"_s.arg(annee));
    Ouvrir();
    EXPECT_EQ(etape1(ecriture(u"000011016166"_s, u"A"_s) + ecriture({})),
              (annee == 2015 ? u"Année précédente" : u"Inconnu") % u"|Nouveau"_s);
    EXPECT_EQ(etape1(ecriture(u"000021016260"_s) + ecriture({})), u"Nouveau|Peut-être déjà importé");
  }
  etape1(ecriture({}));
  EXPECT_EQ(Form->Apercu.Textes(0).last(), u"Peut-être déjà importé");
  EXPECT_TRUE(Form->NoteApercu().startsWith(u"1 mouvement est peut-être déjà importé"));
  EXPECT_EQ(Form->EnSuspens(), QString());
  Form->btnEtape2Click();
  EXPECT_EQ(Form->lblTotal(), 1);
  EXPECT_TRUE(Form->Statut().endsWith(u"\n1 mouvement est peut-être déjà importé."));
  Form->Cocher(0, true);
  EXPECT_EQ(Form->EnSuspens(), u"1 mouvement non mémorisé");
  Form->btnEtape2Click();
  EXPECT_EQ(Form->lblTotal(), 2);
}
