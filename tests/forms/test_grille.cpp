#include <gtest/gtest.h>

#include "forms/arbre.h"
#include "forms/grille.h"
#include "support/valeurs.h"

using namespace Qt::StringLiterals;

namespace {

struct TEleveFictif {};
struct TClasseFictive {};

TGrille Grille(TGenre genre, const TCellules& valeurs) {
  TGrille grille({{u"Nom"_s, 200}, {u"Valeur"_s, 80, genre}});
  for (const TValeurVue& valeur : valeurs) grille.Ajouter({u"x"_s, valeur});
  return grille;
}

Currency M(const char* montant) { return StrToCurr(QString::fromUtf8(montant)); }

QStringList Colonne(const TGrille& grille, int colonne) {
  QStringList textes;
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne) textes += grille.Texte(ligne, colonne);
  return textes;
}

}  // namespace

// By the value, never by what is displayed: neither "jeu." before "lun." nor "Avril" before "Janvier".
TEST(Grille, TrieSelonLaValeur) {
  const struct {
    TGenre Genre;
    TCellules Melange;
    const char* Trie;
  } cas[] = {
      {TGenre::Texte, {u"Zoé"_s, u"élan"_s, u"Eric"_s, u"abbé"_s}, "abbé|élan|Eric|Zoé"},
      {TGenre::Entier, {20, {}, 3, -1}, "|-1|3|20"},
      {TGenre::Montant,
       {M("1234,50"), M("-3"), {}, M("20"), u"6 relevés"_s},
       "|6 relevés|-3,00 €|20,00 €|1\u202f234,50 €"},
      {TGenre::Prix, {M("0,5"), M("0,0125")}, "0,0125 €|0,50 €"},
      {TGenre::DateCourte,
       {J("2016-10-06"), J("2016-10-03"), J("2017-01-02")},
       "lun. 03/10|jeu. 06/10|lun. 02/01"},
      {TGenre::DateLongue, {J("2016-11-22"), J("2016-09-03"), 0.0}, "|samedi 3 septembre|mardi 22 novembre"},
      {TGenre::Date, {J("2016-10-02"), u"31/02/2016"_s, J("2016-09-03")}, "31/02/2016|03/09/2016|02/10/2016"},
      {TGenre::Heure, {H("16:00"), H("07:05"), 0.0}, "|07:05|16:00"},
      {TGenre::HeureH, {H("16:00"), H("07:05")}, "07h05|16h00"},
      {TGenre::Mois, {4, 1, 10, 9, 0}, "|Septembre|Octobre|Janvier|Avril"},
  };
  for (const auto& [genre, melange, trie] : cas) {
    TGrille grille = Grille(genre, melange);
    QStringList attendu = QString::fromUtf8(trie).split(u'|');
    grille.Trier(1);
    EXPECT_EQ(Colonne(grille, 1), attendu);
    grille.Trier(1, false);
    std::ranges::reverse(attendu);
    EXPECT_EQ(Colonne(grille, 1), attendu);
  }
}

TEST(Grille, SExporteEnCsv) {
  TGrille grille({{u"Nom"_s},
                  {u"Prix"_s, 80, TGenre::Prix},
                  {u"Jour"_s, 80, TGenre::DateCourte},
                  {u"État"_s, 80, TGenre::Etat}});
  grille.Etats = {{}, {u"Dû"_s, {}}};
  grille.Ajouter({u"Mer ; \"été\""_s, M("1234,0125"), J("2016-10-06")}, {}, 1);
  grille.AjouterTete({u"Tête"_s, M("2"), u"6 relevés"_s});
  EXPECT_EQ(
      EnCsv(grille, {1, 0}, {1, 0, 2, 3}),
      u"Prix;Nom;Jour;État\r\n2,00;Tête;6 relevés;\r\n1234,0125;\"Mer ; \"\"été\"\"\";06/10/2016;Dû\r\n"_s);
}

TEST(Grille, UneLigneGardeCeQuElleEst) {
  TEleveFictif anne, luc;
  TGrille grille = Grille(TGenre::Texte, {});
  grille.Ajouter({u"Luc"_s, u"P1"_s}, &luc, 2);
  grille.Ajouter({u"Anne"_s, u"P1"_s}, &anne);
  grille.Ajouter({u"Marc"_s, u"M3"_s});
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
  EXPECT_EQ(Colonne(grille, 0), (QStringList{u"Marc"_s, u"Anne"_s, u"Luc"_s}));
  EXPECT_EQ(choix, 0);
  grille.Retirer(0);
  EXPECT_EQ(grille.LigneCourante(), 1);
  grille.Retirer(1);
  EXPECT_EQ(grille.LigneCourante(), 0);
  EXPECT_EQ(choix, 1);
  EXPECT_THROW(grille.Retirer(1), std::out_of_range);
}

TEST(Grille, FiltreSansCasseNiAccentEtParLEtat) {
  TGrille grille({{u"Nom"_s}, {u"Valeur"_s}, {u"État"_s, 80, TGenre::Etat}});
  grille.Etats = {{}, {u"Payé"_s, u"dialog-ok-apply"_s}};
  grille.Ajouter({u"x"_s, u"Élodie Gaëlle"_s}, {}, 1);
  for (const char* oui : {"", "elodie", "GAELLE él", "x ÉLO", "paye"})
    EXPECT_TRUE(grille.Contient(0, QString::fromUtf8(oui))) << oui;
  for (const char* non : {"elodies", "xé", "elodie luc"})
    EXPECT_FALSE(grille.Contient(0, QString::fromUtf8(non))) << non;
}

TEST(Grille, AnnonceChaqueChangementOuUnLot) {
  TGrille grille = Grille(TGenre::Texte, {u"a"_s, u"b"_s});
  std::vector<int> lignes;
  const TLien lien = grille.SurChangement.Suivre(
      [&](TGrille::TChangement changement) { lignes.push_back(changement.Ligne); });
  grille.Ecrire(1, 1, u"loin"_s);
  grille.ChangerEtat(0, 1);
  {
    TGrille::TLot lot(grille);
    grille.Vider();
    grille.Ajouter({u"d"_s});
  }
  { TGrille::TLot rien(grille); }
  EXPECT_EQ(lignes, (std::vector{1, 0, -1}));
}

TEST(Arbre, OrdreEtRecherche) {
  TEleveFictif anne, luc;
  TArbre arbre;
  TNoeud& m1 = arbre.Ajouter(nullptr, u"M1"_s);
  TNoeud& p1 = arbre.Ajouter(nullptr, u"P1"_s);
  arbre.Ajouter(&m1, u"Élan Anne"_s, &anne);
  TNoeud& noeudLuc = arbre.Ajouter(&p1, u"p1"_s, &luc);
  QStringList ordre;
  for (const TNoeud* noeud = arbre.Premier(); noeud; noeud = arbre.Suivant(*noeud)) ordre += noeud->Texte;
  EXPECT_EQ(ordre, (QStringList{u"M1"_s, u"Élan Anne"_s, u"P1"_s, u"p1"_s}));
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
