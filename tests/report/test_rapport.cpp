#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/exceptions.h"
#include "forms/grille.h"
#include "report/parcours.h"

using namespace Qt::StringLiterals;

namespace {

TRapport Rapport(TArbreRapport arbre = {}) {
  TRapport rapport(u"Titre"_s, u"Modele"_s);
  rapport.CopierArbre(std::move(arbre));
  return rapport;
}

/// Two pupils of two sections of two lines; the flat order is 0 to 13.
TArbreRapport DeuxEleves() {
  TNoeudRapport section, eleve;
  section.Enfants.resize(2);
  eleve.Enfants.resize(2, section);
  return {eleve, eleve};
}

/// The node at an index of the flat order.
TNoeudRapport& Noeud(TArbreRapport& arbre, int indice) {
  TNoeudRapport& eleve = arbre[static_cast<size_t>(indice / 7)];
  const int dans = indice % 7 - 1;
  if (dans < 0) return eleve;
  TNoeudRapport& section = eleve.Enfants[static_cast<size_t>(dans / 3)];
  return dans % 3 == 0 ? section : section.Enfants[static_cast<size_t>(dans % 3 - 1)];
}

/// The values of the names at a place, "?" for one that is not answered.
QString Valeurs(const TRapport& rapport, const QString& noms, TPosition position) {
  QStringList valeurs;
  for (const QString& nom : noms.split(u' ')) valeurs += rapport.Valeur(nom, position).value_or(u"?"_s);
  return valeurs.join(u'|');
}

}  // namespace

TEST(Rapport, UnNomPasseDUnParentAuSuivantDansLOrdre) {
  // For each node, who is asked: itself, then its relatives in this order, and nobody else.
  const std::vector<std::vector<int>> demandes = {{0, 1, 2}, {1, 0, 2}, {2, 1, 0}, {3, 1, 0},  {4, 0, 5},
                                                  {5, 4, 0}, {6, 4, 0}, {7, 8, 9}, {11, 7, 12}};
  for (const std::vector<int>& ordre : demandes) {
    TArbreRapport source = DeuxEleves();
    for (int indice = 0; indice < 14; ++indice)
      Noeud(source, indice).Valeurs.Ecrire(u"Nom", QString::number(indice));
    for (const int attendu : ordre) {
      EXPECT_EQ(Valeurs(Rapport(source), u"NOM"_s, {ordre[0]}), QString::number(attendu));
      Noeud(source, attendu).Valeurs.Ecrire(u"nom", {});  // an empty value counts as a missing one
    }
    EXPECT_EQ(Valeurs(Rapport(source), u"Nom"_s, {ordre[0]}), QString()) << ordre[0];
  }
  EXPECT_EQ(Valeurs(Rapport(), u"Nom"_s, {0}), QString());
}

TEST(Rapport, LeMoteurPuisLesVariablesPuisLArbre) {
  TArbreRapport arbre(1);
  for (const char16_t* nom : {u"Date", u"MyTotal", u"Adresse", u"Date1", u"Mode"})
    arbre[0].Valeurs.Ecrire(nom, u"noeud"_s);
  TRapport rapport = Rapport(std::move(arbre));
  for (const char16_t* nom : {u"TotalPages", u"mypage", u"Mode"}) rapport.AjouterVariable(nom, u"avant"_s);
  rapport.AjouterVariable(u"MODE", u"variable"_s);
  rapport.AjouterVariable(u"Adresse", {});
  EXPECT_EQ(rapport.Variables().Nombre(), 5);
  EXPECT_EQ(Valeurs(rapport,
                    u"DATE Time line# LINETHROUGH# Column# CURRENT# Page# TOTALPAGES MyTotal MyPage"_s, {}),
            u"?|?|?|?|?|?|?|?|?|?"_s);
  // An empty variable hides the value of the node.
  EXPECT_EQ(Valeurs(rapport, u"mode ADRESSE DATE1 nomrapport Inconnu"_s, {}), u"variable||noeud|Titre|"_s);
  rapport.EffacerVariables();
  EXPECT_EQ(Valeurs(rapport, u"NomRapport Mode"_s, {}), u"|noeud"_s);
}

TEST(Rapport, ColonnesDUneListeEtDUneGrille) {
  TGrille grille({{u"Nom"_s, 120}, {u"Classe"_s, 60}, {u"Montant"_s, 70}});
  grille.Ajouter({{}, u"P1"_s});
  const QString noms = u"ColRef COL COLWIDTH COLTITLE COLREFWIDTH COLREFTITLE COL1 NomRapport"_s;
  TRapport rapport = Rapport(DeuxEleves());
  rapport.ChargerColonnesListe(grille);
  EXPECT_EQ(Valeurs(rapport, noms, {0, 0}), u"|P1|60|Classe|120|Nom||Titre"_s);
  rapport.ChargerColonnesGrille(grille, 1);
  EXPECT_EQ(rapport.NombreColonnes(), 2);
  EXPECT_EQ(Valeurs(rapport, noms, {0, 0}), u" |P1|0||120|Nom||Titre"_s);
  EXPECT_EQ(Valeurs(rapport, noms, {0, 1}), u" | |70|Montant|120|Nom||Titre"_s);
  rapport.ChargerColonnesListe(TGrille(std::vector<TColonneGrille>(50, {u"C"_s, 7})));
  EXPECT_EQ(Valeurs(rapport, u"COLWIDTH"_s, {0, 48}), u"7"_s);
  EXPECT_THROW(rapport.ChargerColonnesListe(TGrille(std::vector<TColonneGrille>(51))), Exception);
}

TEST(Rapport, LesSousDetailsDemandesAvantLesDetails) {
  const TRapport rapport = Rapport(DeuxEleves());
  TParcours parcours(rapport);
  parcours.Premier(TJeu::Maitre);
  parcours.Premier(TJeu::SousDetail);
  EXPECT_EQ(parcours.NombreLignes(TJeu::SousDetail), 2) << "those of the first detail";
}

TEST(Rapport, JsonGardeLOrdreEtToutTexte) {
  const QString hostile = u"[Total] <b>\"Éléonore\\\"</b>=\r\n\t\u0001\u2028"_s % QChar(0xD800);
  TArbreRapport arbre(2);
  arbre[1].Valeurs.Ecrire(u"Zoé", u"1"_s);
  arbre[1].Valeurs.Ecrire(u"Abel", hostile);
  arbre[1].Ajouter(u"section"_s).Ajouter(hostile);
  TRapport rapport = Rapport(std::move(arbre));
  rapport.AjouterVariable(u"A", {});
  const QByteArray json = rapport.EnJson();
  EXPECT_TRUE(
      json.startsWith(R"({"modele":"Modele","variables":{"NomRapport":"Titre","A":""},"arbre":[)"
                      R"({"texte":"","valeurs":{},"enfants":[]},{"texte":"","valeurs":{"Zoé":"1","Abel":)"));
  const QJsonArray noeuds = QJsonDocument::fromJson(json)[u"arbre"].toArray();
  ASSERT_EQ(noeuds.size(), 2);
  const QString texte = noeuds[1][u"enfants"][0][u"enfants"][0][u"texte"].toString();
  EXPECT_EQ(texte.chopped(1), hostile.chopped(1));       // half a character cannot be written
  EXPECT_EQ(Valeurs(rapport, u"abel"_s, {1}), hostile);  // a value is never looked into
}

TEST(NoeudRapport, LesVidesPartentDuDernierAuPremier) {
  TArbreRapport arbre(3);
  arbre[0].Ajouter(u"vide"_s);
  arbre[1].Ajouter(u"vide"_s);
  arbre[1].Ajouter(u"pleine"_s).Ajouter(u"ligne"_s);
  SupprimerNoeudsVides(arbre);
  EXPECT_EQ(QString::fromUtf8(Rapport(arbre).EnJson()).count(u"texte"), 3);
  EXPECT_EQ(arbre.at(0).Enfants.at(0).Texte, u"pleine"_s);
}
