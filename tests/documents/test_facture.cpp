#include "ecole_documents.h"

namespace {

struct TFactureEssai : TDocumentsEssai {
  /// The lines of a section of the first pupil's invoice: "Repas chaud 3,50|Soupes 0,70".
  QString Lignes(int eleve, const char* du, const char* au, const QString& section = u"Rappel"_s) {
    const TResultat resultat = Facturer({eleve}, du, au);
    QStringList lignes;
    for (const TRapport& rapport : resultat.Rapports)
      for (const TNoeudRapport& noeud : rapport.Arbre().at(0).Enfants)
        if (noeud.Texte == section)
          for (const TNoeudRapport& ligne : noeud.Enfants)
            lignes += ligne.Valeurs.Valeur(u"NomService") % u' ' % ligne.Valeurs.Valeur(u"Total");
    return lignes.join(u'|');
  }
  /// A value of the only pupil's page.
  QString Valeur(const TResultat& resultat, QStringView nom) {
    return *resultat.Rapports.at(0).Valeur(nom, {});
  }
};

}  // namespace

TEST_F(TFactureEssai, UnMoisOuvert) {
  TEleveEssai anne = UnEleve().nomme(u"[Total]"_s, u"<b>\"Anne\""_s);
  anne.doit(ecole.frais(u"Piscine"_s, u"14"_s, 10))
      .doit(ecole.frais(u"Partiel"_s, u"6"_s, 10), u"2"_s)
      .doit(ecole.frais(u"Réglé"_s, u"5"_s, 10), u"5"_s)
      .doit(ecole.frais(u"Photo"_s, u"8.5"_s, 10, u"non_obligatoire"_s))
      .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s))
      .doit(ecole.frais(u"Prévu"_s, u"99"_s, 10, u"previsionnel"_s))
      .doit(ecole.frais(u"Novembre"_s, u"7"_s, 11))
      .doit(ecole.frais(u"Cahiers"_s, u"9"_s, 9), u"4"_s)
      .paie(u"1"_s, 9, 0, u"Virement"_s)
      .paie(u"2.5"_s, 10, 2, u"Virement"_s);
  Scans(anne, {u"matin 2016-09-05"_s, u"matin 2016-10-03"_s, u"matin 2016-10-04"_s, u"midi 2016-10-03"_s,
               u"soir 2016-10-03"_s, u"soir 2016-10-05"_s /* a Wednesday */, u"repas 2016-10-03"_s,
               u"soupe 2016-10-04"_s, u"etude 2016-10-04"_s});
  const int sans = UnEleve().Id;
  TEleveEssai radie = UnEleve(u"FLG_RADIE"_s);
  Scans(radie, {u"matin 2016-10-03"_s});
  ecole.parametre(1, u"École"_s);
  ecole.parametre(11, u"BE68"_s);
  ecole.parametre(10, u"[ComStructParFacture] [DatePaiementFacture] [ComStructParFacture]"_s);
  ecole.parametre(103, u"1"_s);

  const TResultat resultat = Facturer({anne.Id, sans, radie.Id});
  EXPECT_EQ(resultat.Messages, QStringList());
  ASSERT_FALSE(resultat.Echec || resultat.Rapports.empty());
  const TRapport& facture = resultat.Rapports[0];
  EXPECT_EQ(facture.Modele(), u"Facture"_s);
  QStringList variables;
  for (const auto& [nom, valeur] : facture.Variables()) variables += nom % u'=' % valeur;
  EXPECT_EQ(variables.join(u'|'),
            u"MoisReleve=du mois d'octobre 2016|EcoleNom=École|ImplantationNom=|EcoleAdresse=|"
            "EcoleCodePostal=|EcoleLocalite=|EcoleTelephone=|CompteBanque=BE68|DatePaiement="_s);
  ASSERT_EQ(anne.Id, 1);  // 0000110161 modulo 97 is 66
  EXPECT_EQ(
      Dessin(facture),
      uR"([Total] <b>"Anne": NomEleve=[Total] | PrenomEleve=<b>"Anne" | Classe=P3 A | SoldeFacture=73,91 | SoldeFacture2=73,91 | Communication=+++000/0110/16166+++ [DatePaiementFacture] +++000/0110/16166+++ | Paiement=2,50 | TotalGeneral=73,91
  Frais Obligatoire: TypeFrais=Frais obligatoires | TotalFrais=20,00
    Piscine: NomService=Piscine | Total=14,00
    Partiel: NomService=Partiel | Total=6,00
  Frais Non Obligatoire: TypeFrais=Frais non obligatoires | TotalFrais=8,50
    Photo: NomService=Photo | Total=8,50
  Services: TypeFrais=Services | TotalFrais=43,67
    Garderies du matin: NomService=Garderies du matin | Total=2,46
    Garderies du midi: NomService=Garderies du midi | Total=0,51
    Garderies du soir / études: NomService=Garderies du soir / études | Total=2,00
    Garderies du mercredi: NomService=Garderies du mercredi | Total=3,00
    Atelier: NomService=Atelier | Total=30,00
    Repas chaud: NomService=Repas chaud | Total=3,50
    Soupes: NomService=Soupes | Total=0,70
    Etudes: NomService=Etudes | Total=1,51
  Rappel: TypeFrais=Rappel | TotalFrais=4,23
    Septembre: NomService=Septembre | Total=4,23)"_s);
  EXPECT_EQ(Valeur(Facturer({radie.Id}), u"NomEleve"), u"Eleve3"_s);
}

TEST_F(TFactureEssai, UnMoisPayeSortDesMontantsOuverts) {
  TEleveEssai anne = UnEleve();
  Scans(anne, {u"matin 2016-10-03"_s, u"repas 2016-10-03"_s, u"soupe 2016-10-03"_s});
  anne.mois(10, u"5.4345"_s);  // exactly what October costs
  Scans(anne, {u"matin 2016-11-07"_s, u"matin 2016-11-08"_s, u"repas 2016-11-07"_s, u"repas 2016-11-08"_s,
               u"repas 2016-11-10"_s, u"soupe 2016-11-07"_s, u"soir 2016-11-09"_s /* a Wednesday */});
  const auto services = [&] { return Lignes(anne.Id, "2016-10-01", "2016-11-30", u"Services"_s); };

  // Morning 3.70 less its own 1.2345, meals 14.00 less all that was paid; the soups go below 0, and
  // there was no Wednesday to be taken off.
  EXPECT_EQ(services(), u"Garderies du matin 2,47|Garderies du mercredi 3,00|Repas chaud 8,57"_s);
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-11-30");
  EXPECT_EQ(Valeur(resultat, u"TotalGeneral"), u"14,03"_s);
  EXPECT_EQ(Valeur(resultat, u"Communication"), QString());
  EXPECT_EQ(Valeur(resultat, u"MoisReleve"), u"du 1 octobre 2016 au 30 novembre 2016"_s);
  EXPECT_EQ(Facturer({anne.Id}).Messages,
            QStringList{u"Aucune facture n'est à établir pour la période choisie."_s});

  base.Sql(u"UPDATE PAIEMENTS SET MONTANT = 5.4344"_s);  // no longer exactly
  EXPECT_EQ(services(),
            u"Garderies du matin 3,70|Garderies du mercredi 3,00|Repas chaud 14,00|Soupes 1,40"_s);
  anne.avec(u"FLG_3E_ENFANT"_s);
  base.Sql(u"UPDATE PAIEMENTS SET MONTANT = 4.2"_s);  // what October costs without day-care
  EXPECT_EQ(services(), u"Repas chaud 9,80"_s);
}

TEST_F(TFactureEssai, RappelDesMoisAvantLaPeriode) {
  TEleveEssai anne = UnEleve();
  Scans(anne, {u"matin 2016-09-05"_s, u"matin 2016-10-03"_s, u"matin 2016-11-07"_s});
  anne.doit(ecole.frais(u"Livre"_s, u"2"_s, 10));
  const struct {
    const char *Du, *Au, *Rappels;
  } cas[] = {
      {"2016-09-01", "2017-06-30", ""},
      {"2016-09-01", "2016-10-31", ""},
      {"2016-10-01", "2016-10-31", "Septembre 1,23"},
      {"2016-11-01", "2016-11-30", "Septembre 1,23|Octobre 3,23"},
      {"2016-10-15", "2016-11-20", "Septembre 1,23|Octobre 3,23"},  // October started before
      {"2016-10-15", "2016-10-20", "Septembre 1,23"},               // and ends after
  };
  for (const auto& [du, au, rappels] : cas)
    EXPECT_EQ(Lignes(anne.Id, du, au), QString::fromLatin1(rappels)) << du << au;
  // A free payment of a month counts twice for it: once by its own month, once by being free.
  anne.paie(u"1.5"_s, 10, 2, {});
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"), u"Septembre 1,23|Octobre 0,23"_s);
}

TEST_F(TFactureEssai, ArrieresDeLaBalanceAnnuelle) {
  const QString lignes =
      u"Total des factures émises du 1 septembre 2016 au %1 %2|"
      "Total des paiements reçus du 1 septembre au 2016 au %1 -%3"_s;
  ecole.parametre(42, u"1"_s);
  TEleveEssai anne = UnEleve();
  Scans(anne, {u"matin 2016-09-02"_s, u"matin 2016-11-07"_s});
  anne.doit(ecole.frais(u"Cahiers"_s, u"9"_s, 9), u"4"_s)
      .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s))
      .paie(u"10"_s, 10, 2, {})
      .paie(u"5"_s, 11, 2, {});
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"),
            lignes.arg(u"31 octobre 2016"_s, u"40,23"_s, u"14,00"_s));
  const TResultat novembre = Facturer({anne.Id}, "2016-11-01", "2016-11-30");
  EXPECT_TRUE(
      Dessin(novembre.Rapports.at(0))
          .contains(u"\n  Rappel: TypeFrais=Arriérés | TotalFrais=26,23\n    Total des factures: "_s));
  EXPECT_EQ(Valeur(novembre, u"Paiement"), QString());       // no payments of the period
  EXPECT_EQ(Valeur(novembre, u"TotalGeneral"), u"27,46"_s);  // 1.23 + 26.2345

  // Until 2 September there is nothing before; then a month counts as soon as it has started.
  EXPECT_EQ(Lignes(anne.Id, "2016-09-02", "2016-09-30"), QString());
  EXPECT_EQ(Lignes(anne.Id, "2016-09-03", "2016-09-30"),
            lignes.arg(u"2 septembre 2016"_s, u"1,23"_s, u"4,00"_s));
  const TResultat trop = Facturer({anne.Id}, "2016-09-03", "2016-09-30");
  EXPECT_EQ(Valeur(trop, u"TotalGeneral") % Valeur(trop, u"SoldeFacture2"), QString(u"-2,77"_s % u"2,77"_s));
  anne.mois(9, u"1.2345"_s);          // a month marked paid is charged again: only what the ledger has counts
  anne.paie(u"26.2345"_s, 9, 0, {});  // as much paid as charged
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"), QString());
}

TEST_F(TFactureEssai, DateDePaiementEtCommunication) {
  base.Sql(u"UPDATE COUNTERS SET VALEUR = 99999 WHERE TABLE_NAME = 'ELEVES'"_s);
  TEleveEssai anne = UnEleve(u"FLG_FACTURE_DETAIL"_s);
  Scans(anne, {u"matin 2016-10-03"_s});
  ecole.parametre(10, u"Le [DatePaiementFacture] ou le [DatePaiementFacture] [ComStructParFacture]"_s);
  const TDateTime date = J("2016-11-14");
  // Not asked for: what is given is left aside.
  EXPECT_EQ(Valeur(Facturer({anne.Id}, "2016-10-01", "2016-10-31", date), u"DatePaiement"), QString());
  ecole.parametre(32, u"1"_s);
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-10-31", date);
  EXPECT_EQ(Valeur(resultat, u"DatePaiement"), u"lundi 14 novembre 2016"_s);
  EXPECT_EQ(Valeur(resultat, u"Communication"), u"Le lundi 14 novembre 2016 ou le lundi 14 novembre 2016 "_s);
  EXPECT_EQ(resultat.Messages,
            QStringList{u"L'identifiant élève est trop grand pour générer une communication structurée !"_s});
  // Given up: silence, and no detail either.
  const TResultat rien = Facturer({anne.Id});
  EXPECT_EQ(rien.EnJson(u"Facture"_s), R"({"titre":"Facture","messages":[],"rapports":[]})");
  EXPECT_FALSE(rien.Echec);
}
