#include <gtest/gtest.h>

#include "forms/arbre.h"
#include "forms/grille.h"

using namespace Qt::StringLiterals;

namespace {

struct TEleveFictif {};
struct TClasseFictive {};

TGrille Grille(TOrdre ordre, const QStringList& textes) {
  TGrille grille({{u"Nom"_s, 200}, {u"Valeur"_s, 80, TAlignement::Droite, ordre}});
  for (const QString& texte : textes) grille.Ajouter({u"x"_s, texte});
  return grille;
}

QStringList Colonne(const TGrille& grille, int colonne) {
  QStringList textes;
  for (int ligne = 0; ligne < grille.NombreLignes(); ++ligne) textes += grille.Texte(ligne, colonne);
  return textes;
}

}  // namespace

TEST(Grille, TrieSelonLaNatureDeLaColonne) {
  const struct {
    TOrdre Ordre;
    const char* Melange;
    const char* Trie;
  } cas[] = {
      {TOrdre::Texte, "Zoé|élan|Eric|abbé", "abbé|élan|Eric|Zoé"},
      {TOrdre::Nombre, "1.234,50 €|-3,00 €||20,00 €|3", "|-3,00 €|3|20,00 €|1.234,50 €"},
      {TOrdre::Jour, "samedi 1 juin|jeudi 22 novembre||lundi 3 septembre|mercredi 7 novembre",
       "|lundi 3 septembre|mercredi 7 novembre|jeudi 22 novembre|samedi 1 juin"},
      {TOrdre::Date, "02/10/2016|03/09/2016||01/01/2017", "|03/09/2016|02/10/2016|01/01/2017"},
  };
  for (const auto& [ordre, melange, trie] : cas) {
    TGrille grille = Grille(ordre, QString::fromUtf8(melange).split(u'|'));
    QStringList attendu = QString::fromUtf8(trie).split(u'|');
    grille.Trier(1);
    EXPECT_EQ(Colonne(grille, 1), attendu);
    grille.Trier(1, false);
    std::ranges::reverse(attendu);
    EXPECT_EQ(Colonne(grille, 1), attendu);
  }
}

TEST(Grille, UneLigneGardeCeQuElleEst) {
  TEleveFictif anne, luc;
  TGrille grille = Grille(TOrdre::Texte, {});
  grille.Ajouter({u"Luc"_s, u"P1"_s}, &luc, 2);
  grille.Ajouter({u"Anne"_s, u"P1"_s}, &anne);
  grille.Ajouter({u"Marc"_s, u"M3"_s});
  grille.Cocher(0, true);
  grille.ChoisirLigne(0);
  int choix = 0;
  const TLien lien = grille.SurChoix.Suivre([&] { ++choix; });

  grille.Trier(ComparerColonne0);
  EXPECT_EQ(grille.LigneCourante(), 1);
  EXPECT_EQ(grille.Ligne(1).Objet.En<TEleveFictif>(), &luc);
  EXPECT_EQ(grille.Ligne(1).Objet.En<TClasseFictive>(), nullptr);
  EXPECT_EQ(grille.Ligne(1).Etat, 2);
  EXPECT_TRUE(grille.Ligne(1).Coche);
  EXPECT_EQ(grille.TrouverObjet(&anne), 0);
  EXPECT_EQ(grille.TrouverObjet(nullptr), -1);
  grille.Trier(ComparerColonne1);  // alike rows keep their order
  EXPECT_EQ(Colonne(grille, 0), (QStringList{u"Marc"_s, u"Anne"_s, u"Luc"_s}));
  EXPECT_EQ(choix, 0);

  grille.Retirer(0);
  EXPECT_EQ(grille.LigneCourante(), 1);
  grille.Retirer(1);
  EXPECT_EQ(grille.LigneCourante(), 0);
  EXPECT_EQ(choix, 1);
  grille.Vider();
  EXPECT_EQ(grille.LigneCourante(), -1);
  EXPECT_EQ(choix, 2);
  EXPECT_EQ(grille.NombreColonnes(), 2);
  EXPECT_THROW(grille.Retirer(0), std::out_of_range);
}

TEST(Grille, FiltreSansCasseNiAccent) {
  TGrille grille = Grille(TOrdre::Texte, {u"Élodie Gaëlle"_s, QString()});
  for (const char* oui : {"", "elodie", "GAELLE él", "x ÉLO"})
    EXPECT_TRUE(grille.Contient(0, QString::fromUtf8(oui))) << oui;
  for (const char* non : {"elodies", "xé", "elodie luc"})
    EXPECT_FALSE(grille.Contient(0, QString::fromUtf8(non))) << non;
}

TEST(Grille, LesGroupesTiennentEnsemble) {
  TGrille grille = Grille(TOrdre::Nombre, {u"9"_s});
  const auto remplir = [&] {
    grille.AjouterTete({u"Soir"_s, u"2 relevés"_s});
    for (const char* texte : {"3", "\u22122,50 €"}) grille.Ajouter({QString(), QString::fromUtf8(texte)});
    grille.AjouterTete({u"Matin"_s});
    grille.Ajouter({QString(), u"1"_s});
  };
  remplir();
  EXPECT_EQ(grille.TeteDe(0), -1);
  EXPECT_EQ(grille.TeteDe(1), -1);
  EXPECT_EQ(grille.TeteDe(3), 1);
  EXPECT_EQ(grille.TeteDe(5), 4);
  grille.Trier(1);
  EXPECT_EQ(Colonne(grille, 1), u"9|2 relevés|\u22122,50 €|3||1"_s.split(u'|'));
  grille.Fermer(4, true);
  grille.Vider();
  remplir();
  EXPECT_FALSE(grille.EstFerme(0));
  EXPECT_TRUE(grille.EstFerme(3));
}

TEST(Grille, LEtatSeLitCommeUnTexte) {
  TGrille grille({{u"Nom"_s}, {u"État"_s}});
  EXPECT_EQ(grille.ColonneEtat(), -1);
  grille.Etats = {{}, {u"Payé"_s, u"dialog-ok-apply"_s}, {u"Dû"_s, {}}};
  for (const int etat : {1, 0, 2}) grille.Ajouter({u"x"_s}, {}, etat);
  EXPECT_EQ(grille.TexteVu(0, 1), u"Payé"_s);
  EXPECT_TRUE(grille.Contient(2, u"du"_s));
  EXPECT_FALSE(grille.Contient(1, u"du"_s));
  EXPECT_GT(grille.Comparer(0, 2, 1), 0);
  EXPECT_LT(grille.Comparer(1, 2, 1), 0);
}

TEST(Grille, AnnonceChaqueChangementOuUnLot) {
  TGrille grille = Grille(TOrdre::Texte, {u"a"_s, u"b"_s});
  std::vector<int> lignes;
  const TLien lien =
      grille.SurChangement.Suivre([&](TGrille::TChangement changement) { lignes.push_back(changement.Ligne); });
  grille.Ecrire(1, 4, u"loin"_s);
  EXPECT_EQ(grille.Texte(1, 4), u"loin"_s);
  EXPECT_TRUE(grille.Texte(1, 3).isEmpty());
  grille.ChangerEtat(0, 1);
  grille.Ajouter({u"c"_s});
  EXPECT_EQ(lignes, (std::vector{1, 0, -1}));
  lignes.clear();
  {
    TGrille::TLot lot(grille);
    grille.DefinirColonnes({{u"Seule"_s}});
    grille.Ajouter({u"d"_s});
    EXPECT_TRUE(lignes.empty());
  }
  EXPECT_EQ(lignes, std::vector{-1});
  { TGrille::TLot rien(grille); }
  EXPECT_EQ(lignes.size(), 1U);
}

TEST(Arbre, OrdreEtRecherche) {
  TEleveFictif anne, luc;
  TArbre arbre;
  EXPECT_EQ(arbre.Premier(), nullptr);
  TNoeud& m1 = arbre.Ajouter(nullptr, u"M1"_s);
  TNoeud& p1 = arbre.Ajouter(nullptr, u"P1"_s);
  TNoeud& noeudAnne = arbre.Ajouter(&m1, u"Élan Anne"_s, &anne);
  TNoeud& noeudLuc = arbre.Ajouter(&p1, u"p1"_s, &luc);

  std::vector<const TNoeud*> ordre;
  for (const TNoeud* noeud = arbre.Premier(); noeud; noeud = arbre.Suivant(*noeud)) ordre.push_back(noeud);
  EXPECT_EQ(ordre, (std::vector<const TNoeud*>{&m1, &noeudAnne, &p1, &noeudLuc}));
  EXPECT_EQ(noeudLuc.Niveau(), 1);

  EXPECT_EQ(arbre.TrouverObjet(&luc), &noeudLuc);
  EXPECT_EQ(arbre.TrouverObjet(nullptr), nullptr);  // M1 carries none
  EXPECT_EQ(arbre.TrouverTexte(u"éLAN aNNE"_s), &noeudAnne);
  EXPECT_EQ(arbre.TrouverTexte(u"p1"_s), &p1);  // the first in tree order
  EXPECT_EQ(arbre.TrouverTexte(u"P"_s), nullptr);

  int choix = 0;
  const TLien lien = arbre.SurSelection.Suivre([&] { ++choix; });
  arbre.Selectionner(&noeudLuc);
  arbre.Selectionner(&noeudLuc);
  EXPECT_EQ(choix, 1);
  arbre.Supprimer(m1);
  EXPECT_EQ(arbre.Selection(), &noeudLuc);
  EXPECT_EQ(arbre.TrouverObjet(&anne), nullptr);
  arbre.Supprimer(p1);
  EXPECT_EQ(arbre.Selection(), nullptr);
  EXPECT_EQ(choix, 2);
  EXPECT_EQ(arbre.Premier(), nullptr);
}
