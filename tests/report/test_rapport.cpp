#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/exceptions.h"
#include "forms/grille.h"
#include "report/rapport.h"

namespace {

TRapport Rapport(TArbreRapport arbre = {}) {
  TRapport rapport(QStringLiteral("Titre"), QStringLiteral("Modele"));
  rapport.CopierArbre(std::move(arbre));
  return rapport;
}

/// Two pupils of two sections of two lines; the flat order is 0 to 13.
TArbreRapport DeuxEleves() {
  TArbreRapport arbre;
  for (int eleve = 0; eleve < 2; ++eleve) {
    TNoeudRapport& noeud = arbre.emplace_back();
    for (int section = 0; section < 2; ++section) {
      TNoeudRapport& rubrique = noeud.Ajouter({});
      rubrique.Ajouter({});
      rubrique.Ajouter({});
    }
  }
  return arbre;
}

/// The node at an index of the flat order.
TNoeudRapport& Noeud(TArbreRapport& arbre, int indice) {
  TNoeudRapport& eleve = arbre[static_cast<size_t>(indice / 7)];
  const int dans = indice % 7 - 1;
  if (dans < 0) return eleve;
  TNoeudRapport& section = eleve.Enfants[static_cast<size_t>(dans / 3)];
  return dans % 3 == 0 ? section : section.Enfants[static_cast<size_t>(dans % 3 - 1)];
}

QStringList Lignes(const TRapport& rapport, QStringView nom, int colonne = 0) {
  QStringList valeurs;
  for (int ligne = 0; ligne < static_cast<int>(rapport.Plat().size()); ++ligne)
    valeurs += rapport.Valeur(nom, {ligne, colonne}).value_or(QStringLiteral("?"));
  return valeurs;
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
      const TRapport rapport = Rapport(source);
      EXPECT_EQ(rapport.Valeur(u"NOM", {ordre[0]}), QString::number(attendu));
      Noeud(source, attendu).Valeurs.Ecrire(u"nom", {});  // an empty value counts as a missing one
    }
    EXPECT_EQ(Rapport(source).Valeur(u"Nom", {ordre[0]}), QString()) << ordre[0];
  }
  EXPECT_EQ(Rapport().Valeur(u"Nom", {0}), QString());
  EXPECT_EQ(Rapport(DeuxEleves()).Valeur(u"Nom", {14}), QString());
}

TEST(Rapport, LeMoteurPuisLesVariablesPuisLArbre) {
  TArbreRapport arbre(1);
  for (const char16_t* nom : {u"Date", u"MyTotal", u"Adresse", u"Date1", u"Mode", u"Libre"})
    arbre[0].Valeurs.Ecrire(nom, QStringLiteral("noeud"));
  TRapport rapport = Rapport(std::move(arbre));
  rapport.AjouterVariable(u"TotalPages", QStringLiteral("variable"));
  rapport.AjouterVariable(u"mypage", QStringLiteral("variable"));
  rapport.AjouterVariable(u"Mode", QStringLiteral("premier"));
  rapport.AjouterVariable(u"MODE", QStringLiteral("variable"));
  rapport.AjouterVariable(u"Adresse", {});
  for (const char16_t* nom : {u"DATE", u"Time", u"line#", u"LINETHROUGH#", u"Column#", u"CURRENT#", u"Page#",
                              u"TOTALPAGES", u"MyTotal", u"MyPage"})
    EXPECT_EQ(rapport.Valeur(nom, {}), std::nullopt) << QStringView(nom).toUtf8().constData();
  EXPECT_EQ(rapport.Valeur(u"mode", {}), QStringLiteral("variable"));
  EXPECT_EQ(rapport.Valeur(u"ADRESSE", {}), QString());  // an empty variable hides the node
  EXPECT_EQ(rapport.Valeur(u"DATE1", {}), QStringLiteral("noeud"));
  EXPECT_EQ(rapport.Valeur(u"Libre", {}), QStringLiteral("noeud"));
  EXPECT_EQ(rapport.Valeur(u"nomrapport", {}), QStringLiteral("Titre"));
  EXPECT_EQ(rapport.Variables().Nombre(), 5);
  rapport.EffacerVariables();
  EXPECT_EQ(rapport.Valeur(u"NomRapport", {}), QString());
  EXPECT_EQ(rapport.Valeur(u"Mode", {}), QStringLiteral("noeud"));
}

TEST(Rapport, ColonnesDUneListeEtDUneGrille) {
  TGrille grille(
      {{QStringLiteral("Nom"), 120}, {QStringLiteral("Classe"), 60}, {QStringLiteral("Montant"), 70}});
  grille.Ajouter({QStringLiteral("Anne"), {}, QStringLiteral("3,00")});
  grille.Ajouter({{}, QStringLiteral("P1")});

  TRapport liste = Rapport(DeuxEleves());
  liste.ChargerColonnesListe(grille);
  EXPECT_TRUE(liste.ModeColonnes());
  EXPECT_EQ(liste.NombreColonnes(), 3);
  EXPECT_EQ(Lignes(liste, u"ColRef"), (QStringList{QStringLiteral("Anne"), QString()}));
  EXPECT_EQ(Lignes(liste, u"COL", 0), (QStringList{QString(), QStringLiteral("P1")}));
  EXPECT_EQ(Lignes(liste, u"COL", 1), (QStringList{QStringLiteral("3,00"), QString()}));
  EXPECT_EQ(liste.Valeur(u"COLTITLE", {0, 1}), QStringLiteral("Montant"));
  EXPECT_EQ(liste.Valeur(u"COLWIDTH", {0, 1}), QStringLiteral("70"));
  EXPECT_EQ(liste.Valeur(u"COLREFWIDTH", {0, 1}), QStringLiteral("120"));
  EXPECT_EQ(liste.Valeur(u"COLREFTITLE", {0, 1}), QStringLiteral("Nom"));
  EXPECT_EQ(liste.Valeur(u"COL1", {1}), QString());  // nothing else is answered
  EXPECT_EQ(liste.Valeur(u"NomRapport", {1}), QStringLiteral("Titre"));
  EXPECT_EQ(liste.Arbre()[0].Texte, QStringLiteral("Anne"));

  TRapport cachee = Rapport();
  cachee.ChargerColonnesGrille(grille, 1);
  EXPECT_EQ(cachee.NombreColonnes(), 2);
  EXPECT_EQ(Lignes(cachee, u"COLREF"), (QStringList{QStringLiteral("Anne"), QStringLiteral(" ")}));
  EXPECT_EQ(Lignes(cachee, u"COL", 0), (QStringList{QStringLiteral(" "), QStringLiteral("P1")}));
  EXPECT_EQ(cachee.Valeur(u"COLTITLE", {0, 0}), QString());
  EXPECT_EQ(cachee.Valeur(u"COLWIDTH", {0, 0}), QStringLiteral("0"));
  EXPECT_EQ(cachee.Valeur(u"COLTITLE", {0, 1}), QStringLiteral("Montant"));
  cachee.ChargerColonnesGrille(grille);
  EXPECT_EQ(cachee.NombreColonnes(), 3);
  EXPECT_EQ(cachee.Valeur(u"COLTITLE", {0, 0}), QStringLiteral("Classe"));
}

TEST(Rapport, CinquanteColonnesAuPlus) {
  TRapport rapport = Rapport();
  rapport.ChargerColonnesListe(TGrille(std::vector<TColonneGrille>(50, {QStringLiteral("C"), 7})));
  EXPECT_EQ(rapport.Valeur(u"COLWIDTH", {0, 48}), QStringLiteral("7"));
  EXPECT_EQ(rapport.Valeur(u"COLWIDTH", {0, 49}), QString());
  EXPECT_THROW(rapport.ChargerColonnesListe(TGrille(std::vector<TColonneGrille>(51))), Exception);
}

TEST(Rapport, JsonGardeLOrdreEtToutTexte) {
  const QString hostile = QStringLiteral("[Total] <b>\"Éléonore\\\"</b>=\r\n\t\u0001\u2028") % QChar(0xD800);
  TArbreRapport arbre(2);
  arbre[1].Texte = hostile;
  arbre[1].Valeurs.Ecrire(u"Zoé", QStringLiteral("1"));
  arbre[1].Valeurs.Ecrire(u"Abel", hostile);
  arbre[1].Ajouter(QStringLiteral("section")).Ajouter(QStringLiteral("ligne"));
  TRapport rapport = Rapport(std::move(arbre));
  rapport.AjouterVariable(u"A", {});
  const QByteArray json = rapport.EnJson();
  EXPECT_TRUE(json.startsWith(R"({"modele":"Modele","variables":{"NomRapport":"Titre","A":""},"arbre":[)"));
  EXPECT_LT(json.indexOf("Zoé"), json.indexOf("Abel"));

  const QJsonDocument lu = QJsonDocument::fromJson(json);
  const QJsonArray noeuds = lu[u"arbre"].toArray();
  ASSERT_EQ(noeuds.size(), 2);
  EXPECT_EQ(noeuds[0], (QJsonObject{{QStringLiteral("texte"), QString()},
                                    {QStringLiteral("valeurs"), QJsonObject()},
                                    {QStringLiteral("enfants"), QJsonArray()}}));
  const QString rendu = noeuds[1][u"valeurs"][u"Abel"].toString();
  EXPECT_EQ(rendu.chopped(1), hostile.chopped(1));  // half a character cannot be written
  EXPECT_EQ(noeuds[1][u"enfants"][0][u"enfants"][0][u"texte"], QStringLiteral("ligne"));

  EXPECT_EQ(rapport.Valeur(u"abel", {1}), hostile);  // a value is never looked into
}

TEST(Rapport, LogoEtPhoto) {
  TArbreRapport arbre(1);
  arbre[0].Valeurs.Ecrire(u"PhotoID", QStringLiteral("17"));
  TRapport rapport = Rapport(std::move(arbre));
  EXPECT_EQ(rapport.Image(u"MyLogo", {}), std::nullopt);
  EXPECT_EQ(rapport.Image(u"MyPhoto", {}), std::nullopt);
  rapport.Logo = QImage(3, 2, QImage::Format_RGB32);
  QString demande;
  rapport.ChargeurPhoto = [&](const QString& identifiant, QImage& photo) {
    demande = identifiant;
    photo = QImage(5, 4, QImage::Format_RGB32);
  };
  EXPECT_EQ(rapport.Image(u"MyLogo", {})->size(), QSize(3, 2));
  EXPECT_EQ(rapport.Image(u"MyPhoto", {})->size(), QSize(5, 4));
  EXPECT_EQ(demande, QStringLiteral("17"));
  EXPECT_EQ(rapport.Image(u"Picture1", {}), std::nullopt);
}

TEST(NoeudRapport, LesVidesPartentDuDernierAuPremier) {
  TArbreRapport arbre(3);
  arbre[0].Ajouter(QStringLiteral("vide"));
  arbre[1].Ajouter(QStringLiteral("vide"));
  arbre[1].Ajouter(QStringLiteral("pleine")).Ajouter(QStringLiteral("ligne"));
  SupprimerNoeudsVides(arbre);
  ASSERT_EQ(arbre.size(), 1U);
  ASSERT_EQ(arbre[0].Enfants.size(), 1U);
  EXPECT_EQ(arbre[0].Enfants[0].Texte, QStringLiteral("pleine"));
  EXPECT_EQ(arbre[0].Enfants[0].Enfants.size(), 1U);
}
