#include "documents/accueil_extrascolaire.h"
#include "ecole_documents.h"

namespace {

struct TAccueilEssai : TDocumentsEssai {
  TResultat One(const char* du = "2016-10-15") {
    return Demander(u"Detail O.N.E. des accueils extrascolaires", {}, du);
  }
  /// Values of a node, or of the variables, by name.
  template <class TListe>
  static QString Valeurs(const TListe& valeurs, const QStringList& noms) {
    QStringList textes;
    for (const QString& nom : noms) textes += valeurs.Trouver(nom) ? *valeurs.Trouver(nom) : "-";
    return textes.join(u' ');
  }
};

const QStringList kTotaux{"TOTMATERNEL", "TOTPRIMAIRE", "TOTALELEVE", "TOTALMERCREDI", "TOTALTRIMESTRE"};

}  // namespace

TEST_F(TAccueilEssai, LeTrimestreDUnLieu) {
  TEleveEssai anne = UnEleve();
  TEleveEssai max = ecole.unEleve().enClasse("M2", "A");
  TEleveEssai autre = ecole.unEleve().enClasse("X", "A");
  base.Sql("UPDATE ELEVES SET CLASSE = 'P3' WHERE ELEVE_ID = 1");
  base.Sql("UPDATE ELEVES SET CLASSE = 'M2' WHERE ELEVE_ID = 2");
  Scans(anne, {"soir 2016-10-03", u"soir 2016-10-05"_s /* Wednesday */, u"soir 2016-10-08"_s /* Saturday */,
               "matin 2016-10-04 07:30 12:00", "matin 2016-10-06", "repas 2016-10-07 12:00 13:00",
               "soir 2017-01-09"});
  anne.scan(Essai::Garderie, "2016-10-03", {}, "17:30");
  Scans(max, {"soir 2016-10-05", "soir 2016-12-30"});
  Scans(autre, {"soir 2016-10-05"});
  ecole.parametre(1, "École");
  ecole.parametre(2, "Rue 1");
  const TResultat resultat = One();
  const TRapport& rapport = resultat.Rapports.at(0);
  EXPECT_EQ(rapport.Modele(), "ONE");
  EXPECT_EQ(Dessin(rapport), ": ");
  // October starts on a Saturday: its first working day is box 1; 1 November is a Tuesday.
  EXPECT_EQ(Valeurs(rapport.Variables(), {"Mois1", "DATM1J1", "TOTM1J1", "TOTM1J2", "TOTM1J3", "TOTM1J4",
                                          "DATM1J21", "DATM1J22", "DATM2J1", "DATM2J2", "TOTALM1", "TOTALM2",
                                          "DATM3J25", "DATM3J24", "TOTM3J22", "TOTALJ1", "TOTALJ25"}),
            "octobre 3 1 0 3 0 31 - - 1 4 0 30 29 0 1 1");
  EXPECT_EQ(Valeurs(rapport.Variables(), kTotaux), "1 1 2 3 5");
  EXPECT_EQ(Valeurs(rapport.Variables(), {"Trimestre", "Annee", "ADRESSE"}), "4e 2016 Rue 1  ");
  EXPECT_EQ(Variable(One("2017-03-31"), u"Trimestre"), "1er");
  EXPECT_EQ(Valeurs(One("2017-05-01").Rapports.at(0).Variables(), kTotaux), "0 0 0 0 0");
  ecole.parametre(104, "1");  // the busiest day is the 5th
  EXPECT_EQ(Valeurs(One().Rapports.at(0).Variables(), kTotaux), "1 1 3 3 5");
  EXPECT_EQ(Valeurs(One("2017-05-01").Rapports.at(0).Variables(), kTotaux), "0 0 0 0 0");
}

TEST_F(TAccueilEssai, UnePageParImplantation) {
  ecole.parametre(113, "1");
  ecole.parametre(1, "École");
  EXPECT_EQ(One().Messages, QStringList{"Aucune information à imprimer"});
  TEleveEssai anne = ecole.unEleve().enClasse("P3", "A", "100");
  TEleveEssai max = ecole.unEleve().enClasse("M2", "A", "6103");
  ecole.unEleve().enClasse("M2", "A", "900");
  base.Sql("UPDATE ELEVES SET CLASSE = 'M1'");  // of another year: no matter here
  Scans(anne, {"soir 2016-10-05", "soir 2016-10-06"});
  Scans(max, {"soir 2016-10-06"});
  base.Sql("UPDATE PRESENCES SET CODE_IMPLANTATION = '900'");
  controleur.Charger();  // makes the sites
  base.Sql(
      "UPDATE IMPLANTATION SET LIBELLE_COURT = 'Haut', ADRESSE = 'Rue 9' WHERE CODE_IMPLANTATION = '900'");
  for (const auto& [maximum, totaux] :
       {std::pair(u"0"_s, u"1 1 2 1 3"_s), std::pair(u"1"_s, u"1 1 2 1 3"_s)}) {
    ecole.parametre(104, maximum);
    const TResultat resultat = One();
    const TRapport& rapport = resultat.Rapports.at(0);
    ASSERT_EQ(rapport.Arbre().size(), 2U) << "one site is on no form";
    EXPECT_EQ(Valeurs(rapport.Arbre()[0].Valeurs, kTotaux + QStringList{"TitreLieu"}),
              "0 0 0 0 0 École - Implantation 100")
        << "a site has its code until it is named";
    EXPECT_EQ(Valeurs(rapport.Arbre()[1].Valeurs, kTotaux + QStringList{"TOTM1J3", "TitreLieu"}),
              QString(totaux % u" 1 École - Implantation Haut"));
    QStringList suffixes, sommes;
    for (const QString& nom : kTotaux) {
      suffixes += nom % u'2';
      sommes += nom % u"GLOBAL";
    }
    EXPECT_EQ(Valeurs(rapport.Variables(), suffixes), totaux);
    EXPECT_EQ(Valeurs(rapport.Variables(), sommes), totaux);
    EXPECT_EQ(Valeurs(rapport.Variables(), {"Implantation2", "Adresse2", "TOTALGENERAL", "TOTM1J3"}),
              "Haut Rue 9 -   3 -");
    const TDocumentPrepare document = Pages(rapport);
    EXPECT_EQ(document.Pages.size(), 3U) << "the sums have a page of their own";
    EXPECT_NE(document.TexteDePage(2).contains(u"différents"), maximum == u"1")
        << "the words say what is counted";
  }
}

TEST_F(TAccueilEssai, LaGrilleDuMois) {
  const int judo = ecole.activite("14:00", "15:00");
  TEleveEssai anne = UnEleve().nomme("ADAM", "Anne");
  Scans(anne, {"matin 2016-10-03 08:00 ", "matin 2016-10-04 07:59 ", "soir 2016-10-03 15:00 16:00",
               "soir 2016-10-04 15:00 17:31", "soir 2016-10-06 15:00 17:30", "etude 2016-10-06",
               "soir 2016-10-07 15:00 18:00", "etude 2016-10-07", "soir 2016-10-10 15:00 16:30",
               "etude 2016-10-10", "soir 2016-10-05 16:00 17:00"});
  TEleveEssai max = UnEleve().nomme("BODART", "Max").suit(judo, "3");
  Scans(max, {"soir 2016-10-12 13:00 18:00", "soir 2016-10-05 16:01 "});
  UnEleve("FLG_RADIE");
  controleur.Charger();
  const TContexteDocument contexte = ContexteDesGlobals(controleur.Horloge);
  const TResultat resultat = AccueilExtraScolaire(contexte, 10);
  EXPECT_EQ(Dessin(resultat.Rapports.at(0)),
            u"Matin: TypeReleve=Garderies du matin\n"
            "  ADAM Anne: NomEleve=ADAM Anne | J3=2 | J4=1\n"
            "Mercredi: TypeReleve=Garderies du mercredi\n"
            "  ADAM Anne: NomEleve=ADAM Anne | J5=1\n"
            "  BODART Max: NomEleve=BODART Max\n"
            "Soir: TypeReleve=Garderies du Soir\n"
            "  ADAM Anne: NomEleve=ADAM Anne | J5=1 | J3=1 | J4=3 | J6=2 | J7=4\n"
            "  BODART Max: NomEleve=BODART Max | J12=3"_s);
  EXPECT_EQ(Variable(resultat, u"MoisReleve"), "octobre 2016");
  EXPECT_EQ(Valeurs(resultat.Rapports[0].Variables(), {"J1", "J2", "J3", "J29", "J31"}), "C C - C -");
  EXPECT_EQ(Pages(resultat.Rapports[0]).Pages.size(), 3U);
  EXPECT_EQ(Variable(AccueilExtraScolaire(contexte, 3), u"MoisReleve"), "mars 2017");
  EXPECT_EQ(AccueilExtraScolaire(contexte, 0).Messages,
            QStringList{"Veuillez choisir un mois dans la liste déroulante"});
}
