#include "documents/modeles.h"
#include "forms/grille.h"
#include "report/layout/mise_en_page.h"

using namespace Qt::StringLiterals;

namespace {

/// A list of names, classes, further columns and amounts, `lignes` long.
TDocumentPrepare Liste(int colonnes, int lignes, const QString& adresse) {
  std::vector<TColonneGrille> titres{{u"Nom"_s, 300}, {u"Classe"_s, 60}};
  for (int i = 3; i < colonnes; ++i) titres.push_back({u"Mois"_s, 60});
  titres.push_back({u"Montant"_s, 80});
  TGrille grille(titres);
  for (int ligne = 1; ligne <= lignes; ++ligne) {
    TCellules textes{u"élève %1"_s.arg(ligne), u"P1 A"_s};
    if (ligne == 2) textes[0] = u"VANDENBOSSCHE-DE LA CROIX Marie-Antoinette "_s.repeated(2);
    for (int i = 3; i < colonnes; ++i) textes.emplace_back(u"34,50 €"_s);
    textes.emplace_back(u"12,50 €"_s);
    grille.Ajouter(std::move(textes));
  }
  TRapport rapport(u"Liste des frais"_s, u"RepDynamicFromListviewPortrait"_s);
  rapport.AjouterVariable(u"NomEcole", u"École (Centre)"_s);
  rapport.AjouterVariable(u"AdresseEcole", adresse);
  rapport.AjouterVariable(u"CPEcole", u"5537"_s);
  rapport.AjouterVariable(u"LocaliteEcole", u"Brumeval"_s);
  rapport.ChargerColonnesGrille(grille);
  return MettreEnPage(rapport, *ModeleDocument(rapport.Modele()));
}

QString Lu(const TDocumentPrepare& document, int page) {
  QString texte = document.TexteDePage(page);
  return texte.replace(u'\n', u'/');
}

/// The box of a text on a page, from the printable area's corner.
QRectF Place(const TDocumentPrepare& document, const QString& texte, int page) {
  for (const TTrouvaille& trouvaille : document.Chercher(texte))
    if (trouvaille.Page == page) return trouvaille.Place.translated(-38, -38);
  ADD_FAILURE() << texte.toStdString();
  return {};
}

}  // namespace

TEST(ListeColonnes, SeTientSurDesPagesNumerotees) {
  const TDocumentPrepare document = Liste(3, 60, u"rue du Moulin 27"_s);
  ASSERT_EQ(document.Pages.size(), 2U);
  EXPECT_TRUE(document.Defauts.empty());
  EXPECT_TRUE(Lu(document, 0)
                  .startsWith(u"École (Centre)/rue du Moulin 27, 5537 Brumeval/Liste des frais/"
                              "Nom Classe Montant/élève 1 P1 A 12,50 €/"_s))
      << qPrintable(Lu(document, 0));
  EXPECT_TRUE(Lu(document, 1).startsWith(u"Liste des frais/Nom Classe Montant/élève "_s));
  EXPECT_TRUE(Lu(document, 1).endsWith(u"/Page 2 / 2"_s));
  // Rows of 18 px; amounts end at 699.
  const double premier = Place(document, u"élève 1"_s, 0).top();
  EXPECT_NEAR(Place(document, u"élève 3"_s, 0).top() - premier, 3 * 18, 0.01) << "the second took two lines";
  EXPECT_NEAR(Place(document, u"élève 4"_s, 0).top() - premier, 4 * 18, 0.01);
  EXPECT_NEAR(Place(document, u"12,50 €"_s, 0).right(), 699, 0.01);
}

TEST(ListeColonnes, HuitColonnesSontPlusPetites) {
  const TDocumentPrepare document = Liste(11, 5, {});
  EXPECT_TRUE(document.Defauts.empty());
  EXPECT_TRUE(Lu(document, 0).startsWith(u"École (Centre)/Liste des frais/Nom Classe Mois "_s));
  EXPECT_NEAR(Place(document, u"élève 4"_s, 0).top() - Place(document, u"élève 3"_s, 0).top(), 16, 0.01);
  EXPECT_NEAR(Place(document, u"12,50 €"_s, 0).right(), 699, 0.01);
  EXPECT_GE(Place(document, u"P1 A"_s, 0).left(), 190) << "the name keeps the room";
}
