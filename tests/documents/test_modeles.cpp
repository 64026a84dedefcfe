#include <gtest/gtest.h>

#include <QDir>

#include "documents/modeles.h"
#include "report/layout/mise_en_page.h"

using namespace Qt::StringLiterals;

namespace {

TNoeudRapport Section(const QString& type, int lignes) {
  TNoeudRapport section(type);
  section.Valeurs.Ecrire(u"TypeFrais", type);
  section.Valeurs.Ecrire(u"TotalFrais", u"12,50"_s);
  for (int i = 1; i <= lignes; ++i) {
    TValeurs& ligne = section.Ajouter({}).Valeurs;
    ligne.Ecrire(u"NomService", type + u' ' + QString::number(i));
    ligne.Ecrire(u"Total", u"1,25"_s);
  }
  return section;
}

TNoeudRapport Eleve(const QString& nom, std::vector<TNoeudRapport> sections) {
  TNoeudRapport eleve(nom);
  for (const auto& [cle, valeur] : std::initializer_list<TValeurs::TValeur>{
           {u"NomEleve"_s, nom},
           {u"PrenomEleve"_s, u"<b>Zoé</b>"_s},
           {u"Classe"_s, u"P3 A"_s},
           {u"TotalGeneral"_s, u"640,60"_s},
           {u"Communication"_s, u"Communication : +++001/2310/16185+++"_s}})
    eleve.Valeurs.Ecrire(cle, valeur);
  eleve.Enfants = std::move(sections);
  return eleve;
}

TDocumentPrepare Facture(std::vector<TNoeudRapport> eleves) {
  TRapport rapport(u"Facture"_s, u"Facture"_s);
  for (const auto& [nom, valeur] :
       std::initializer_list<TValeurs::TValeur>{{u"EcoleNom"_s, u"École de Brumeval"_s},
                                                {u"EcoleAdresse"_s, u"rue du Vieux Moulin 27"_s},
                                                {u"EcoleCodePostal"_s, u"5537"_s},
                                                {u"EcoleLocalite"_s, u"Brumeval"_s},
                                                {u"EcoleTelephone"_s, u"082 61 00 00"_s},
                                                {u"MoisReleve"_s, u"du mois d'octobre 2016"_s},
                                                {u"CompteBanque"_s, u"BE68 5390 0754 7034"_s}})
    rapport.AjouterVariable(nom, valeur);
  rapport.CopierArbre(std::move(eleves));
  return MettreEnPage(rapport, *ModeleDocument(u"Facture"_s));
}

/// y of the baseline of each text on a page, from the top of the printable area, in order.
std::vector<std::pair<int, QString>> Textes(const TPagePreparee& page) {
  std::vector<std::pair<int, QString>> textes;
  for (const TElement& element : page.Elements)
    if (const auto* texte = std::get_if<TElementTexte>(&element))
      textes.emplace_back(qRound(texte->Base - 38), texte->Forme->Texte);
  return textes;
}

int Hauteur(const TPagePreparee& page, const QString& texte) {
  for (const auto& [y, sien] : Textes(page))
    if (sien == texte) return y;
  return -1;
}

}  // namespace

TEST(Modeles, TousSeLisent) {
  ASSERT_NE(ModeleDocument(u"Facture"_s), nullptr);
  for (const QString& fichier : QDir(u":/modeles"_s).entryList())
    if (fichier[0].isUpper()) {
      EXPECT_NO_THROW(ModeleDocument(fichier.chopped(4))) << fichier.toStdString();
    }
  EXPECT_EQ(ModeleDocument(u"Inconnu"_s), nullptr);
}

TEST(Modeles, UneFactureDeDeuxPages) {
  const TDocumentPrepare document =
      Facture({Eleve(u"[Total]"_s, {Section(u"Frais"_s, 25), Section(u"Services"_s, 14)}),
               Eleve(u"LEBON"_s, {Section(u"Frais"_s, 2)})});
  ASSERT_EQ(document.Pages.size(), 3U);
  EXPECT_TRUE(document.Defauts.empty());
  const TPagePreparee& premiere = document.Pages[0];
  const TPagePreparee& suite = document.Pages[1];
  // The school's memos close the gap that a missing site leaves.
  EXPECT_EQ(Hauteur(premiere, u"rue du Vieux Moulin 27"_s), 35 + 13);
  EXPECT_EQ(Hauteur(premiere, u"[Total] <b>Zoé</b>"_s), 192 + 16);
  EXPECT_EQ(Hauteur(premiere, u"Frais"_s), 256 + 6 + 13);
  EXPECT_EQ(Hauteur(premiere, u"640,60 €"_s), -1);
  // The other page says whose it is, names the running section again, and keeps rows with the total.
  EXPECT_EQ(Hauteur(suite, u"[Total] <b>Zoé</b>"_s), 134 + 13);
  EXPECT_EQ(Hauteur(suite, u"Services"_s), 158 + 6 + 13);
  EXPECT_EQ(Hauteur(suite, u"Services 13"_s) > 0, true);
  EXPECT_EQ(Hauteur(suite, u"Services 14"_s), Hauteur(suite, u"Services 13"_s) + 18);
  EXPECT_GT(Hauteur(suite, u"640,60 €"_s), Hauteur(suite, u"Services 14"_s));
  EXPECT_EQ(Hauteur(document.Pages[2], u"LEBON <b>Zoé</b>"_s), 192 + 16);
}
