#include "screens/documents/frm_print_wizard.h"
#include "screens/payments/frm_date_paiement.h"
#include "support/ecran_essai.h"
#include "support/grilles.h"

namespace {

/// The screen that asks.
struct TDemandeurEssai : TForm {
  bool RecevoirMessage(const TMessage& message) override {
    EXPECT_EQ(message.Code, TCodeMessage::AssistantConfirme);
    Choix = *message.En<TChoixDocument>();
    return true;
  }
  std::optional<TChoixDocument> Choix;
};

/// Site S1 with P2 A: Éva, Luc; site S2 with P1 A: Zoé, Adam; the year 2016 on display.
struct Assistant : TEssaiEcole {
  void SetUp() override {
    for (const auto& [nom, classe, site] :
         {std::tuple("Zoé", "P1", "S2"), {"Adam", "P1", "S2"}, {"Éva", "P2", "S1"}, {"Luc", "P2", "S1"}})
      eleves += ecole.unEleve().nomme(nom, "X").enClasse(classe, "A", site).Id;
    ecran.Essai.Charger();
  }
  /// Opens the wizard, does that, and gives the choice; none when it was given up.
  std::optional<TChoixDocument> Ouvrir(const std::function<void()>& geste, TDemandeAssistant demande) {
    demandeur.Choix.reset();
    ecran.SurModale = [&](TForm&) { geste(); };
    demande.Demandeur = &demandeur;
    EXPECT_TRUE(assistant.RecevoirMessage({TCodeMessage::ImprimerAssistant, demande}));
    return demandeur.Choix;
  }
  std::optional<TChoixDocument> Ouvrir(const std::function<void()>& geste) {
    return Ouvrir(geste, TDemandeAssistant::De({{u"Badge"_s, false}, {u"Facture"_s, true}}));
  }
  static QStringList Noms(const TChoixDocument& choix) {
    QStringList noms;
    for (const TEleve* eleve : choix.Eleves) noms += eleve->Nom;
    for (const TClasse* classe : choix.Classes) noms += classe->Libelle();
    return noms;
  }
  static void Cocher(TGrille& liste, const QString& texte) {
    for (int i = 0; i < liste.NombreLignes(); ++i)
      if (liste.Texte(i, 0).startsWith(texte)) liste.Cocher(i, true);
  }
  void Finir() { assistant.KWizard1FinishButtonClick(); }

  TEcranEssai ecran{base};
  TFrmPrintWizard assistant{ecran.Contexte};
  TDemandeurEssai demandeur;
  QList<int> eleves;
};

using enum TPageAssistant;
using enum TChoixQui;

}  // namespace

TEST_F(Assistant, PagesFollowWhatWasAskedAndTheTitle) {
  const std::vector<TTitreAssistant> titres{{u"Badge"_s, false}, {u"Facture"_s, true}};
  // From the one it opens on to the one with the finish button
  const std::tuple<const char*, TDemandeAssistant, int, std::vector<TPageAssistant>> cas[] = {
      {"no period", {true, titres, true, nullptr}, 0, {Rapport, Qui}},
      {"period", {true, titres, true, nullptr}, 1, {Rapport, Qui, Periode}},
      {"never a period", {true, titres, false, nullptr}, 1, {Rapport, Qui}},
      {"nobody", {false, titres, true, nullptr}, 1, {Rapport, Periode}},
      {"one page", {false, titres, false, nullptr}, 0, {Rapport}},
      {"no title", {true, {}, true, nullptr}, -1, {Qui, Periode}},
  };
  for (const auto& [nom, demande, titre, pages] : cas) {
    Ouvrir(
        [&] {
          if (titre >= 0) assistant.ChoixRapportClick(titre);
          assistant.RbEleveClick(Classes);
          assistant.btnToutSelectionnerClick();
          std::vector<TPageAssistant> vues{assistant.Page()};
          EXPECT_TRUE(assistant.EstPremierePage()) << nom;
          while (!assistant.EstDernierePage() && vues.size() < 4) {
            assistant.btnSuivantClick();
            vues.push_back(assistant.Page());
          }
          EXPECT_EQ(vues, pages) << nom;
          while (!assistant.EstPremierePage()) assistant.btnPrecedentClick();
          EXPECT_EQ(assistant.Page(), pages.front()) << nom;
          assistant.btnAnnulerClick();
        },
        demande);
    EXPECT_FALSE(demandeur.Choix) << nom;
  }
}

TEST_F(Assistant, ATitleThatCannotBeMadeIsNotTheOneAtHand) {
  const auto demande = [](const QString& raison) {
    TDemandeAssistant d = TDemandeAssistant::De({{u"Badge"_s, false, raison}, {u"Liste"_s, false}});
    d.PageQui = false;
    return d;
  };
  Ouvrir([&] { Finir(); }, demande({}));
  EXPECT_EQ(demandeur.Choix->Indice, 0);
  Ouvrir(
      [&] {
        EXPECT_EQ(assistant.Indice(), 1) << "the first that can";
        EXPECT_EQ(assistant.IndiceDernier(), -1) << "what was printed last is no longer offered";
        assistant.btnAnnulerClick();
      },
      demande(u"modèle absent"_s));
}

TEST_F(Assistant, WhoIsCheckedAtTheOpening) {
  const auto coche = [&] {
    Ouvrir([&] { assistant.btnAnnulerClick(); });
    return assistant.ChoixQui();
  };
  EXPECT_EQ(coche(), Eleves);
  EXPECT_EQ(assistant.Indice(), 0);
  EXPECT_FALSE(assistant.ChoixQuiPossible(Eleve) || assistant.ChoixQuiPossible(Classe));
  Globals.ClasseCourante = &Globals.Eleves->GetClasse(1);
  EXPECT_EQ(coche(), Classe);
  EXPECT_EQ(assistant.lblClasse, u"P2 A"_s);
  Globals.EleveCourant = Globals.Eleves->TrouverParId(eleves[2]);
  EXPECT_EQ(coche(), Eleve) << "nobody has chosen yet";
  EXPECT_EQ(assistant.lblEleve, u"Éva X"_s);
  assistant.RbEleveClick(Classe);
  EXPECT_EQ(coche(), Classe) << "once the user has chosen, it stays";
  Globals.EleveCourant = nullptr;
  Globals.ClasseCourante = nullptr;
  EXPECT_EQ(coche(), Eleves) << "what was chosen is not there any more";
}

TEST_F(Assistant, TheListsAndTheirTwoButtons) {
  const auto choix = Ouvrir([&] {
    EXPECT_EQ(TextesColonne(assistant.LstEleve, 0),
              (QStringList{u"Éva X"_s, u"Luc X"_s, u"Adam X"_s, u"Zoé X"_s}))
        << "É with E";
    EXPECT_EQ(assistant.LstEleve.Textes(0), (QStringList{u"Éva X"_s, u"P2 A"_s, u"S1"_s}));
    EXPECT_EQ(TextesColonne(assistant.LstClasse, 0), (QStringList{u"P1 A"_s, u"P2 A"_s}));
    for (const TChoixQui qui : {Eleves, Classes}) {
      assistant.RbEleveClick(qui);
      assistant.btnToutSelectionnerClick();
    }
    EXPECT_EQ(assistant.Compte(), u"2 classes, 4 élèves"_s);
    assistant.btnRienSelectionnerClick();
    EXPECT_EQ(assistant.Compte(), u"aucune classe, aucun élève"_s);
    EXPECT_TRUE(assistant.LstEleve.Ligne(3).Coche) << "the other list is left alone";

    assistant.RbEleveClick(Eleves);
    assistant.btnRienSelectionnerClick();
    Cocher(assistant.LstEleve, u"Luc"_s);
    assistant.Filtrer(assistant.LstEleve, u"p1 a"_s);
    assistant.btnToutSelectionnerClick();
    EXPECT_EQ(assistant.Compte(), u"3 élèves"_s) << "those that the filter shows, and a tick behind it";
    assistant.LstEleveColumnClick(0, false);
    Finir();
  });
  ASSERT_TRUE(choix);
  EXPECT_EQ(Noms(*choix), (QStringList{u"Zoé"_s, u"Luc"_s, u"Adam"_s})) << "as the list shows them";
}

TEST_F(Assistant, ListsOfAYearThatWasLoadedAgain) {
  Ouvrir([&] {
    Cocher(assistant.LstEleve, u"Luc"_s);
    assistant.LstEleveColumnClick(0, false);
    assistant.btnAnnulerClick();
  });
  ecole.unEleve().nomme(u"Nora"_s, u"X"_s).enClasse(u"P1"_s, u"B"_s);
  ecran.Essai.Charger();
  const auto choix = Ouvrir([&] {
    EXPECT_EQ(TextesColonne(assistant.LstEleve, 0),
              (QStringList{u"Zoé X"_s, u"Nora X"_s, u"Luc X"_s, u"Éva X"_s, u"Adam X"_s}));
    EXPECT_EQ(TextesColonne(assistant.LstClasse, 0), (QStringList{u"P1 A"_s, u"P1 B"_s, u"P2 A"_s}));
    assistant.RbEleveClick(Eleves);
    Finir();
  });
  ASSERT_TRUE(choix);
  ASSERT_EQ(choix->Eleves.size(), 1U) << "the tick followed its pupil";
  EXPECT_EQ(choix->Eleves[0], Globals.Eleves->TrouverParId(eleves[3]));
}

TEST_F(Assistant, PeriodOfTheChoice) {
  ecran.Essai.Horloge.Moment = EncodeDate(2016, 11, 22) + EncodeTime(9, 30);
  Ouvrir([&] { assistant.btnAnnulerClick(); });
  EXPECT_EQ(assistant.IndiceMois(), 2);
  for (int date = 0; date < 2; ++date) EXPECT_EQ(assistant.Dates().Texte(date), u"22/11/2016");
  const std::tuple<std::function<void()>, const char*, const char*, const char16_t*> cas[] = {
      {[&] { assistant.ChoisirMois(0); }, "2016-09-01", "2016-09-30", u"septembre 2016"},
      {[&] { assistant.ChoisirMois(5); }, "2017-02-01", "2017-02-28", u"février 2017"},
      {[&] { assistant.ChoisirMois(9); }, "2017-06-01", "2017-06-30", u"juin 2017"},
      {[&] {
         assistant.RbMoisClick(TChoixPeriode::Periode);
         assistant.Dates().Taper(0, u"24/12/2016"_s);
         assistant.Dates().Taper(1, u"01/10/2016"_s);
         assistant.Dates().QuitterTout();
       },
       "2016-12-24", "2016-10-01", u"du 24/12/2016 au 01/10/2016"},
      {[&] { assistant.RbMoisClick(TChoixPeriode::Annee); }, "2016-09-01", "2017-06-30",
       u"du 1er septembre 2016 au 30 juin 2017"},
  };
  for (const auto& [geste, du, au, texte] : cas)
    for (const int titre : {0, 1}) {
      const auto choix = Ouvrir([&] {
        assistant.RbEleveClick(Classes);
        Cocher(assistant.LstClasse, u"P2"_s);
        assistant.RbMoisClick(TChoixPeriode::Mois);
        geste();
        assistant.ChoixRapportClick(titre);
        EXPECT_EQ(assistant.Resume(),
                  titre == 0 ? u"Badge  ·  1 classe, 2 élèves"_s
                             : u"Facture  ·  1 classe, 2 élèves  ·  "_s + QString::fromUtf16(texte));
        Finir();
      });
      ASSERT_TRUE(choix);
      EXPECT_EQ(choix->Indice, titre);
      EXPECT_EQ(choix->DateDebut, J(du)) << "the dates that the page holds, shown or not";
      EXPECT_EQ(choix->DateFin, J(au));
    }
}

TEST_F(Assistant, ATitleOfACalendarYearAsksForItInThePlaceOfAPeriod) {
  ecran.Essai.Horloge.Moment = EncodeDate(2016, 7, 15);  // no month of school is at hand
  TTitreAssistant fiche{u"Fiche"_s};
  fiche.Annees = {2016, 2015};
  fiche.Annee = 2016;
  for (const bool tous : {false, true})
    for (const TChoixQui qui : {Classes, Eleves}) {
      const auto choix = Ouvrir(
          [&] {
            assistant.RbEleveClick(qui);
            assistant.btnRienSelectionnerClick();
            Cocher(qui == Classes ? assistant.LstClasse : assistant.LstEleve, tous ? u""_s : u"P2"_s);
            if (!tous) Cocher(assistant.LstEleve, u"Luc"_s);
            EXPECT_TRUE(assistant.PageVisible(Periode));
            EXPECT_TRUE(assistant.Resume().endsWith(u"revenus de 2016"));
            if (tous) assistant.ChoisirAnnee(2015);
            assistant.RbMoisClick(TChoixPeriode::Periode);  // of another title, left behind
            assistant.Dates().Taper(0, u"31/02/2017"_s);
            Finir();
          },
          TDemandeAssistant::De({fiche}));
      ASSERT_TRUE(choix);
      EXPECT_EQ(choix->AnneeRevenus, tous ? 2015 : 2016);
      EXPECT_EQ(choix->TouteLEcole, tous);
    }
}

TEST_F(Assistant, BothRefusalsLeaveItOpen) {
  ecran.Essai.Horloge.Moment = EncodeDate(2016, 7, 15);
  const auto choix = Ouvrir([&] {
    assistant.ChoixRapportClick(1);
    assistant.btnSuivantClick();
    base.Dialogues.Attend(u"Aucun élève n'a été sélectionné !"_s);
    assistant.btnSuivantClick();
    EXPECT_EQ(assistant.Page(), Qui) << "nobody is chosen yet";
    Cocher(assistant.LstEleve, u"Adam"_s);
    assistant.btnSuivantClick();
    assistant.btnRienSelectionnerClick();
    EXPECT_EQ(assistant.IndiceMois(), -1) << "July is no month of school";
    base.Dialogues.Attend(u"Veuillez sélectionner un mois dans la liste déroulante"_s);
    Finir();
    EXPECT_EQ(assistant.Page(), Periode);
    assistant.ChoisirMois(1);
    base.Dialogues.Attend(u"Aucun élève n'a été sélectionné !"_s);
    Finir();
    EXPECT_EQ(assistant.Page(), Qui);
    Cocher(assistant.LstEleve, u"Adam"_s);
    Finir();
  });
  ASSERT_TRUE(choix);
  EXPECT_EQ(Noms(*choix), QStringList{u"Adam"_s});
  // Without the page nobody is asked, and without a period no month.
  assistant.ChoisirMois(-1);
  const auto vide = Ouvrir([&] { Finir(); }, {false, {{u"Cuisine"_s, true}}, false, nullptr});
  ASSERT_TRUE(vide);
  EXPECT_EQ(vide->DateDebut, J("2016-09-01")) << "no month is the year";
  EXPECT_EQ(vide->DateFin, J("2017-06-30"));
}

TEST_F(Assistant, PaymentDateIsAWeekAhead) {
  ecran.Essai.Horloge.Moment = EncodeDate(2016, 12, 28) + EncodeTime(16, 45);
  TFrmDatePaiement form(ecran.Contexte);
  ecran.SurModale = [&](TForm&) { form.Valider(); };
  EXPECT_EQ(ecran.MontrerModal(form), TResultatModal::Valide);
  EXPECT_EQ(form.dtDatePaiement(), J("2017-01-04"));
}
