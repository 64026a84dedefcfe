#include "documents/accueil_extrascolaire.h"
#include "documents/modeles.h"
#include "ecole_documents.h"
#include "report/layout/mise_en_page.h"

namespace {

struct TAccueilEssai : TDocumentsEssai {
  TResultat One(const char* du = "2016-10-15") {
    return Demander(u"Detail O.N.E. des accueils extrascolaires", {}, du);
  }
  /// Values of a node, or of the variables, by name.
  template <class TListe>
  static QString Valeurs(const TListe& valeurs, const QStringList& noms) {
    QStringList textes;
    for (const QString& nom : noms) textes += valeurs.Trouver(nom) ? *valeurs.Trouver(nom) : u"-"_s;
    return textes.join(u' ');
  }
};

const QStringList kTotaux{u"TOTMATERNEL"_s, u"TOTPRIMAIRE"_s, u"TOTALELEVE"_s, u"TOTALMERCREDI"_s,
                          u"TOTALTRIMESTRE"_s};

}  // namespace

TEST_F(TAccueilEssai, LeTrimestreDUnLieu) {
  TEleveEssai anne = UnEleve();
  TEleveEssai max = ecole.unEleve().enClasse(u"M2"_s, u"A"_s);
  TEleveEssai autre = ecole.unEleve().enClasse(u"X"_s, u"A"_s);
  base.Sql(u"UPDATE ELEVES SET CLASSE = 'P3' WHERE ELEVE_ID = 1"_s);
  base.Sql(u"UPDATE ELEVES SET CLASSE = 'M2' WHERE ELEVE_ID = 2"_s);
  Scans(anne, {u"soir 2016-10-03"_s, u"soir 2016-10-05"_s /* Wednesday */,
               u"soir 2016-10-08"_s /* Saturday */, u"matin 2016-10-04 07:30 12:00"_s, u"matin 2016-10-06"_s,
               u"repas 2016-10-07 12:00 13:00"_s, u"soir 2017-01-09"_s});
  anne.scan(Essai::Garderie, u"2016-10-03"_s, {}, u"17:30"_s);
  Scans(max, {u"soir 2016-10-05"_s, u"soir 2016-12-30"_s});
  Scans(autre, {u"soir 2016-10-05"_s});
  ecole.parametre(1, u"École"_s);
  ecole.parametre(2, u"Rue 1"_s);
  const TResultat resultat = One();
  const TRapport& rapport = resultat.Rapports.at(0);
  EXPECT_EQ(rapport.Modele(), u"ONE"_s);
  EXPECT_EQ(Dessin(rapport), u": "_s);
  // October starts on a Saturday: its first working day is box 1; 1 November is a Tuesday.
  EXPECT_EQ(Valeurs(rapport.Variables(),
                    {u"Mois1"_s, u"DATM1J1"_s, u"TOTM1J1"_s, u"TOTM1J2"_s, u"TOTM1J3"_s, u"TOTM1J4"_s,
                     u"DATM1J21"_s, u"DATM1J22"_s, u"DATM2J1"_s, u"DATM2J2"_s, u"TOTALM1"_s, u"TOTALM2"_s,
                     u"DATM3J25"_s, u"DATM3J24"_s, u"TOTM3J22"_s, u"TOTALJ1"_s, u"TOTALJ25"_s}),
            u"octobre 3 1 0 3 0 31 - - 1 4 0 30 29 0 1 1"_s);
  EXPECT_EQ(Valeurs(rapport.Variables(), kTotaux), u"1 1 2 3 5"_s);
  EXPECT_EQ(Valeurs(rapport.Variables(), {u"Trimestre"_s, u"Annee"_s, u"ADRESSE"_s}), u"4e 2016 Rue 1  "_s);
  EXPECT_EQ(Variable(One("2017-03-31"), u"Trimestre"), u"1er"_s);
  EXPECT_EQ(Valeurs(One("2017-05-01").Rapports.at(0).Variables(), kTotaux), u"0 0 0 0 0"_s);
  ecole.parametre(104, u"1"_s);  // the busiest day is the 5th
  EXPECT_EQ(Valeurs(One().Rapports.at(0).Variables(), kTotaux), u"1 1 3 3 5"_s);
  EXPECT_EQ(Valeurs(One("2017-05-01").Rapports.at(0).Variables(), kTotaux), u"0 0 0 0 0"_s);
}

TEST_F(TAccueilEssai, UnePageParImplantation) {
  ecole.parametre(113, u"1"_s);
  ecole.parametre(1, u"École"_s);
  EXPECT_EQ(One().Messages, QStringList{u"Aucune information à imprimer"_s});
  TEleveEssai anne = ecole.unEleve().enClasse(u"P3"_s, u"A"_s, u"100"_s);
  TEleveEssai max = ecole.unEleve().enClasse(u"M2"_s, u"A"_s, u"6103"_s);
  ecole.unEleve().enClasse(u"M2"_s, u"A"_s, u"900"_s);
  base.Sql(u"UPDATE ELEVES SET CLASSE = 'M1'"_s);  // of another year: no matter here
  Scans(anne, {u"soir 2016-10-05"_s, u"soir 2016-10-06"_s});
  Scans(max, {u"soir 2016-10-06"_s});
  base.Sql(u"UPDATE PRESENCES SET CODE_IMPLANTATION = '900'"_s);
  controleur.Charger();  // makes the sites
  base.Sql(
      u"UPDATE IMPLANTATION SET LIBELLE_COURT = 'Haut', ADRESSE = 'Rue 9' WHERE CODE_IMPLANTATION = '900'"_s);
  for (const auto& [maximum, totaux] :
       {std::pair(u"0"_s, u"1 1 2 1 3"_s), std::pair(u"1"_s, u"1 1 2 1 3"_s)}) {
    ecole.parametre(104, maximum);
    const TResultat resultat = One();
    const TRapport& rapport = resultat.Rapports.at(0);
    ASSERT_EQ(rapport.Arbre().size(), 2U) << "one site is on no form";
    EXPECT_EQ(Valeurs(rapport.Arbre()[0].Valeurs, kTotaux + QStringList{u"TitreLieu"_s}),
              u"0 0 0 0 0 École - Implantation 100"_s)
        << "a site has its code until it is named";
    EXPECT_EQ(Valeurs(rapport.Arbre()[1].Valeurs, kTotaux + QStringList{u"TOTM1J3"_s, u"TitreLieu"_s}),
              QString(totaux % u" 1 École - Implantation Haut"));
    QStringList suffixes, sommes;
    for (const QString& nom : kTotaux) {
      suffixes += nom % u'2';
      sommes += nom % u"GLOBAL";
    }
    EXPECT_EQ(Valeurs(rapport.Variables(), suffixes), totaux);
    EXPECT_EQ(Valeurs(rapport.Variables(), sommes), totaux);
    EXPECT_EQ(
        Valeurs(rapport.Variables(), {u"Implantation2"_s, u"Adresse2"_s, u"TOTALGENERAL"_s, u"TOTM1J3"_s}),
        u"Haut Rue 9 -   3 -"_s);
    const TDocumentPrepare document = MettreEnPage(rapport, *ModeleDocument(u"ONEMulti"_s));
    EXPECT_EQ(document.Pages.size(), 3U) << "the sums have a page of their own";
    EXPECT_EQ(document.Defauts.size(), 0U);
    EXPECT_NE(document.TexteDePage(2).contains(u"différents"), maximum == u"1")
        << "the words say what is counted";
  }
}

TEST_F(TAccueilEssai, LaGrilleDuMois) {
  const int judo = ecole.activite(u"14:00"_s, u"15:00"_s);
  TEleveEssai anne = UnEleve().nomme(u"ADAM"_s, u"Anne"_s);
  Scans(anne, {u"matin 2016-10-03 08:00 "_s, u"matin 2016-10-04 07:59 "_s, u"soir 2016-10-03 15:00 16:00"_s,
               u"soir 2016-10-04 15:00 17:31"_s, u"soir 2016-10-06 15:00 17:30"_s, u"etude 2016-10-06"_s,
               u"soir 2016-10-07 15:00 18:00"_s, u"etude 2016-10-07"_s, u"soir 2016-10-10 15:00 16:30"_s,
               u"etude 2016-10-10"_s, u"soir 2016-10-05 16:00 17:00"_s});
  TEleveEssai max = UnEleve().nomme(u"BODART"_s, u"Max"_s).suit(judo, u"3"_s);
  Scans(max, {u"soir 2016-10-12 13:00 18:00"_s, u"soir 2016-10-05 16:01 "_s});
  UnEleve(u"FLG_RADIE"_s);
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
  EXPECT_EQ(Variable(resultat, u"MoisReleve"), u"octobre 2016"_s);
  EXPECT_EQ(Valeurs(resultat.Rapports[0].Variables(), {u"J1"_s, u"J2"_s, u"J3"_s, u"J29"_s, u"J31"_s}),
            u"C C - C -"_s);
  EXPECT_EQ(MettreEnPage(resultat.Rapports[0], *ModeleDocument(u"AccueilExtraScolaire"_s)).Pages.size(), 3U);
  EXPECT_EQ(Variable(AccueilExtraScolaire(contexte, 3), u"MoisReleve"), u"mars 2017"_s);
  EXPECT_EQ(AccueilExtraScolaire(contexte, 0).Messages,
            QStringList{u"Veuillez choisir un mois dans la liste déroulante"_s});
}
