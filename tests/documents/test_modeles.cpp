#include <QDir>

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
  eleve.Valeurs.Ecrire(u"NomEleve", nom);
  eleve.Valeurs.Ecrire(u"PrenomEleve", u"<b>Zoé</b>"_s);
  eleve.Valeurs.Ecrire(u"TotalGeneral", u"640,60"_s);
  eleve.Enfants = std::move(sections);
  return eleve;
}

TDocumentPrepare Facture(std::vector<TNoeudRapport> eleves, const QImage& logo = {},
                         const QString& compte = {}) {
  TRapport rapport(u"Facture"_s, u"Facture"_s);
  rapport.AjouterVariable(u"EcoleNom", u"École de Brumeval"_s);
  rapport.AjouterVariable(u"EcoleAdresse", u"rue du Vieux Moulin 27"_s);
  rapport.AjouterVariable(u"CompteBanque", compte);
  rapport.Logo = logo;
  rapport.CopierArbre(std::move(eleves));
  return MettreEnPage(rapport, *ModeleDocument(u"Facture"_s));
}

/// y of a text's baseline, from the top of the printable area; -1 when it is not on the page.
int Hauteur(const TPagePreparee& page, const QString& cherche) {
  for (const TElement& element : page.Elements)
    if (const auto* texte = std::get_if<TElementTexte>(&element); texte && texte->Forme->Texte == cherche)
      return qRound(texte->Base - 38);
  return -1;
}

/// Where the pictures of a page stand.
QList<QRectF> Images(const TPagePreparee& page) {
  QList<QRectF> images;
  for (const TElement& element : page.Elements)
    if (const auto* image = std::get_if<TElementImage>(&element)) images += image->Place;
  return images;
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

// A name is never cut, nor does it push a page that is to be one.
TEST(Modeles, NomsEtLieuxLongsTiennent) {
  const QString ecole =
      u"École fondamentale libre subventionnée Notre-Dame de la Miséricorde et Saint-Joseph de la Vallée"_s;
  for (const auto& [modele, pages] : {std::pair(u"FicheFiscale"_s, 1U),
                                      {u"AttestationContribution"_s, 2U},
                                      {u"ONE"_s, 2U},
                                      {u"ONEMulti"_s, 2U},
                                      {u"StatistiqueFrais"_s, 1U},
                                      {u"DocumentProvision"_s, 1U},
                                      {u"DocumentProvisionVESPER"_s, 1U}}) {
    for (const QString& lieu : {u"Ottignies-Louvain-la-Neuve"_s, u"Saint-Georges-sur-Meuse"_s}) {
      SCOPED_TRACE(modele.toStdString());
      TRapport rapport(modele, modele);
      for (const char16_t* nom : {u"NomEcole", u"NomEcoleOfficiel", u"EcoleNom", u"TitreLieu"})
        rapport.AjouterVariable(nom, ecole);
      for (const char16_t* nom : {u"LocaliteEcole", u"ADRESSE"}) rapport.AjouterVariable(nom, lieu);
      TNoeudRapport eleve = Eleve(u"VANDENBOSSCHE-DE LA CROIX"_s, {Section(u"une"_s, 0)});
      eleve.Valeurs.Ecrire(u"PrenomEleve", u"Marie-Antoinette Joséphine Clémentine"_s);
      eleve.Valeurs.Ecrire(u"NomResponsable", u"VANDENBOSSCHE-DE LA CROIX DE MEULENAERE"_s);
      eleve.Valeurs.Ecrire(u"LocaliteResponsable", lieu);
      eleve.Valeurs.Ecrire(u"QrPaiement", u"BCD"_s);
      std::vector<TNoeudRapport> arbre;
      arbre.push_back(std::move(eleve));
      rapport.CopierArbre(std::move(arbre));
      const TDocumentPrepare document = MettreEnPage(rapport, *ModeleDocument(modele));
      EXPECT_EQ(document.Pages.size(), pages);
      EXPECT_TRUE(document.Defauts.empty()) << document.Defauts[0].Message.toStdString();
    }
  }
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
  EXPECT_GT(Hauteur(suite, u"Services 13"_s), 0);
  EXPECT_EQ(Hauteur(suite, u"Services 14"_s), Hauteur(suite, u"Services 13"_s) + 18);
  EXPECT_GT(Hauteur(suite, u"640,60 €"_s), Hauteur(suite, u"Services 14"_s));
  EXPECT_EQ(Hauteur(document.Pages[2], u"LEBON <b>Zoé</b>"_s), 192 + 16);
}

TEST(Modeles, LePaiementRecuNeSeVoitQueChezLeSien) {
  TNoeudRapport avec = Eleve(u"AVEC"_s, {Section(u"Frais"_s, 1)});
  avec.Valeurs.Ecrire(u"Paiement"_s, u"20,00"_s);
  const auto sans = [](const QString& nom) { return Eleve(nom, {Section(u"Frais"_s, 1)}); };
  const TDocumentPrepare document =
      Facture({sans(u"AVANT"_s), avec, sans(u"APRES"_s)}, {}, u"BE68 5390 0754 7034"_s);
  ASSERT_EQ(document.Pages.size(), 3U);
  const QString paiement = u"Paiements reçus : -20,00 €"_s;
  EXPECT_EQ(Hauteur(document.Pages[0], paiement), -1);
  EXPECT_GT(Hauteur(document.Pages[1], paiement), 0);
  EXPECT_EQ(Hauteur(document.Pages[2], paiement), -1);
  EXPECT_EQ(Hauteur(Facture({avec}).Pages[0], paiement), -1) << "a school without an account";
}

TEST(Modeles, LogoDuDocument) {
  const auto logo = [](const QImage& image) {
    return Images(Facture({Eleve(u"LEBON"_s, {Section(u"Frais"_s, 2)})}, image).Pages[0]);
  };
  EXPECT_TRUE(logo({}).isEmpty());
  EXPECT_EQ(logo(QImage(40, 20, QImage::Format_RGB32)), QList{QRectF(672, 38, 84, 42)});
}

TEST(Modeles, LeDossierDuPosteEstACoteDesPresences) {
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, u"/ecole/presences"_s);
  EXPECT_EQ(DossierModeles(reglages), u"/ecole/presences/modeles"_s);
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, {});
}
