#include "forms/arbre.h"
#include "forms/grille.h"
#include "support/grilles.h"
#include "support/valeurs.h"

namespace {

struct TEleveFictif {};
struct TClasseFictive {};

TGrille Grille(TGenre genre, const TCellules& valeurs) {
  TGrille grille({{"Nom", 200}, {"Valeur", 80, genre}});
  for (const TValeurVue& valeur : valeurs) grille.Ajouter({"x", valeur});
  return grille;
}

Currency M(const char* montant) { return StrToCurr(montant); }

}  // namespace

// By the value, never by what is displayed: neither "jeu." before "lun." nor "Avril" before "Janvier".
TEST(Grille, TrieSelonLaValeur) {
  const std::tuple<TGenre, TCellules, const char*> cas[] = {
      {TGenre::Texte, {"Zoé", "élan", "Eric", "abbé"}, "abbé|élan|Eric|Zoé"},
      {TGenre::Entier, {20, {}, 3, -1}, "|-1|3|20"},
      {TGenre::Montant,
       {M("1234,50"), M("-3"), {}, M("20"), "6 relevés"},
       "|6 relevés|-3,00 €|20,00 €|1\u202f234,50 €"},
      {TGenre::Prix, {M("0,5"), M("0,0125")}, "0,0125 €|0,50 €"},
      {TGenre::DateCourte,
       {J("2016-10-06"), J("2016-10-03"), J("2017-01-02")},
       "lun. 03/10|jeu. 06/10|lun. 02/01"},
      {TGenre::DateLongue,
       {J("2016-11-22"), TJourAnnee{J("2015-11-23")}, J("2016-09-03"), 0.0},
       "|lundi 23 novembre 2015|samedi 3 septembre|mardi 22 novembre"},
      {TGenre::Date, {J("2016-10-02"), "31/02/2016", J("2016-09-03")}, "31/02/2016|03/09/2016|02/10/2016"},
      {TGenre::Heure, {H("16:00"), H("07:05"), 0.0}, "|07:05|16:00"},
      {TGenre::HeureH, {H("16:00"), H("07:05")}, "07h05|16h00"},
      {TGenre::Mois, {4, 1, 10, 9, 0}, "|Septembre|Octobre|Janvier|Avril"},
  };
  for (const auto& [genre, melange, trie] : cas) {
    TGrille grille = Grille(genre, melange);
    QStringList attendu = QString::fromUtf8(trie).split(u'|');
    grille.Trier(1);
    EXPECT_EQ(TextesColonne(grille, 1), attendu);
    grille.Trier(1, false);
    std::ranges::reverse(attendu);
    EXPECT_EQ(TextesColonne(grille, 1), attendu);
  }
}

TEST(Grille, SExporteEnCsv) {
  TGrille grille(
      {{"Nom"}, {"Prix", 80, TGenre::Prix}, {"Jour", 80, TGenre::DateCourte}, {"État", 80, TGenre::Etat}});
  grille.Etats = {{}, {"Dû", {}}};
  grille.Ajouter({"Mer ; \"été\"", M("1234,0125"), J("2016-10-06")}, {}, 1);
  grille.AjouterTete({"Tête", M("2"), "6 relevés"});
  EXPECT_EQ(
      EnCsv(grille, {1, 0}, {1, 0, 2, 3}),
      "Prix;Nom;Jour;État\r\n2,00;Tête;6 relevés;\r\n1234,0125;\"Mer ; \"\"été\"\"\";06/10/2016;Dû\r\n");
}

TEST(Grille, UneLigneGardeCeQuElleEst) {
  TEleveFictif anne, luc;
  TGrille grille = Grille(TGenre::Texte, {});
  grille.Ajouter({"Luc", "P1"}, &luc, 2);
  grille.Ajouter({"Anne", "P1"}, &anne);
  grille.Ajouter({"Marc", "M3"});
  grille.Cocher(0, true);
  grille.ChoisirLigne(0);
  int choix = 0;
  const TLien lien = grille.SurChoix.Suivre([&] { ++choix; });

  grille.Trier(0);
  EXPECT_EQ(grille.LigneCourante(), 1);
  EXPECT_EQ(grille.Ligne(1).Objet.En<TEleveFictif>(), &luc);
  EXPECT_EQ(grille.Ligne(1).Objet.En<TClasseFictive>(), nullptr);
  EXPECT_TRUE(grille.Ligne(1).Coche && grille.Ligne(1).Etat == 2);
  EXPECT_EQ(grille.TrouverObjet(&anne), 0);
  EXPECT_EQ(grille.TrouverObjet(nullptr), -1);
  grille.Trier(1);  // alike rows keep their order
  EXPECT_EQ(TextesColonne(grille, 0), (QStringList{"Marc", "Anne", "Luc"}));
  EXPECT_EQ(choix, 0);
  grille.Retirer(0);
  EXPECT_EQ(grille.LigneCourante(), 1);
  grille.Retirer(1);
  EXPECT_EQ(grille.LigneCourante(), 0);
  EXPECT_EQ(choix, 1);
  EXPECT_THROW(grille.Retirer(1), std::out_of_range);
}

TEST(Grille, FiltreSansCasseNiAccentEtParLEtat) {
  TGrille grille({{"Nom"}, {"Valeur"}, {"État", 80, TGenre::Etat}});
  grille.Etats = {{}, {"Payé", "dialog-ok-apply"}};
  grille.Ajouter({"x", "Élodie Gaëlle"}, {}, 1);
  for (const char* oui : {"", "elodie", "GAELLE él", "x ÉLO", "paye"})
    EXPECT_TRUE(grille.Contient(0, oui)) << oui;
  for (const char* non : {"elodies", "xé", "elodie luc"}) EXPECT_FALSE(grille.Contient(0, non)) << non;
}

TEST(Grille, AnnonceChaqueChangementOuUnLot) {
  TGrille grille = Grille(TGenre::Texte, {"a", "b"});
  std::vector<int> lignes;
  const TLien lien = grille.SurChangement.Suivre(
      [&](TGrille::TChangement changement) { lignes.push_back(changement.Ligne); });
  grille.Ecrire(1, 1, "loin");
  grille.ChangerEtat(0, 1);
  {
    TGrille::TLot lot(grille);
    grille.Vider();
    grille.Ajouter({"d"});
  }
  { TGrille::TLot rien(grille); }
  EXPECT_EQ(lignes, (std::vector{1, 0, -1}));
}

TEST(Arbre, OrdreEtRecherche) {
  TEleveFictif anne, luc;
  TArbre arbre;
  TNoeud& m1 = arbre.Ajouter(nullptr, "M1");
  TNoeud& p1 = arbre.Ajouter(nullptr, "P1");
  arbre.Ajouter(&m1, "Élan Anne", &anne);
  TNoeud& noeudLuc = arbre.Ajouter(&p1, "p1", &luc);
  QStringList ordre;
  for (const TNoeud* noeud = arbre.Premier(); noeud; noeud = arbre.Suivant(*noeud)) ordre += noeud->Texte;
  EXPECT_EQ(ordre, (QStringList{"M1", "Élan Anne", "P1", "p1"}));
  EXPECT_EQ(arbre.TrouverObjet(&luc), &noeudLuc);
  EXPECT_EQ(arbre.TrouverObjet(nullptr), nullptr);  // M1 carries none
  int choix = 0;
  const TLien lien = arbre.SurSelection.Suivre([&] { ++choix; });
  for (int fois = 0; fois < 2; ++fois) arbre.Selectionner(&noeudLuc);
  arbre.Supprimer(m1);
  EXPECT_EQ(arbre.Selection(), &noeudLuc);
  EXPECT_EQ(arbre.TrouverObjet(&anne), nullptr);
  arbre.Supprimer(p1);
  EXPECT_EQ(arbre.Selection(), nullptr);
  EXPECT_EQ(choix, 2);
}
