#include "documents/factures.h"
#include "ecole_documents.h"

using TCatalogueEssai = TDocumentsEssai;

TEST(Periode, TexteEtMois) {
  const std::tuple<const char*, const char*, int, const char*> cas[] = {
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
  EXPECT_TRUE(periode.Commence(11) && !periode.Contient(11) && !periode.Commence(-1));
}

TEST(Catalogue, QuelsTitresOntUnePeriode) {
  const auto periodes = [](const std::vector<TTitreOffert>& titres) {
    QString signes;
    for (const TTitreOffert& titre : titres) signes += titre.Montre->AvecPeriode ? u'+' : u'-';
    return signes;
  };
  EXPECT_EQ(periodes(TitresOfferts(TListeTitres::Eleves)), u"------+++++---+--"_s);
  EXPECT_EQ(periodes(TitresCourriel()), u"++++--"_s);
}

TEST_F(TCatalogueEssai, LesElevesPuisCeuxDesClasses) {
  const int a = ecole.unEleve().nomme(u"A"_s, {}).enClasse(u"P1"_s, {}).Id;
  const int b = ecole.unEleve().nomme(u"B"_s, {}).enClasse(u"P2"_s, {}).Id;
  const int c = ecole.unEleve().nomme(u"C"_s, {}).enClasse(u"P1"_s, {}).Id;
  controleur.Charger();
  const TEleves& eleves = *Globals.Eleves;
  TChoixDocument choix;
  choix.Eleves = {eleves.TrouverParId(c), eleves.TrouverParId(a)};
  choix.Classes = {eleves.TrouverParId(b)->Classe, eleves.TrouverParId(a)->Classe};
  QList<int> choisis;
  for (const TEleve* eleve : ElevesDuChoix(eleves, choix)) choisis += eleve->Id;
  EXPECT_EQ(choisis, (QList<int>{c, a, b, a, c}));
}

TEST_F(TCatalogueEssai, LaFactureDeLEcole) {
  using enum TGeneration;
  // Parameters that are "1"
  const std::tuple<const char*, std::vector<TGeneration>, bool> cas[] = {
      {"", {PostesOuverts}, false},
      {"32", {PostesOuverts}, true},
      {"108", {PostesOuverts}, false},
      {"25", {Provision, Activites}, false},
      {"25 32", {Provision, Activites}, false},
      {"25 108", {Provision}, false},
      {"107", {CompteCourant}, false},
      {"107 25 32", {CompteCourant}, true},
  };
  for (const auto& [vrais, generations, date] : cas) {
    base.Sql(u"DELETE FROM PARAMETRE WHERE PARAMETRE_ID IN (25, 32, 107, 108)"_s);
    for (const QString& id : QString::fromLatin1(vrais).split(u' ', Qt::SkipEmptyParts))
      ecole.parametre(id.toInt(), u"1"_s);
    const TParametres parametres(*base);
    EXPECT_EQ(GenerationsFacture(parametres), generations) << vrais;
    EXPECT_EQ(DemandeDatePaiement(*TrouverTitre(u"Facture"), parametres), date) << vrais;
    EXPECT_FALSE(DemandeDatePaiement(*TrouverTitre(u"Attestation fiscale"), parametres)) << vrais;
  }
}
