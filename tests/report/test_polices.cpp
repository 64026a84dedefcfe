#include <gtest/gtest.h>

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
    for (const QString& texte :
         {u"affiche attention difficile offre"_s, u"12,50 € « À petits pas » — Œuvre"_s,
          u"ŞTEFĂNESCU Yiğit Łódź"_s, u"x\u0323\u0301y"_s, u"\u0476"_s, u"☐ ☑"_s, u"مرحبا لا"_s, u"👍 漢"_s,
          u"[Total] <b>"_s, u" "_s, u""_s}) {
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
      EXPECT_EQ(forme->Incomplet, texte.contains(u"漢"_s));
    }
}

TEST(Polices, LigaturesCrenageEtAccents) {
  EXPECT_LT(Former(u"attention"_s, kNormal)->Glyphes.size(), 9U);
  EXPECT_LT(LargeurTexte(u"AV"_s, kNormal), LargeurTexte(u"A"_s, kNormal) + LargeurTexte(u"V"_s, kNormal));
  EXPECT_EQ(Former(u"e\u0301"_s, kNormal)->Texte, u"é"_s);
  EXPECT_EQ(Former(u"a\tb"_s, kNormal)->Texte, u"a b"_s);
  EXPECT_EQ(Former(u"Total"_s, kGras), Former(u"Total"_s, kGras));
  EXPECT_NE(Former(u"Total"_s, kGras)->Police, Former(u"Total"_s, kNormal)->Police);
  EXPECT_NEAR(LargeurTexte(u"Soupes"_s, {TFamille::Carlito, 22}), 2 * LargeurTexte(u"Soupes"_s, kNormal),
              0.01);
}

TEST(Polices, LesMontantsOntUneSeuleLargeur) {
  for (const TStyle& style : {kNormal, kGras, kItalique, kMono})
    for (int centimes = 0; centimes < 100; ++centimes) {
      const QString texte = u",%1 €"_s.arg(centimes, 2, 10, QChar(u'0'));
      EXPECT_FLOAT_EQ(LargeurTexte(texte, style), LargeurTexte(u",00 €"_s, style)) << qPrintable(texte);
    }
}

TEST(Polices, UneFamilleQuiManqueEstDite) {
  EXPECT_TRUE(TPolices::Communes().Manques().isEmpty());
  const QString liberation = u"/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"_s;
  for (const auto& connue : {u"Liberation Sans"_s, u""_s}) {
    const TPolices polices(
        [&](const TDemandePolice& d) { return d.Famille == connue ? liberation : QString(); });
    EXPECT_EQ(polices.Manques(),
              (QStringList{u"La police Carlito n'est pas installée : une autre la remplace."_s,
                           u"La police Liberation Mono n'est pas installée : une autre la remplace."_s}));
    EXPECT_EQ(polices.Trouver(kMono).Nom(), u"LiberationSans"_s);
  }
  EXPECT_THROW(TPolices([](const TDemandePolice&) { return QString(); }), Exception);
  EXPECT_THROW(TPolice("pas une police", {}), Exception);
}
