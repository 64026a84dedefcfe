#include "ecole_documents.h"

namespace {

struct TProvisionEssai : TDocumentsEssai {
  void SetUp() override {
    TDocumentsEssai::SetUp();
    ecole.parametre(25, u"1"_s);
    ecole.parametre(10, u"[ComStructParFacture] le [DatePaiementFacture]"_s);
    TEleveEssai anne = UnEleve();
    anne.doit(ecole.frais(u"Piscine"_s, u"14"_s, 10))
        .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s), u"2"_s)
        .doit(ecole.frais(u"Cahiers"_s, u"9"_s, 9), u"9"_s)
        .doit(ecole.frais(u"Prévu"_s, u"99"_s, 10, u"previsionnel"_s), u"99"_s)
        .paie(u"20"_s, 9, 2, u"Virement"_s)
        .paie(u"-3"_s, 10, 2, u"Rendu"_s)
        .paie(u"5"_s, 10, 1, u"Excursion"_s);
    Scans(anne, {u"matin 2016-09-05"_s, u"matin 2016-10-03"_s, u"matin 2016-10-04"_s, u"soir 2016-10-05"_s,
                 u"repas 2016-10-03"_s});
    ASSERT_EQ(anne.Id, 1);
    // Her part of a transfer that was shared out: the paper counts that, and not the 45.
    ecole.mouvement({}, u"2016-09-20"_s, u"45"_s);
    base.Sql(u"UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 1, FLG_PART = 1 WHERE REMARQUE = 'Virement'"_s);
  }
};

}  // namespace

TEST_F(TProvisionEssai, GarderiesPuisActivites) {
  ecole.parametre(51, u"BE71096123456768"_s);
  const TResultat resultat = Facturer({1}, "2016-10-01", "2016-10-31", J("2016-11-14"));
  ASSERT_EQ(resultat.Rapports.size(), 2U);
  EXPECT_EQ(resultat.Rapports[0].Modele(), u"Facture2"_s);
  EXPECT_EQ(
      Dessin(resultat.Rapports[0]),
      uR"(Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A | SoldeFacture=6,79 | SoldeFacture2=6,79 | Communication=+++000/0110/16166+++ le [DatePaiementFacture]
  Services: TypeFrais=Garderies du mois | TitreTotal=<i>Sous-total</i> | TotalFrais=<i>8,98</i>
    Garderies du matin: NomService=Garderies du matin | Total=2,47
    Garderies du mercredi: NomService=Garderies du mercredi | Total=3,01
    Repas chaud: NomService=Repas chaud | Total=3,50
  Vos paiements: TypeFrais=Vos paiements | TitreTotal=<i>Sous-total</i> | TotalFrais=<i>17,00</i>
    Virement: NomService=Virement | Total=20,00
    Rendu: NomService=Rendu | Total=3,00
  Balance: TypeFrais=Balance | SoldePostif=1 | TitreTotal=<b>SOLDE</b> | TotalFrais=<b>6,79</b>
    Vos paiements: NomService=Vos paiements | Total=17,00
    Garderies des mois précédents: NomService=Garderies des mois précédents | Total=-1,23
    Garderies du mois en cours: NomService=Garderies du mois d'octobre 2016 | Total=-8,98)"_s);
  const TRapport& activites = resultat.Rapports[1];
  EXPECT_EQ(activites.Modele(), u"Facture3"_s);
  EXPECT_EQ(resultat.Rapports[0].Avertissements.size(), 1) << "a wrong account";
  EXPECT_TRUE(activites.Avertissements.isEmpty()) << "it is told once";
  EXPECT_EQ(activites.Variables().Valeur(u"AnneeScolaire"), u"2016 - 2017"_s);
  EXPECT_EQ(activites.Variables().Trouver(u"DatePaiement"), nullptr);
  EXPECT_EQ(
      Dessin(activites),
      uR"(Eleve1 Prenom1: NomEleve=Eleve1 | PrenomEleve=Prenom1 | Classe=P3 A | SoldeFacture=-20,00 | SoldeFacture2=20,00 | Communication=+++000/0110/16267+++ le [DatePaiementFacture]
  Services: TypeFrais=Activités du mois | TitreTotal=<i>Sous-total</i> | TotalFrais=<i>44,00</i>
    Piscine: NomService=Piscine | Total=14,00
    Atelier: NomService=Atelier | Total=30,00
  Vos paiements: TypeFrais=Vos paiements | TitreTotal=<i>Sous-total</i> | TotalFrais=<i>33,00</i>
    : NomService= | Total=0,00
    : NomService= | Total=2,00
    : NomService= | Total=9,00
    Virement: NomService=Virement | Total=20,00
    Rendu: NomService=Rendu | Total=-3,00
    Excursion: NomService=Excursion | Total=5,00
  Balance: TypeFrais=Balance | SoldePostif=-1 | TitreTotal=<b>SOLDE</b> | TotalFrais=<b>-20,00</b>
    Vos paiements: NomService=Vos paiements | Total=33,00
    Activités des mois précédents: NomService=Activités des mois précédents | Total=-9,00
    Activités du mois en cours: NomService=Activités du mois d'octobre 2016 | Total=-44,00)"_s);
}

TEST_F(TProvisionEssai, ReglagesEtComptesEnOrdre) {
  const auto modeles = [&](const std::vector<int>& eleves) {
    QStringList noms;
    for (const TRapport& rapport : Facturer(eleves, "2016-10-01", "2016-11-30").Rapports)
      noms += rapport.Modele() % u' ' % rapport.Arbre().at(0).Enfants.back().Valeurs.Valeur(u"SoldePostif") %
              u' ' % *rapport.Valeur(u"Communication", {});
    return noms.join(u'|');
  };
  // A period of two months has no communication of its own.
  EXPECT_EQ(modeles({1}), u"Facture2 1  le [DatePaiementFacture]|Facture3 -1  le [DatePaiementFacture]"_s);
  // Of an account that is even only the activities are left.
  const int sans = UnEleve().Id;
  ecole.parametre(4, u"Valmonde"_s);
  EXPECT_EQ(modeles({sans}), u"FactureProvisionActiviteValmonde 0  le [DatePaiementFacture]"_s);
  base.Sql(u"UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 0 WHERE REMARQUE = 'Virement'"_s);
  ecole.parametre(108, u"1"_s);
  EXPECT_EQ(modeles({1}), u"ReleveFacture 0  le [DatePaiementFacture]"_s);
  EXPECT_EQ(Facturer({1}).Rapports.at(0).Arbre()[0].Enfants[0].Valeurs.Valeur(u"TypeFrais"),
            u"Repas du mois"_s);
  EXPECT_EQ(Facturer({sans}).Messages,
            QStringList{u"Aucune facture n'est à établir pour la période choisie."_s});
}
