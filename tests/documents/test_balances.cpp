#include "ecole_documents.h"

namespace {

struct TBalancesEssai : TDocumentsEssai {
  TResultat Balance(const char16_t* sorte, const std::vector<int>& eleves) {
    return Demander(QString(u"Balance des comptes "_s + QString::fromUtf16(sorte)), eleves);
  }
  /// What the pages say below the sums, a line a text.
  static QStringList Conclusion(const TResultat& resultat) {
    const QStringList suite = TextesPage(Pages(resultat.Rapports.at(0)).Pages.at(0));
    return suite.mid(suite.lastIndexOf(u"Balance"_s) + 3);
  }
};

}  // namespace

TEST_F(TBalancesEssai, CeQuiEstDuEtPaye) {
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s);
  Scans(anne, {u"matin 2016-10-03"_s, u"repas 2017-01-09"_s});
  anne.doit(ecole.frais(u"Piscine"_s, u"14"_s, 10), u"4"_s)
      .doit(ecole.frais(u"Photo"_s, u"8.5"_s, 0, u"non_obligatoire"_s))
      .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s))
      .doit(ecole.frais(u"Voyage"_s, u"99"_s, 10, u"previsionnel"_s), u"1"_s)
      .paie(u"20"_s, 10, 0, u"Virement"_s)
      .paie(u"2.5"_s, 0, 2, u"Provision"_s)
      .mois(10, u"5"_s);
  base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = 'BE71', NOM_TITULAIRE_COMPTE = 'ADAM P.'"_s);
  TEleveEssai radie = UnEleve(u"FLG_RADIE"_s);
  const TResultat resultat = Balance(u"provisoire", {anne.Id, radie.Id});
  EXPECT_EQ(resultat.Messages, QStringList());
  const QString debut = u"ADAM Anne: NomEleve=ADAM | PrenomEleve=Anne | Classe=P3 A | "_s;
  const QString suite =
      u"TotalDu=57,23 € | TotalPaye=31,50 € | TotalBalance=-25,73\n"
      "  Récapitulatif des frais: TitreRubrique=Récapitulatif des frais\n"
      "    Frais obligatoires: NomService=Frais obligatoires | Cout=14,00 €\n"
      "    Frais non obligatoires: NomService=Frais non obligatoire | Cout=8,50 €\n"
      "    Services: NomService=Services | Cout=34,73 €\n"
      "  Récapitulatif des paiements: TitreRubrique=Récapitulatif des paiements\n"
      "    Virement: NomService=Virement | Total=20,00 €\n"
      "    Provision: NomService=Provision | Total=2,50 €\n"
      "  Balance: TypeFrais=Balance"_s;
  EXPECT_EQ(Dessin(resultat.Rapports.at(0)), QString(debut % suite));
  EXPECT_EQ(Variable(resultat, u"DateJour"), u"03/10/2016"_s);
  EXPECT_EQ(Dessin(Balance(u"définitive", {anne.Id}).Rapports.at(0)),
            QString(debut % u"NumCompte=BE71 | BeneficiaireCompte=ADAM P. | " % suite));
  EXPECT_EQ(Balance(u"provisoire", {}).Messages, QStringList{u"Aucune information à imprimer"_s});
  // By provision the general payment has no line, and the balance counts what was paid by family.
  ecole.parametre(25, u"1"_s);
  const QString provision = Dessin(Balance(u"provisoire", {anne.Id}).Rapports.at(0));
  EXPECT_FALSE(provision.contains(u"Virement"));
  EXPECT_TRUE(provision.contains(u"TotalPaye=31,50 € | TotalBalance=-54,73\n"_s)) << provision.toStdString();
}

TEST_F(TBalancesEssai, QuiDoitQuoi) {
  TEleveEssai anne = UnEleve();
  anne.doit(ecole.frais(u"Piscine"_s, u"14.5"_s, 10)).paie(u"2"_s, 10, 0, u"Virement"_s);
  const int leo = UnEleve().paie(u"47"_s, 10, 0, u"Virement"_s).Id;
  const int paul = UnEleve().Id;
  ecole.parametre(11, u"BE68"_s);
  const QString du = u"Votre compte présente |un solde de |12,5| euros en faveur de l'école|."_s;
  const QString verser = u"|Veuillez verser la somme de |12,5 €| sur le numéro de compte suivant : |BE68"_s;
  const QString positif = u"Votre compte présente un solde positif de |47,00| euros en votre faveur."_s;
  const QString choix =
      u"|Je souhaite être remboursé du solde sur mon compte bancaire :|%1"
      "|Je souhaite reporter la somme à l'année scolaire suivante "_s;
  const QString sansCompte = u"Veuillez indiquer votre n° de compte bancaire : "_s + QString(62, u'.');
  const struct {
    const char16_t* Sorte;
    int Parametre;
    QString Modele, Du, Positif;
  } cas[] = {
      {u"provisoire", 107, u"BalanceProvisoire"_s, {}, {}},
      {u"définitive", 0, u"BalanceDefinitive"_s, verser,
       u"|Cette somme vous sera remboursée sur le numéro de compte suivant :"_s},
      {u"définitive", 107, u"BalanceDefinitiveVesper"_s, verser,
       u"|Sous réserve de la participation aux activités scolaires, études et garderies jusqu'au 30 juin."_s %
           choix.arg(sansCompte)},
      {u"définitive", 108, u"BalanceDefinitiveRepas"_s, verser,
       u"|Sous réserve de la participation aux repas jusqu'au 30 juin."_s % choix.arg(sansCompte)},
  };
  for (const auto& [sorte, parametre, modele, aVerser, enPlus] : cas) {
    SCOPED_TRACE(modele.toStdString());
    if (parametre != 0) ecole.parametre(parametre, u"1"_s);
    EXPECT_EQ(Balance(sorte, {anne.Id}).Rapports.at(0).Modele(), modele);
    EXPECT_EQ(Conclusion(Balance(sorte, {anne.Id})).join(u'|'), QString(du % aVerser));
    EXPECT_EQ(Conclusion(Balance(sorte, {leo})).join(u'|'), QString(positif % enPlus).trimmed());
    EXPECT_EQ(Conclusion(Balance(sorte, {paul})).join(u'|'), u"Votre compte est en équilibre"_s);
    if (parametre == 107 && modele != u"BalanceProvisoire"_s) continue;
    base.Sql(u"DELETE FROM PARAMETRE"_s);
    ecole.parametre(11, u"BE68"_s);
    ecole.parametre(27, u"2016"_s);
  }
  base.Sql(u"UPDATE ELEVES SET NUM_COMPTE = 'BE71', NOM_TITULAIRE_COMPTE = 'LEBON'"_s);
  ecole.parametre(108, u"1"_s);
  EXPECT_TRUE(Conclusion(Balance(u"définitive", {leo})).contains(u"BE71 - Au nom de : LEBON"_s));
}
