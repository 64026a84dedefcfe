#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "core/reglages_poste.h"
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

TDocumentPrepare Facture(std::vector<TNoeudRapport> eleves, const QImage& logo = {}) {
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
  rapport.Logo = logo;
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

/// The pictures of a page, each as "left,top width x height".
QStringList Images(const TPagePreparee& page) {
  QStringList images;
  for (const TElement& element : page.Elements)
    if (const auto* image = std::get_if<TElementImage>(&element))
      images += u"%1,%2 %3x%4"_s.arg(image->Place.x())
                    .arg(image->Place.y())
                    .arg(image->Place.width())
                    .arg(image->Place.height());
  return images;
}

QImage Image(int largeur, int hauteur) {
  QImage image(largeur, hauteur, QImage::Format_RGB32);
  image.fill(0xFF804000);
  return image;
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

TEST(Modeles, LePaiementRecuRestePourLesSuivants) {
  TNoeudRapport avec = Eleve(u"AVEC"_s, {Section(u"Frais"_s, 1)});
  avec.Valeurs.Ecrire(u"Paiement"_s, u"20,00"_s);
  const auto sans = [](const QString& nom) { return Eleve(nom, {Section(u"Frais"_s, 1)}); };
  const TDocumentPrepare document = Facture({sans(u"AVANT"_s), avec, sans(u"APRES"_s)});
  ASSERT_EQ(document.Pages.size(), 3U);
  const QString paiement = u"Paiements reçus : -20,00 €"_s;
  EXPECT_EQ(Hauteur(document.Pages[0], paiement), -1);
  EXPECT_EQ(Hauteur(document.Pages[1], paiement), Hauteur(document.Pages[2], paiement));
  EXPECT_GT(Hauteur(document.Pages[2], paiement), 0) << "as the school's invoices have always done";
}

TEST(Modeles, LogoDuDocument) {
  const auto eleve = [] { return std::vector{Eleve(u"LEBON"_s, {Section(u"Frais"_s, 2)})}; };
  EXPECT_EQ(Images(Facture(eleve()).Pages[0]), QStringList());
  EXPECT_EQ(Images(Facture(eleve(), Image(40, 20)).Pages[0]), QStringList{u"672,38 84x42"_s});
}

TEST(Modeles, DossierDuPoste) {
  const QTemporaryDir dossier;
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, dossier.path());
  const QString modeles = DossierModeles(reglages);
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, {});
  EXPECT_EQ(modeles, dossier.filePath(u"modeles"_s));
  EXPECT_EQ(ModeleDocument(u"Badge"_s, modeles)->Pages[0].Marge, 0.0F);

  ASSERT_TRUE(QDir().mkpath(modeles));
  ASSERT_TRUE(Image(30, 10).save(modeles + u"/logo.png"_s));
  QFile fichier(modeles + u"/carte_eleve.xml"_s);
  ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
  fichier.write(R"(<partie><bande sorte="maitre" nom="MasterData1" hauteur="200" nouvellePage="oui">
    <image fichier="logo.png" x="10" y="10" largeur="60" hauteur="60"/>
    <image nom="MyLogo" fichier="logo.png" x="10" y="40" largeur="60" hauteur="60"/>
    <image nom="MyPhoto" x="200" y="20" largeur="95" hauteur="110"/></bande></partie>)");
  fichier.close();
  TRapport rapport(u"Badge d'identification"_s, u"Badge"_s);
  for (const QString& eleve : {u"7"_s, u"8"_s}) {
    TNoeudRapport noeud;
    noeud.Valeurs.Ecrire(u"PhotoID", eleve);
    TArbreRapport arbre = rapport.Arbre();
    arbre.push_back(noeud);
    rapport.CopierArbre(arbre);
  }
  rapport.ChargeurPhoto = [](const QString& identifiant, QImage& photo) {
    if (identifiant == u"7") photo = Image(95, 110);
  };
  const TDocumentPrepare document = MettreEnPage(rapport, *ModeleDocument(u"Badge"_s, modeles));
  const QStringList logos{u"10,10 60x20"_s, u"10,40 60x20"_s};
  EXPECT_EQ(Images(document.Pages.at(0)), logos + QStringList{u"200,20 95x110"_s});
  EXPECT_EQ(Images(document.Pages.at(1)), logos) << "a pupil without photo";
}
