#include "documents/qr_paiement.h"
#include "ecole_documents.h"

namespace {

/// A pupil with something of everything in September and October.
struct TCompteEssai : TDocumentsEssai {
  void SetUp() override {
    TDocumentsEssai::SetUp();
    ecole.parametre(107, u"1"_s);
    TEleveEssai anne = UnEleve();
    anne.doit(ecole.frais(u"Piscine"_s, u"54"_s, 10))
        .doit(ecole.frais(u"Atelier"_s, u"30"_s, 10, u"service"_s))
        .doit(ecole.frais(u"Cahiers"_s, u"9"_s, 9), u"4"_s)
        .doit(ecole.frais(u"Réglé"_s, u"5"_s, 10), u"5"_s)
        .doit(ecole.frais(u"Prévu"_s, u"99"_s, 10, u"previsionnel"_s), u"99"_s)
        .paie(u"20"_s, 9, 2, u"Virement"_s)
        .mois(10, u"36.7444"_s);  // October is settled, and billed all the same
    Scans(anne, {u"matin 2016-09-05"_s, u"matin 2016-10-03"_s, u"soir 2016-10-03"_s, u"repas 2016-10-03"_s});
    ASSERT_EQ(anne.Id, 1);
  }
  void Vrais(const QString& parametres) {
    base.Sql(u"DELETE FROM PARAMETRE WHERE PARAMETRE_ID IN (108, 110, 112)"_s);
    for (const QString& id : parametres.split(u' ', Qt::SkipEmptyParts)) ecole.parametre(id.toInt(), u"1"_s);
  }
  /// "section: row 1,00; row 2,00 = sum" a line, after template and values of the pupil; or the messages.
  QString Compte() {
    const TResultat resultat = Facturer({1});
    if (resultat.Rapports.empty()) return resultat.Messages.join(u'|');
    const TRapport& rapport = resultat.Rapports[0];
    const TNoeudRapport& eleve = rapport.Arbre().at(0);
    const auto valeur = [&](const char16_t* nom) { return eleve.Valeurs.Valeur(nom); };
    QStringList texte{rapport.Modele() % u' ' % valeur(u"SoldeFacture") % u' ' % valeur(u"SoldePostif") %
                      u' ' % valeur(u"Communication") % u" TypeService=" %
                      rapport.Variables().Valeur(u"TypeService")};
    for (const TNoeudRapport& section : eleve.Enfants) {
      QStringList lignes;
      for (const TNoeudRapport& l : section.Enfants)
        lignes += (l.Texte == l.Valeurs.Valeur(u"NomService") ? QString() : l.Texte % u'/') %
                  l.Valeurs.Valeur(u"NomService") % u' ' % l.Valeurs.Valeur(u"Total");
      texte += section.Texte % u", " % section.Valeurs.Valeur(u"TypeFrais") % u": " % lignes.join(u"; ") %
               u" = " % section.Valeurs.Valeur(u"TitreTotal") % section.Valeurs.Valeur(u"TotalFrais");
    }
    return texte.join(u'\n');
  }
};

}  // namespace

TEST_F(TCompteEssai, ChaqueDisposition) {
  const QString mois =
      u"Garderies du matin 1,23; Garderies du soir 2,01; Repas chaud 3,50; Atelier 30,00 "
      "= <i>Sous-total</i><i>36,74</i>"_s;
  const QString activites =
      u"\nServices, Activités du mois: Piscine 54,00; Atelier 30,00 = <i>Sous-total</i><i>84,00</i>"_s;
  const QString etat =
      u"\nEtat de votre compte, Etat de votre compte: Vos paiements depuis le 1er septembre "_s;
  const QString garderies = u"%2 -1,23; Garderies du mois en cours/%1 du mois d'octobre 2016 -36,74"_s;
  const QString frais =
      u"; Frais des mois précédents/Activités des mois précédents -9,00; "
      "Frais du mois en cours/Activités du mois d'octobre 2016 %1 = <b>SOLDE</b><b>%2</b>"_s;
  const QString repas =
      u"ReleveFactureBrumeval 47,77 1 +++300/0001/01651+++ TypeService=\n"
      "Services, Repas du mois: "_s %
      mois % etat % u"85,74; " %
      garderies.arg(u"Repas"_s, u"Garderies des mois précédents/Repas des mois précédents"_s) %
      u" = <b>SOLDE</b><b>47,77</b>";
  const QString aucune = u"Aucune facture n'est à établir pour la période choisie."_s;
  const std::pair<const char*, QString> cas[] = {
      {"",
       u"ReleveFactureVesper -45,23 0 +++100/0001/01680+++ TypeService=1\n"
       "Services, Garderies du mois: "_s %
           mois % activites % etat % u"85,74; " %
           garderies.arg(u"Garderies et études"_s,
                         u"Garderies des mois précédents/Garderies et études des mois précédents"_s) %
           frais.arg(u"-84,00"_s, u"-45,23"_s)},
      {"112",
       u"ReleveFactureVesper 38,77 1 +++100/0001/01680+++ TypeService=1\n"
       "Services, Garderies du mois: "_s %
           mois % etat % u"85,74; " % garderies.arg(u"Garderies"_s, u"Garderies des mois précédents"_s) %
           frais.arg(u"0,00"_s, u"38,77"_s)},
      // What was paid on fee lines counts twice, and the activities of the month without a row.
      {"110",
       u"FactureVirement -7,23 0 +++000/0001/01646+++ TypeService=1\n"
       "Services, Services du mois: "_s %
           mois % activites % etat %
           u"114,74; Services des mois précédents -1,23; "
           "Services du mois en cours/Services du mois d'octobre 2016 -36,74 "
           "= <b>SOLDE</b><b>-7,23</b>"},
      {"108", repas},
      {"108 112", repas},
      {"108 110", aucune},  // only who owes
      {"110 112", aucune},
  };
  for (const auto& [vrais, attendu] : cas) {
    Vrais(QString::fromLatin1(vrais));
    EXPECT_EQ(Compte(), attendu) << vrais;
  }
}

TEST_F(TCompteEssai, UnComptePasOuvert) {
  Vrais(QString());
  const int sans = UnEleve().Id;
  const TResultat resultat = Facturer({sans}, "2016-09-01", "2016-09-30");
  EXPECT_TRUE(
      Dessin(resultat.Rapports.at(0)).contains(uR"(
  Services: TypeFrais=Garderies du mois | TitreTotal=<i>Sous-total</i> | TotalFrais=<i>0,00</i>
    Néant: NomService=Néant | Total=0
)"_s));
  EXPECT_EQ(*resultat.Rapports[0].Valeur(u"SoldePostif", {}), u"2"_s);
  Vrais(u"110"_s);
  EXPECT_EQ(Facturer({sans}).Rapports.size(), 0U);
}

TEST_F(TCompteEssai, CasesDuVirement) {
  Vrais(QString());
  ecole.parametre(114, u"1"_s);
  ecole.parametre(50, u"Été 𝄞 ASBL"_s);
  ecole.parametre(51, u"BE68 5390 0754 7034"_s);
  ecole.parametre(54, u"5537"_s);
  ecole.parametre(55, u"Brumeval"_s);
  const TResultat resultat = Facturer({1});
  const TRapport& rapport = resultat.Rapports.at(0);
  const auto cases = [&](const QString& radical, int nombre) {
    QStringList textes;
    for (int i = 1; i <= nombre; ++i) textes += *rapport.Valeur(QString(radical % QString::number(i)), {});
    return textes.join(u'|');
  };
  EXPECT_EQ(cases(u"COMMUNICATION"_s, 22), u"+|+|+|1|0|0|/|0|0|0|1|/|0|0|0|6|4|+|+|+||"_s);
  EXPECT_EQ(cases(u"EURO"_s, 11), u" | | | | | |4|5|2|3|"_s);
  EXPECT_EQ(cases(u"CB"_s, 17), u"B|E|6|8| |5|3|9|0| |0|7|5|4| |7|"_s);
  EXPECT_EQ(cases(u"BIC"_s, 9), u" | | | | | | | |"_s);
  EXPECT_EQ(cases(u"NOM"_s, 12), u"É|t|é| |𝄞| |A|S|B|L| | "_s);
  EXPECT_EQ(cases(u"NOM"_s, 27).count(u'|'), 26);
  EXPECT_EQ(cases(u"2ADRESSE"_s, 14), u"5|5|3|7| |B|r|u|m|e|v|a|l| "_s);
  EXPECT_EQ(rapport.Avertissements,
            QStringList{u"Le compte IBAN du bénéficiaire, « BE68 5390 0754 7034 », ne tient pas dans les 16 "
                        "cases de l'ordre de virement."_s});
}

TEST_F(TCompteEssai, CodeDePaiement) {
  const auto texte = [&](Currency montant, const QString& communication = u"+++100/0001/01680+++"_s) {
    return TQrPaiement(TParametres(*base)).Texte(communication, montant);
  };
  ecole.parametre(1, QString(69, u'É') % u"ab");
  ecole.parametre(11, u"BE68 5390 0754 7034"_s);
  const QString debut = u"BCD\n002\n1\nSCT\n\n" % QString(69, u'É') % u"a\nBE68539007547034\nEUR"_s;
  EXPECT_EQ(texte(Currency::Euros(84)), debut % u"84.00\n\n\n+++100/0001/01680+++");
  EXPECT_EQ(texte(Currency::Brut(50)), debut % u"0.01\n\n\n+++100/0001/01680+++");
  for (const Currency nul :
       {Currency(), Currency::Brut(49), Currency::Euros(-5), Currency::Euros(1'000'000'000)})
    EXPECT_EQ(texte(nul), QString()) << nul.EnBrut();
  EXPECT_EQ(texte(Currency::Euros(1), {}), QString());
  EXPECT_EQ(texte(Currency::Euros(1), u"+++100/0001/01681+++"_s), QString());
  ecole.parametre(50, u"Vesper ASBL"_s);
  ecole.parametre(51, u"BE71 0961 2345 6769"_s);
  ecole.parametre(116, u"1"_s);
  EXPECT_EQ(texte(Currency::Euros(1)),
            u"BCD\n002\n1\nSCT\n\nVesper ASBL\nBE71096123456769\nEUR1.00\n\n100000101680"_s);
  // One wrong digit: no code at all, and the office is told once.
  ecole.parametre(51, u"BE71096123456768"_s);
  EXPECT_EQ(texte(Currency::Euros(1)), QString());
  const TResultat resultat = Facturer({1, 1});
  EXPECT_EQ(
      resultat.Rapports.at(0).Avertissements,
      QStringList{u"Le compte « BE71096123456768 » n'est pas un IBAN valable : les papiers n'ont pas de "
                  "code QR de paiement."_s});
  EXPECT_FALSE(resultat.EnJson(u"Facture"_s).contains("QrPaiement"));
}
