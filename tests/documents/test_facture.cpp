#include "ecole_documents.h"

namespace {

using TFactureEssai = TDocumentsEssai;

/// The texts of the lines of a section of the only pupil, with what they show.
QStringList Lignes(const TResultat& resultat, const QString& section) {
  QStringList lignes;
  for (const TRapport& rapport : resultat.Rapports)
    for (const TNoeudRapport& noeud : rapport.Arbre().at(0).Enfants)
      if (noeud.Texte == section)
        for (const TNoeudRapport& ligne : noeud.Enfants)
          lignes += ligne.Valeurs.Valeur(u"NomService") % u' ' % ligne.Valeurs.Valeur(u"Total");
  return lignes;
}

const QString kServicesNom = QStringLiteral("Services");
const QString kRappel = QStringLiteral("Rappel");
const QString kAucune = QStringLiteral("Aucune facture n'est à établir pour la période choisie.");

}  // namespace

TEST_F(TFactureEssai, UnMoisOuvert) {
  const auto texte = [](const char* t) { return QString::fromUtf8(t); };
  TEleveEssai anne = UnEleve().nomme(texte("[Total]"), texte("<b>\"Anne\""));
  anne.doit(ecole.frais(texte("Piscine"), texte("14"), 10))
      .doit(ecole.frais(texte("Partiel"), texte("6"), 10), texte("2"))
      .doit(ecole.frais(texte("Réglé"), texte("5"), 10), texte("5"))
      .doit(ecole.frais(texte("Photo"), texte("8.5"), 10, texte("non_obligatoire")))
      .doit(ecole.frais(texte("Atelier"), texte("30"), 10, texte("service")))
      .doit(ecole.frais(texte("Prévu"), texte("99"), 10, texte("previsionnel")))
      .doit(ecole.frais(texte("Novembre"), texte("7"), 11))
      .doit(ecole.frais(texte("Cahiers"), texte("9"), 9), texte("4"))
      .paie(texte("1"), 9, 0, texte("Virement"))
      .paie(texte("2.5"), 10, 2, texte("Virement"));
  for (const char* jour : {"2016-09-05", "2016-10-03", "2016-10-04"}) UnMatin(anne, jour);
  Scan(anne, Essai::Garderie, "2016-10-03", "12:15", "");
  UnSoir(anne, "2016-10-03");
  UnSoir(anne, "2016-10-05");  // a Wednesday
  UnRepas(anne, "2016-10-03");
  UnSoupe(anne, "2016-10-04");
  UnEtude(anne, "2016-10-04");
  TEleveEssai sans = UnEleve();
  TEleveEssai radie = UnEleve().avec(texte("FLG_RADIE"));
  UnMatin(radie, "2016-10-03");
  ecole.parametre(1, texte("École"));
  ecole.parametre(11, texte("BE68"));
  ecole.parametre(10, texte("[ComStructParFacture] [DatePaiementFacture] [ComStructParFacture]"));
  ecole.parametre(103, texte("1"));

  const TResultat resultat = Facturer({anne.Id, sans.Id, radie.Id}, "2016-10-01", "2016-10-31");
  EXPECT_EQ(resultat.Messages, QStringList());
  EXPECT_FALSE(resultat.Echec);
  ASSERT_EQ(resultat.Rapports.size(), 2U);  // the detail of the one who was struck off comes with it
  const TRapport& facture = resultat.Rapports[0];
  EXPECT_EQ(facture.Modele(), texte("Facture"));
  QStringList variables;
  for (const auto& [nom, valeur] : facture.Variables()) variables += nom % u'=' % valeur;
  EXPECT_EQ(variables.join(u'|'),
            texte("MoisReleve=du mois d'octobre 2016|EcoleNom=École|ImplantationNom=|EcoleAdresse=|"
                  "EcoleCodePostal=|EcoleLocalite=|EcoleTelephone=|CompteBanque=BE68|DatePaiement="));
  ASSERT_EQ(anne.Id, 1);  // 0000110161 modulo 97 is 66
  EXPECT_EQ(Dessin(facture).join(u'\n'),
            texte("[Total] <b>\"Anne\" | NomEleve=[Total] | PrenomEleve=<b>\"Anne\" | Classe=P3 A | "
                  "SoldeFacture=73,91 | SoldeFacture2=73,91 | "
                  "Communication=+++000/0110/16166+++ [DatePaiementFacture] +++000/0110/16166+++ | "
                  "Paiement=2,50 | TotalGeneral=73,91\n"
                  "  Frais Obligatoire | TypeFrais=Frais obligatoires | TotalFrais=20,00\n"
                  "    Piscine | NomService=Piscine | Total=14,00\n"
                  "    Partiel | NomService=Partiel | Total=6,00\n"
                  "  Frais Non Obligatoire | TypeFrais=Frais non obligatoires | TotalFrais=8,50\n"
                  "    Photo | NomService=Photo | Total=8,50\n"
                  "  Services | TypeFrais=Services | TotalFrais=43,67\n"
                  "    Garderies du matin | NomService=Garderies du matin | Total=2,46\n"
                  "    Garderies du midi | NomService=Garderies du midi | Total=0,51\n"
                  "    Garderies du soir / études | NomService=Garderies du soir / études | Total=2,00\n"
                  "    Garderies du mercredi | NomService=Garderies du mercredi | Total=3,00\n"
                  "    Atelier | NomService=Atelier | Total=30,00\n"
                  "    Repas chaud | NomService=Repas chaud | Total=3,50\n"
                  "    Soupes | NomService=Soupes | Total=0,70\n"
                  "    Etudes | NomService=Etudes | Total=1,51\n"
                  "  Rappel | TypeFrais=Rappel | TotalFrais=4,23\n"
                  "    Septembre | NomService=Septembre | Total=4,23"));
  EXPECT_EQ(Facturer({radie.Id}, "2016-10-01", "2016-10-31").Rapports.at(0).Arbre()[0].Texte,
            texte("Eleve3 Prenom3"));
}

TEST_F(TFactureEssai, UnMoisPayeSortDesMontantsOuverts) {
  TEleveEssai anne = UnEleve();
  UnMatin(anne, "2016-10-03");
  UnRepas(anne, "2016-10-03");
  UnSoupe(anne, "2016-10-03");
  anne.mois(10, QStringLiteral("5.4345"));  // exactly what October costs
  for (const char* jour : {"2016-11-07", "2016-11-08"}) UnMatin(anne, jour);
  for (const char* jour : {"2016-11-07", "2016-11-08", "2016-11-10"}) UnRepas(anne, jour);
  UnSoir(anne, "2016-11-09");  // a Wednesday: October had none
  UnSoupe(anne, "2016-11-07");

  // Morning 3.70 less its own 1.2345, meals 14.00 less all that was paid; the soups go below 0.
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-11-30");
  EXPECT_EQ(Lignes(resultat, kServicesNom).join(u'|'),
            QStringLiteral("Garderies du matin 2,47|Garderies du mercredi 3,00|Repas chaud 8,57"));
  const TRapport& facture = resultat.Rapports.at(0);
  EXPECT_EQ(facture.Valeur(u"TotalGeneral", {}), QStringLiteral("14,03"));
  EXPECT_EQ(facture.Valeur(u"Communication", {}), QString());
  EXPECT_EQ(facture.Valeur(u"MoisReleve", {}), QStringLiteral("du 1 octobre 2016 au 30 novembre 2016"));
  EXPECT_EQ(Facturer({anne.Id}, "2016-10-01", "2016-10-31").Messages, QStringList{kAucune});

  base.Sql(QStringLiteral("UPDATE PAIEMENTS SET MONTANT = 5.4344"));  // no longer exactly
  EXPECT_EQ(
      Lignes(Facturer({anne.Id}, "2016-10-01", "2016-11-30"), kServicesNom).join(u'|'),
      QStringLiteral("Garderies du matin 3,70|Garderies du mercredi 3,00|Repas chaud 14,00|Soupes 1,40"));

  anne.avec(QStringLiteral("FLG_3E_ENFANT"));  // October now costs 4.20
  base.Sql(QStringLiteral("UPDATE PAIEMENTS SET MONTANT = 4.2"));
  EXPECT_EQ(Lignes(Facturer({anne.Id}, "2016-10-01", "2016-11-30"), kServicesNom).join(u'|'),
            QStringLiteral("Repas chaud 9,80"));
}

TEST_F(TFactureEssai, RappelDesMoisAvantLaPeriode) {
  TEleveEssai anne = UnEleve();
  for (const char* jour : {"2016-09-05", "2016-10-03", "2016-11-07"}) UnMatin(anne, jour);
  anne.doit(ecole.frais(QStringLiteral("Livre"), QStringLiteral("2"), 10));
  const struct {
    const char* Du;
    const char* Au;
    const char* Rappels;
  } cas[] = {
      {"2016-09-01", "2017-06-30", ""},
      {"2016-10-01", "2016-10-31", "Septembre 1,23"},
      {"2016-11-01", "2016-11-30", "Septembre 1,23|Octobre 3,23"},
      {"2016-10-15", "2016-11-20", "Septembre 1,23|Octobre 3,23"},  // October only started before
      {"2016-10-01", "2016-10-20", "Septembre 1,23"},               // and ends after
      {"2016-10-15", "2016-10-20", "Septembre 1,23"},
      {"2016-09-01", "2016-10-31", ""},
  };
  for (const auto& [du, au, rappels] : cas)
    EXPECT_EQ(Lignes(Facturer({anne.Id}, du, au), kRappel).join(u'|'), QString::fromLatin1(rappels))
        << du << au;
  // A free payment of a month counts twice for it: once by its own month, once by being free.
  anne.paie(QStringLiteral("1.5"), 10, 2, {});
  EXPECT_EQ(Lignes(Facturer({anne.Id}, "2016-11-01", "2016-11-30"), kRappel).join(u'|'),
            QStringLiteral("Septembre 1,23|Octobre 0,23"));
}

TEST_F(TFactureEssai, ArrieresDeLaBalanceAnnuelle) {
  const QString texteDu = QStringLiteral("Total des factures émises du 1 septembre 2016 au ");
  const QString texteVerse = QStringLiteral("Total des paiements reçus du 1 septembre au 2016 au ");
  ecole.parametre(42, QStringLiteral("1"));
  TEleveEssai anne = UnEleve();
  UnMatin(anne, "2016-09-02");
  UnMatin(anne, "2016-11-07");
  anne.doit(ecole.frais(QStringLiteral("Cahiers"), QStringLiteral("9"), 9), QStringLiteral("4"))
      .doit(ecole.frais(QStringLiteral("Atelier"), QStringLiteral("30"), 10, QStringLiteral("service")))
      .paie(QStringLiteral("10"), 10, 2, {})
      .paie(QStringLiteral("5"), 11, 2, {});

  const TResultat novembre = Facturer({anne.Id}, "2016-11-01", "2016-11-30");
  EXPECT_EQ(Lignes(novembre, kRappel), (QStringList{QString(texteDu % u"31 octobre 2016 40,23"),
                                                    QString(texteVerse % u"31 octobre 2016 -14,00")}));
  const TNoeudRapport& eleve = novembre.Rapports.at(0).Arbre()[0];
  EXPECT_EQ(eleve.Enfants.back().Valeurs.Valeur(u"TypeFrais"), QStringLiteral("Arriérés"));
  EXPECT_EQ(eleve.Enfants.back().Valeurs.Valeur(u"TotalFrais"), QStringLiteral("26,23"));
  EXPECT_EQ(eleve.Enfants.back().Enfants[0].Texte, QStringLiteral("Total des factures"));
  EXPECT_EQ(eleve.Enfants.back().Enfants[1].Texte, QStringLiteral("Total payé"));
  EXPECT_EQ(eleve.Valeurs.Trouver(u"Paiement"), nullptr);                     // no payments of the period
  EXPECT_EQ(eleve.Valeurs.Valeur(u"TotalGeneral"), QStringLiteral("27,46"));  // 1.23 + 26.2345

  // Until 2 September there is nothing before; then a month counts as soon as it has started.
  EXPECT_EQ(Lignes(Facturer({anne.Id}, "2016-09-02", "2016-09-30"), kRappel), QStringList());
  EXPECT_EQ(Lignes(Facturer({anne.Id}, "2016-09-03", "2016-09-30"), kRappel),
            (QStringList{QString(texteDu % u"2 septembre 2016 1,23"),
                         QString(texteVerse % u"2 septembre 2016 -4,00")}));
  // Too much paid: what is owed is below 0.
  const TResultat trop = Facturer({anne.Id}, "2016-09-03", "2016-09-30");
  EXPECT_EQ(trop.Rapports.at(0).Valeur(u"TotalGeneral", {}), QStringLiteral("-2,77"));
  EXPECT_EQ(trop.Rapports.at(0).Valeur(u"SoldeFacture2", {}), QStringLiteral("2,77"));
  // As much paid as charged: no section.
  anne.paie(QStringLiteral("26.2345"), 9, 0, {});
  EXPECT_EQ(Lignes(Facturer({anne.Id}, "2016-11-01", "2016-11-30"), kRappel), QStringList());
}

TEST_F(TFactureEssai, DateDePaiement) {
  TEleveEssai anne = UnEleve();
  UnMatin(anne, "2016-10-03");
  ecole.parametre(10, QStringLiteral("Le [DatePaiementFacture] ou le [DatePaiementFacture]"));
  const TDateTime date = J("2016-11-14");
  // Not asked for: what is given is left aside.
  EXPECT_EQ(Facturer({anne.Id}, "2016-10-01", "2016-10-31", date).Rapports.at(0).Valeur(u"DatePaiement", {}),
            QString());
  ecole.parametre(32, QStringLiteral("1"));
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-10-31", date);
  EXPECT_EQ(resultat.Rapports.at(0).Valeur(u"DatePaiement", {}), QStringLiteral("lundi 14 novembre 2016"));
  EXPECT_EQ(resultat.Rapports.at(0).Valeur(u"Communication", {}),
            QStringLiteral("Le lundi 14 novembre 2016 ou le lundi 14 novembre 2016"));
  // Given up: silence, and no detail either.
  anne.avec(QStringLiteral("FLG_FACTURE_DETAIL"));
  const TResultat rien = Facturer({anne.Id}, "2016-10-01", "2016-10-31");
  EXPECT_EQ(rien.EnJson(QStringLiteral("Facture")), R"({"titre":"Facture","messages":[],"rapports":[]})");
  EXPECT_FALSE(rien.Echec);
}

TEST_F(TFactureEssai, IdentifiantTropGrand) {
  base.Sql(QStringLiteral("UPDATE COUNTERS SET VALEUR = 99999 WHERE TABLE_NAME = 'ELEVES'"));
  TEleveEssai anne = UnEleve();
  UnMatin(anne, "2016-10-03");
  ecole.parametre(10, QStringLiteral("Com: [ComStructParFacture]"));
  const TResultat resultat = Facturer({anne.Id}, "2016-10-01", "2016-10-31");
  EXPECT_EQ(resultat.Messages,
            QStringList{QStringLiteral(
                "L'identifiant élève est trop grand pour générer une communication structurée !")});
  EXPECT_EQ(resultat.Rapports.at(0).Valeur(u"Communication", {}), QStringLiteral("Com: "));
}
