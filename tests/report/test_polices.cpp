#include <algorithm>

#include "core/exceptions.h"
#include "report/layout/polices.h"

using namespace Qt::StringLiterals;

namespace {

constexpr TStyle kNormal;
constexpr TStyle kGras{TFamille::Carlito, 11, true, false};
constexpr TStyle kItalique{TFamille::Carlito, 13, false, true};
constexpr TStyle kMono{TFamille::LiberationMono, 11};

}  // namespace

TEST(Polices, ChaqueCaractereAppartientAUnGlyphe) {
  for (const TStyle& style : {kNormal, kGras, kItalique, kMono})
    for (const QString texte :
         {"affiche attention difficile offre", "12,50 € « À petits pas » — Œuvre", "ŞTEFĂNESCU Yiğit Łódź",
          "x\u0323\u0301y", "\u0476", "☐ ☑", "مرحبا لا", "👍 漢", "[Total] <b>", " ", ""}) {
      const auto forme = Former(texte, style);
      EXPECT_EQ(forme->Texte, texte);
      std::vector<TGlyphe> glyphes = forme->Glyphes;
      std::ranges::stable_sort(glyphes, {}, &TGlyphe::Debut);
      int place = 0;
      for (const TGlyphe& glyphe : glyphes) {
        EXPECT_TRUE(glyphe.Nombre == 0 || glyphe.Debut == place) << qPrintable(texte);
        place += glyphe.Nombre;
      }
      EXPECT_EQ(place, texte.size()) << qPrintable(texte);
      EXPECT_EQ(forme->Largeur > 0, !texte.isEmpty());
      EXPECT_EQ(forme->Incomplet, texte.contains("漢"));
    }
}

TEST(Polices, LigaturesCrenageEtAccents) {
  EXPECT_LT(Former("attention", kNormal)->Glyphes.size(), 9U);
  EXPECT_LT(LargeurTexte("AV", kNormal), LargeurTexte("A", kNormal) + LargeurTexte("V", kNormal));
  EXPECT_EQ(Former("e\u0301", kNormal)->Texte, "é");
  EXPECT_EQ(Former("a\tb", kNormal)->Texte, "a b");
  EXPECT_EQ(Former("Total", kGras), Former("Total", kGras));
  EXPECT_NE(Former("Total", kGras)->Police, Former("Total", kNormal)->Police);
  EXPECT_NEAR(LargeurTexte("Soupes", {TFamille::Carlito, 22}), 2 * LargeurTexte("Soupes", kNormal), 0.01);
}

TEST(Polices, LesMontantsOntUneSeuleLargeur) {
  for (const TStyle& style : {kNormal, kGras, kItalique, kMono})
    for (int centimes = 0; centimes < 100; ++centimes) {
      const QString texte = u",%1 €"_s.arg(centimes, 2, 10, QChar(u'0'));
      EXPECT_FLOAT_EQ(LargeurTexte(texte, style), LargeurTexte(",00 €", style)) << qPrintable(texte);
    }
}

TEST(Polices, UneFamilleQuiManqueEstDite) {
  EXPECT_TRUE(TPolices::Communes().Manques().isEmpty());
  const QString liberation = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf";
  for (const auto& connue : {"Liberation Sans", ""}) {
    const TPolices polices(
        [&](const TDemandePolice& d) { return d.Famille == connue ? liberation : QString(); });
    EXPECT_EQ(polices.Manques(),
              (QStringList{"La police Carlito n'est pas installée : une autre la remplace.",
                           "La police Liberation Mono n'est pas installée : une autre la remplace."}));
    EXPECT_EQ(polices.Trouver(kMono).Nom(), "LiberationSans");
  }
  EXPECT_THROW(TPolices([](const TDemandePolice&) { return QString(); }), Exception);
  EXPECT_THROW(TPolice("pas une police", {}), Exception);
}
