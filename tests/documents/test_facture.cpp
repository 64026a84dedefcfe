#include "ecole_documents.h"

namespace {

struct TFactureEssai : TDocumentsEssai {
  /// The lines of a section of the first pupil's invoice: "Repas chaud 3,50|Soupes 0,70".
  QString Lignes(int eleve, const char* du, const char* au, const QString& section = "Rappel") {
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
  TEleveEssai anne = UnEleve().nomme("[Total]", "<b>\"Anne\"");
  anne.doit(ecole.frais("Piscine", "14", 10))
      .doit(ecole.frais("Partiel", "6", 10), "2")
      .doit(ecole.frais("Réglé", "5", 10), "5")
      .doit(ecole.frais("Photo", "8.5", 10, "non_obligatoire"))
      .doit(ecole.frais("Atelier", "30", 10, "service"))
      .doit(ecole.frais("Prévu", "99", 10, "previsionnel"))
      .doit(ecole.frais("Novembre", "7", 11))
      .doit(ecole.frais("Cahiers", "9", 9), "4")
      .paie("1", 9, 0, "Virement")
      .paie("2.5", 10, 2, "Virement");
  Scans(anne,
        {"matin 2016-09-05", "matin 2016-10-03", "matin 2016-10-04", "midi 2016-10-03", "soir 2016-10-03",
         u"soir 2016-10-05"_s /* a Wednesday */, "repas 2016-10-03", "soupe 2016-10-04", "etude 2016-10-04"});
  const int sans = UnEleve().Id;
  TEleveEssai radie = UnEleve("FLG_RADIE");
  Scans(radie, {"matin 2016-10-03"});
  ecole.parametre(1, "École");
  ecole.parametre(11, "BE68");
  ecole.parametre(10, "[ComStructParFacture] [DatePaiementFacture] [ComStructParFacture]");
  ecole.parametre(103, "1");

  const TResultat resultat = Facturer({anne.Id, sans, radie.Id});
  EXPECT_EQ(resultat.Messages, QStringList());
  ASSERT_FALSE(resultat.Echec || resultat.Rapports.empty());
  const TRapport& facture = resultat.Rapports[0];
  EXPECT_EQ(facture.Modele(), "Facture");
  EXPECT_EQ(Variables(facture),
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
  EXPECT_EQ(Valeur(Facturer({radie.Id}), u"NomEleve"), "Eleve3");
}

TEST_F(TFactureEssai, UnMoisPayeSortDesMontantsOuverts) {
  TEleveEssai anne = UnEleve();
  Scans(anne, {"matin 2016-10-03", "repas 2016-10-03", "soupe 2016-10-03"});
  anne.mois(10, "5.4345");  // exactly what October costs
  Scans(anne, {"matin 2016-11-07", "matin 2016-11-08", "repas 2016-11-07", "repas 2016-11-08",
               "repas 2016-11-10", "soupe 2016-11-07", u"soir 2016-11-09"_s /* a Wednesday */});
  const auto services = [&] { return Lignes(anne.Id, "2016-10-01", "2016-11-30", "Services"); };

  // Morning 3.70 less its own 1.2345, meals 14.00 less all that was paid; the soups go below 0, and
  // there was no Wednesday to be taken off.
  EXPECT_EQ(services(), "Garderies du matin 2,47|Garderies du mercredi 3,00|Repas chaud 8,57");
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-11-30");
  EXPECT_EQ(Valeur(resultat, u"TotalGeneral"), "14,03");
  EXPECT_EQ(Valeur(resultat, u"Communication"), QString());
  EXPECT_EQ(Valeur(resultat, u"MoisReleve"), "du 1 octobre 2016 au 30 novembre 2016");
  EXPECT_EQ(Facturer({anne.Id}).Messages,
            QStringList{"Aucune facture n'est à établir pour la période choisie."});

  base.Sql("UPDATE PAIEMENTS SET MONTANT = 5.4344");  // no longer exactly
  EXPECT_EQ(services(), "Garderies du matin 3,70|Garderies du mercredi 3,00|Repas chaud 14,00|Soupes 1,40");
  anne.avec("FLG_3E_ENFANT");
  base.Sql("UPDATE PAIEMENTS SET MONTANT = 4.2");  // what October costs without day-care
  EXPECT_EQ(services(), "Repas chaud 9,80");
}

TEST_F(TFactureEssai, RappelDesMoisAvantLaPeriode) {
  TEleveEssai anne = UnEleve();
  Scans(anne, {"matin 2016-09-05", "matin 2016-10-03", "matin 2016-11-07"});
  anne.doit(ecole.frais("Livre", "2", 10));
  const std::tuple<const char*, const char*, const char*> cas[] = {
      {"2016-09-01", "2017-06-30", ""},
      {"2016-09-01", "2016-10-31", ""},
      {"2016-10-01", "2016-10-31", "Septembre 1,23"},
      {"2016-11-01", "2016-11-30", "Septembre 1,23|Octobre 3,23"},
      {"2016-10-15", "2016-11-20", "Septembre 1,23|Octobre 3,23"},  // October started before
      {"2016-10-15", "2016-10-20", "Septembre 1,23"},               // and ends after
  };
  for (const auto& [du, au, rappels] : cas) EXPECT_EQ(Lignes(anne.Id, du, au), rappels) << du << au;
  // A free payment of a month counts twice for it: once by its own month, once by being free.
  anne.paie("1.5", 10, 2, {});
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"), "Septembre 1,23|Octobre 0,23");
}

TEST_F(TFactureEssai, ArrieresDeLaBalanceAnnuelle) {
  const QString lignes =
      u"Total des factures émises du 1 septembre 2016 au %1 %2|"
      "Total des paiements reçus du 1 septembre au 2016 au %1 -%3"_s;
  ecole.parametre(42, "1");
  TEleveEssai anne = UnEleve();
  Scans(anne, {"matin 2016-09-02", "matin 2016-11-07"});
  anne.doit(ecole.frais("Cahiers", "9", 9), "4")
      .doit(ecole.frais("Atelier", "30", 10, "service"))
      .paie("10", 10, 2, {})
      .paie("5", 11, 2, {});
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"), lignes.arg("31 octobre 2016", "40,23", "14,00"));
  const TResultat novembre = Facturer({anne.Id}, "2016-11-01", "2016-11-30");
  EXPECT_TRUE(Dessin(novembre.Rapports.at(0))
                  .contains("\n  Rappel: TypeFrais=Arriérés | TotalFrais=26,23\n    Total des factures: "));
  EXPECT_EQ(Valeur(novembre, u"Paiement"), QString());    // no payments of the period
  EXPECT_EQ(Valeur(novembre, u"TotalGeneral"), "27,46");  // 1.23 + 26.2345

  // Until 2 September there is nothing before; then a month counts as soon as it has started.
  EXPECT_EQ(Lignes(anne.Id, "2016-09-02", "2016-09-30"), QString());
  EXPECT_EQ(Lignes(anne.Id, "2016-09-03", "2016-09-30"), lignes.arg("2 septembre 2016", "1,23", "4,00"));
  const TResultat trop = Facturer({anne.Id}, "2016-09-03", "2016-09-30");
  EXPECT_EQ(Valeur(trop, u"TotalGeneral") % Valeur(trop, u"SoldeFacture2"), QString(u"-2,77"_s % u"2,77"_s));
  anne.mois(9, "1.2345");          // a month marked paid is charged again: only what the ledger has counts
  anne.paie("26.2345", 9, 0, {});  // as much paid as charged
  EXPECT_EQ(Lignes(anne.Id, "2016-11-01", "2016-11-30"), QString());
}

TEST_F(TFactureEssai, DateDePaiementEtCommunication) {
  base.Sql("UPDATE COUNTERS SET VALEUR = 99999 WHERE TABLE_NAME = 'ELEVES'");
  TEleveEssai anne = UnEleve("FLG_FACTURE_DETAIL");
  Scans(anne, {"matin 2016-10-03"});
  ecole.parametre(10, "Le [DatePaiementFacture] ou le [DatePaiementFacture] [ComStructParFacture]");
  const TDateTime date = J("2016-11-14");
  // Not asked for: what is given is left aside.
  EXPECT_EQ(Valeur(Facturer({anne.Id}, "2016-10-01", "2016-10-31", date), u"DatePaiement"), QString());
  ecole.parametre(32, "1");
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-10-31", date);
  EXPECT_EQ(Valeur(resultat, u"DatePaiement"), "lundi 14 novembre 2016");
  EXPECT_EQ(Valeur(resultat, u"Communication"), "Le lundi 14 novembre 2016 ou le lundi 14 novembre 2016 ");
  EXPECT_EQ(resultat.Messages,
            QStringList{"L'identifiant élève est trop grand pour générer une communication structurée !"});
  // Given up: silence, and no detail either.
  const TResultat rien = Facturer({anne.Id});
  EXPECT_EQ(rien.EnJson("Facture"), R"({"titre":"Facture","messages":[],"rapports":[]})");
  EXPECT_FALSE(rien.Echec);
}
