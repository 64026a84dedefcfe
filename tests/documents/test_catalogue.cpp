#include "documents/factures.h"
#include "ecole_documents.h"

namespace {

using TCatalogueEssai = TDocumentsEssai;

}  // namespace

TEST(Periode, TexteEtMois) {
  const struct {
    const char* Du;
    const char* Au;
    int Mois;
    const char* Texte;
  } cas[] = {
      {"2016-09-01", "2016-09-30", 9, "du mois de septembre 2016"},
      {"2016-12-01", "2016-12-31", 12, "du mois de décembre 2016"},
      {"2017-01-01", "2017-01-31", 1, "du mois de janvier 2017"},
      {"2017-04-01", "2017-04-30", 4, "du mois d'avril 2017"},
      {"2017-06-01", "2017-06-30", 6, "du mois de juin 2017"},
      {"2017-07-01", "2017-07-31", 7, "du mois de juillet 2016"},  // the two rules about the year
      {"2017-08-01", "2017-08-31", 8, "du mois d'août 2016"},
      {"2016-07-01", "2016-07-31", 0, "du 1 juillet 2016 au 31 juillet 2016"},
      {"2016-09-01", "2017-06-30", 0, "de l'année scolaire 2016 - 2017"},
      {"2016-10-01", "2016-10-30", 0, "du 1 octobre 2016 au 30 octobre 2016"},
  };
  for (const auto& [du, au, mois, texte] : cas) {
    const TPeriodeDocument periode{2016, J(du), J(au)};
    EXPECT_EQ(periode.MoisFacture(), mois) << du;
    EXPECT_EQ(periode.PeriodeTexte(), QString::fromUtf8(texte));
  }
  const TPeriodeDocument periode{2016, J("2016-10-01"), J("2016-11-15")};
  for (int mois = -1; mois <= 13; ++mois) {
    EXPECT_EQ(periode.Commence(mois), mois == 10 || mois == 11) << mois;
    EXPECT_EQ(periode.Contient(mois), mois == 10) << mois;
  }
}

TEST(Catalogue, SeizeTitresEtSixPourLeCourriel) {
  const auto titres = TitresDocuments();
  ASSERT_EQ(titres.size(), 16U);
  QList<int> avecPeriode;
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(IndiceTitre(titres[static_cast<size_t>(i)].Titre), i);
    if (titres[static_cast<size_t>(i)].AvecPeriode) avecPeriode += i;
  }
  EXPECT_EQ(avecPeriode, (QList<int>{6, 7, 8, 9, 10, 14}));
  EXPECT_EQ(IndiceTitre(u"Attestation fiscale"), 13);
  EXPECT_EQ(IndiceTitre(u"facture"), -1);

  const std::vector<TTitreDocument> courriel = TitresCourriel();
  QString offerts;
  for (const TTitreDocument& titre : courriel)
    offerts += QString::fromUtf16(titre.Titre) % (titre.AvecPeriode ? u"+;" : u";");
  EXPECT_EQ(offerts, QStringLiteral("Facture+;Relevé des frais effectifs+;Relevé détaillé des services+;"
                                    "Liste prévisionnelle des frais+;Balance des comptes provisoire;"
                                    "Balance des comptes définitive;"));
}

TEST_F(TCatalogueEssai, LesElevesPuisCeuxDesClasses) {
  const int a = ecole.unEleve().nomme(QStringLiteral("A"), {}).enClasse(QStringLiteral("P1"), {}).Id;
  const int b = ecole.unEleve().nomme(QStringLiteral("B"), {}).enClasse(QStringLiteral("P2"), {}).Id;
  const int c = ecole.unEleve().nomme(QStringLiteral("C"), {}).enClasse(QStringLiteral("P1"), {}).Id;
  controleur.Charger();
  const TEleves& eleves = *Globals.Eleves;
  TChoixDocument choix;
  choix.Eleves = {eleves.TrouverParId(c), eleves.TrouverParId(a)};
  choix.Classes = {eleves.TrouverParId(b)->Classe, eleves.TrouverParId(a)->Classe};
  QList<int> choisis;
  for (const TEleve* eleve : ElevesDuChoix(eleves, choix)) choisis += eleve->Id;
  EXPECT_EQ(choisis, (QList<int>{c, a, b, a, c}));
}

TEST_F(TCatalogueEssai, CeQuiNEstPasLaLeDit) {
  const int anne = UnEleve().Id;
  const TResultat etiquettes =
      Demander(QString::fromUtf16(TitresDocuments()[0].Titre), {anne}, "2016-10-01", "2016-10-31");
  EXPECT_TRUE(etiquettes.Echec);
  EXPECT_TRUE(etiquettes.Rapports.empty());
  EXPECT_EQ(etiquettes.Messages, QStringList{QStringLiteral(
                                     "Le document « Etiquettes d'identification 89mm x 36mm (Etiquette Dymo "
                                     "99012) » n'est pas encore disponible.")});
  EXPECT_THROW(Demander(QStringLiteral("Facture "), {anne}, "2016-10-01", "2016-10-31"), std::out_of_range);
}

TEST_F(TCatalogueEssai, LaFactureDeLEcole) {
  using enum TGeneration;
  const struct {
    const char* Vrais;  ///< parameters that are "1"
    std::vector<TGeneration> Generations;
    bool Date;
  } cas[] = {
      {"", {PostesOuverts}, false},
      {"32", {PostesOuverts}, true},
      {"108", {PostesOuverts}, false},
      {"25", {Provision, Activites}, false},
      {"25 32", {Provision, Activites}, false},
      {"25 108", {Provision}, false},
      {"107", {CompteCourant}, false},
      {"107 25 32", {CompteCourant}, true},
  };
  const int anne = UnEleve().avec(QStringLiteral("FLG_FACTURE_DETAIL")).Id;
  for (const auto& [vrais, generations, date] : cas) {
    base.Sql(QStringLiteral("DELETE FROM PARAMETRE WHERE PARAMETRE_ID IN (25, 32, 107, 108)"));
    for (const QString& id : QString::fromLatin1(vrais).split(u' ', Qt::SkipEmptyParts))
      ecole.parametre(id.toInt(), QStringLiteral("1"));
    const TParametres parametres(*base);
    EXPECT_EQ(GenerationsFacture(parametres), generations) << vrais;
    EXPECT_EQ(DemandeDatePaiement(6, parametres), date) << vrais;
    EXPECT_FALSE(DemandeDatePaiement(8, parametres)) << vrais;
  }
  ecole.parametre(107, QStringLiteral("0"));
  const TResultat provision = Facturer({anne}, "2016-10-01", "2016-10-31");
  EXPECT_TRUE(provision.Echec);
  EXPECT_EQ(
      provision.Messages,
      (QStringList{QStringLiteral("Le document « Facture (provision) » n'est pas encore disponible."),
                   QStringLiteral("Le document « Facture (activités) » n'est pas encore disponible.")}));
}
