#include "screens/documents/frm_manques.h"
#include "screens/documents/imprimeur.h"
#include "screens/payments/frm_repartition.h"
#include "support/ecran_essai.h"

namespace {

/// Two pupils, who owe 20 and 10 euros, and a movement of 24.
struct TManquesParts : TEssaiEcole {
  TManquesParts() {
    for (const QString& cout : {u"20"_s, u"10"_s})
      ecole.unEleve().enClasse(u"P1"_s, u"A"_s).doit(ecole.frais(u"Sortie"_s, cout, 10));
    extrait = ecole.mouvement(u"DUPONT"_s, u"2016-10-05"_s, u"24"_s);
  }
  static TEleve& Eleve(int cle) { return *Globals.Eleves->TrouverParId(cle); }

  int extrait = 0;
};

}  // namespace

TEST_F(TManquesParts, CeQuiManqueMeneAuChampOuLaisseImprimer) {
  TEcranEssai monde(base);
  TImprimeur imprimeur(monde.Contexte, {});
  QStringList vus;
  imprimeur.SurAllerAuChamp = [&](const TManque& manque) {
    vus += QString::number(manque.EleveId) % u' ' % manque.Champ;
  };
  void (TFrmManques::*faire)() = nullptr;
  int ligne = -1;
  monde.Modale<TFrmManques>([&](TFrmManques& manques) {
    EXPECT_EQ(manques.Texte(),
              u"1 élève n'est pas imprimé tant qu'il manque ceci ; les "
              "autres lignes n'empêchent pas d'imprimer :");
    EXPECT_EQ(manques.Grille.Texte(2, 3), u"Pas imprimé") << "what is unpaid of who is not printed";
    EXPECT_EQ(manques.Grille.Texte(3, 3), u"Imprimé sans");
    EXPECT_EQ(manques.Grille.LigneCourante(), 1) << "the first that leads to a record";
    EXPECT_EQ(manques.LibelleImprimer(), u"Imprimer les autres");
    EXPECT_EQ(manques.Titre(), u"Ce qui manque, revenus de 2017");
    EXPECT_EQ(manques.Grille.Texte(4, 3), u"Rien à remplir");
    manques.Grille.ChoisirLigne(4);
    EXPECT_FALSE(manques.PeutAller()) << "it leads nowhere";
    manques.Grille.ChoisirLigne(1);
    if (ligne >= 0) manques.Grille.ChoisirLigne(ligne);
    EXPECT_TRUE(manques.PeutAller());
    if (faire != nullptr) (manques.*faire)();
  });
  const auto imprimer = [&] {
    imprimeur.Faire([](const TContexteDocument&) {
      TResultat resultat;
      resultat.Manques = {{nullptr, u"edNumeroEntreprise"_s, u"l'école"_s, false},
                          {&Eleve(1), u"edNumNational"_s, u"manque"_s, true},
                          {&Eleve(1), {}, u"impayé"_s, false},
                          {&Eleve(2), {}, u"impayé"_s, false},
                          {nullptr, {}, u"le maximum"_s, false}};
      resultat.Rapports.emplace_back(u"Titre"_s, u"Modele"_s).AjouterVariable(u"AnneeRevenus"_s, u"2017"_s);
      return resultat;
    });
    return monde.Apercus.size();
  };
  EXPECT_EQ(imprimer(), 0) << "given up";
  faire = &TFrmManques::btnAllerClick;
  EXPECT_EQ(imprimer(), 0);
  ligne = 0;
  EXPECT_EQ(imprimer(), 0);
  faire = &TFrmManques::btnImprimerClick;
  EXPECT_EQ(imprimer(), 1);
  EXPECT_EQ(vus, (QStringList{u"1 edNumNational"_s, u"0 edNumeroEntreprise"_s})) << "the school's too";
}

TEST_F(TManquesParts, LesPartsSontChangeesPuisStockees) {
  TEcranEssai monde(base);
  const TExtrait& mouvement = *monde.Essai.Controleur.Extraits().TrouverParId(extrait);
  const std::vector<TProposition> aucune;
  TFrmRepartition form(monde.Contexte, mouvement, {u"Virement"_s, TTypeFamilleFrais::Frais, 0}, aucune);
  EXPECT_EQ(form.Titre(), u"24,00 € à répartir, de DUPONT, le 05/10/2016");
  form.Ajouter(Eleve(1));
  form.Ajouter(Eleve(2));
  EXPECT_EQ(form.Parts.Textes(0).mid(2), (QStringList{u"20,00 €"_s, u"16,00 €"_s}));
  EXPECT_EQ(form.TexteReste(), u"Tout est réparti");
  EXPECT_EQ(form.Eleves.NombreLignes(), 0);
  form.Champs().Taper(0, u"9,01"_s);  // of the second, who was added last
  EXPECT_TRUE(form.Champs().Quitter(0));
  EXPECT_EQ(form.TexteReste(), u"1,01 € de trop");
  base.Dialogues.Attend(u"plus que les 24,00 €"_s);
  EXPECT_FALSE(form.btnValiderClick());
  form.Champs().Taper(0, u"5"_s);
  EXPECT_TRUE(form.btnValiderClick());
  EXPECT_EQ(
      base.Rangees(u"SELECT ELEVE_ID, MONTANT_VERSE, TYPE_FAMILLE_FRAIS, REMARQUE FROM FRAIS_ELEVE WHERE "
                   "EXTRAIT_ID > 0 ORDER BY 1"_s),
      (QStringList{u"1;16.0000;1;Virement"_s, u"2;5.0000;1;Virement"_s}));
}
