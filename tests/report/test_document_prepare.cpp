#include "page_essai.h"
#include "report/output/peintre.h"
#include "support/refus.h"

namespace {

TDocumentPrepare Document() {
  TDocumentPrepare document;
  document.Titre = u"Facture des frais"_s;
  document.Defauts = {{u"MasterData1"_s, u"BarCode"_s, u"ne tient pas"_s}};
  document.Pages.assign(2, PageDeTout());
  std::swap(document.Pages[1].Largeur, document.Pages[1].Hauteur);
  return document;
}

}  // namespace

TEST(DocumentPrepare, LitEtCherche) {
  const auto nom = Former(u"HAULOTTE "_s, {TFamille::Carlito, 11, true});
  TDocumentPrepare document;
  document.Pages.resize(2);
  document.Pages[0].Elements = {Texte(u"12,50 €"_s, 600, 81), Texte(u"Œuvre d’attention"_s, 40, 80),
                                Texte(u"suite"_s, 40, 98)};
  document.Pages[1].Elements = {TElementTexte{nom, 40, 60}, Texte(u"Éloïse"_s, 40 + nom->Largeur, 60)};
  EXPECT_EQ(document.TexteDePage(0), u"Œuvre d’attention 12,50 €\nsuite"_s);
  EXPECT_EQ(document.TexteDePage(1), u"HAULOTTE Éloïse"_s);

  for (const auto& [cherche, attendues] : {std::pair(u"OEUVRE D'ATT"_s, u"0"_s),
                                           {u" haulotte eloise"_s, u"1"_s},
                                           {u"e"_s, u"0000111"_s},
                                           {u"tention 12"_s, u"0"_s},
                                           {u"absent"_s, u""_s},
                                           {u" "_s, u""_s}}) {
    QString pages;
    for (const TTrouvaille& trouvaille : document.Chercher(cherche))
      pages += QString::number(trouvaille.Page);
    EXPECT_EQ(pages, attendues) << qPrintable(cherche);
  }
  const QRectF place = document.Chercher(u"haulotte eloise"_s)[0].Place;
  EXPECT_NEAR(place.left(), 40, 0.01);
  EXPECT_NEAR(place.right(), static_cast<double>(40 + nom->Largeur + LargeurTexte(u"Éloïse"_s, {})), 0.01);
  EXPECT_LT(place.top(), 50);
  EXPECT_GT(place.bottom(), 60);
  // "tt" is one glyph: the place begins in its middle.
  const QRectF milieu = document.Chercher(u"tention"_s)[0].Place;
  EXPECT_GT(milieu.left(), static_cast<double>(40 + LargeurTexte(u"Œuvre d’a"_s, {})));
  EXPECT_LT(milieu.left(), static_cast<double>(40 + LargeurTexte(u"Œuvre d’att"_s, {})));
}

TEST(DocumentPrepare, SEnregistreEtSOuvre) {
  const QTemporaryDir dossier;
  const QString chemin = dossier.filePath(u"facture.rap"_s);
  const TDocumentPrepare document = Document();
  document.Enregistrer(chemin);
  const TDocumentPrepare ouvert = TDocumentPrepare::Ouvrir(chemin);
  EXPECT_EQ(ouvert.Titre, document.Titre);
  EXPECT_EQ(ouvert.Defauts[0].Message, document.Defauts[0].Message);
  ASSERT_EQ(ouvert.Pages.size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(ouvert.Pages[i].Signets[1].Texte, document.Pages[i].Signets[1].Texte);
    EXPECT_EQ(ouvert.Pages[i].Signets[1].Niveau, 1);
    EXPECT_EQ(Rasteriser(ouvert.Pages[i], 96), Rasteriser(document.Pages[i], 96));
  }
  EXPECT_EQ(ouvert.EnOctets(), document.EnOctets());
  EXPECT_EQ(QDir(dossier.path()).entryList(QDir::Files), QStringList{u"facture.rap"_s});
  EXPECT_EQ(std::get<TElementImage>(ouvert.Pages[0].Elements[8]).Image,
            std::get<TElementImage>(ouvert.Pages[1].Elements[9]).Image);
  EXPECT_THROW(document.Enregistrer(dossier.filePath(u"absent/facture.rap"_s)), Exception);
  EXPECT_THROW(TDocumentPrepare::Ouvrir(dossier.filePath(u"absent.rap"_s)), Exception);
}

TEST(DocumentPrepare, RefuseCeQuiNEstPasUnRapport) {
  const QByteArray octets = Document().EnOctets();
  QByteArray autreVersion = octets, plusLong = octets, plusCourt = octets, abime = octets;
  autreVersion[7] = 9;
  plusLong[8] = static_cast<char>(octets[8] + 1);
  plusCourt[8] = static_cast<char>(octets[8] - 1);
  abime[octets.size() / 2] = static_cast<char>(~abime[octets.size() / 2]);
  for (const QByteArray& faux :
       {QByteArray(), QByteArray("<?xml?>"), octets.left(8), octets.left(octets.size() / 2),
        octets.left(octets.size() - 1), plusLong, plusCourt, abime})
    EXPECT_EQ(Refus([&] { TDocumentPrepare::DepuisOctets(faux); }),
              u"Ce fichier n'est pas un rapport enregistré, ou il est abîmé."_s);
  EXPECT_TRUE(Refus([&] { TDocumentPrepare::DepuisOctets(autreVersion); }).contains(u"autre version"_s));
}
