#include "page_essai.h"
#include "report/output/pdf.h"
#include "report/output/peintre.h"

namespace {

QRectF Etendue(const TElementBarres& barres) {
  QRectF etendue;
  for (const QRectF& barre : barres.Barres) etendue |= barre;
  return etendue;
}

/// Runs of one colour across a row of dots, without the white around; empty when a dot is grey.
std::vector<int> SuitesDePoints(const QImage& image, int y) {
  std::vector<int> suites;
  int avant = 255;
  for (int x = 0; x < image.width(); ++x) {
    const int gris = qGray(image.pixel(x, y));
    if (gris != 0 && gris != 255) return {};
    if (suites.empty() && gris == 255) continue;
    if (gris != avant) suites.push_back(0);
    ++suites.back();
    avant = gris;
  }
  if (!suites.empty()) suites.pop_back();
  return suites;
}

}  // namespace

TEST(CodesBarres, SerresQuandLaPlaceManqueEtAlignes) {
  const std::tuple<qreal, float, int> cas[] = {
      {300, 1.28F, 4}, {300, 0.96F, 3}, {223.9, 1.28F, 3}, {300, 0.1F, 3}};
  for (const auto& [place, module, points] : cas)
    for (const auto& [alignement, part] : {std::pair(TAlignementTexte::Gauche, 0.0),
                                           {TAlignementTexte::Centre, 0.5},
                                           {TAlignementTexte::Droite, 1.0}}) {
      const QRectF ou(10, 20, place, 45);
      const QRectF etendue =
          Etendue(DessinerCode(TTypeCode::Code39, u"5537-01234"_s, ou, module, alignement).Barres);
      EXPECT_NEAR(etendue.width(), 175 * points * kPoint300, 1e-9) << place << ' ' << module;
      EXPECT_NEAR(etendue.left(), 10 + part * (place - etendue.width()), 1e-9);
    }
}

TEST(CodesBarres, Defauts) {
  const auto code39 = TTypeCode::Code39, codabar = TTypeCode::Codabar;
  const QRectF place(0, 0, 167, 45);
  const QString refus = u"Le caractère « %1 » de « %2 » ne peut pas figurer dans un code à barres %3."_s;
  const QString rien = u"Il n'y a rien à mettre dans le code à barres."_s;
  for (const auto& [type, texte, defaut] :
       {std::tuple(code39, u"ab"_s, refus.arg(u"a", u"ab", u"Code 39")),
        {code39, u"1*2"_s, refus.arg(u"*", u"1*2", u"Code 39")},
        {codabar, u"1É"_s, refus.arg(u"É", u"1É", u"Codabar")},
        {codabar, u"A1A"_s, refus.arg(u"A", u"A1A", u"Codabar")},
        {code39, u""_s, rien},
        {codabar, u"--"_s, rien},
        {code39, u"5537-01234"_s, u"Le code à barres de « 5537-01234 » ne tient pas dans sa place."_s}}) {
    const TCodeDessine code = DessinerCode(type, texte, place, 0.96F, TAlignementTexte::Gauche);
    EXPECT_EQ(code.Defaut, defaut);
    EXPECT_TRUE(code.Barres.Barres.empty());
  }
  EXPECT_TRUE(DessinerCode(code39, QString(500, u'1'), place, 1, TAlignementTexte::Gauche)
                  .Defaut.contains(u"trop long"_s));
  EXPECT_EQ(DessinerQr(u""_s, place).Defaut, u"Il n'y a rien à mettre dans le code QR."_s);
  EXPECT_EQ(DessinerQr(u"BCD"_s, QRectF(0, 0, 15, 96)).Defaut, u"Le code QR ne tient pas dans sa place."_s);
  EXPECT_EQ(DessinerQr(QString(5000, u'x'), place).Defaut, u"Le texte est trop long pour un code QR."_s);
}

// What a scanner reads of them: in the tests of the papers.
TEST(CodesBarres, LeursBarresSontFaitesDePointsEntiers) {
  TDocumentPrepare document;
  TPagePreparee& page = document.Pages.emplace_back();
  // Places that are no whole dots, as margins and columns make them; a scanner gives no dash.
  float y = 38;
  for (const float module : {0.96F, 1.28F})
    for (const auto type : {TTypeCode::Code39, TTypeCode::Codabar}) {
      const QString texte =
          QString::number(qRound(module * 100)) % (type == TTypeCode::Code39 ? u"-39" : u"-18");
      page.Elements.emplace_back(DessinerCode(type, texte, QRectF(38.13, static_cast<qreal>(y), 718, 45),
                                              module, TAlignementTexte::Centre)
                                     .Barres);
      y += 77.7F;
    }

  const QTemporaryDir dossier;
  const QString image = dossier.filePath(u"a.png"_s);
  ASSERT_TRUE(Rasteriser(page, 300).save(image));
  EcrirePdf({&document}, u"Codes"_s, {}, dossier.filePath(u"a.pdf"_s));
  Sortie(u"pdftoppm"_s, {u"-r"_s, u"300"_s, u"-gray"_s, u"-aaVector"_s, u"no"_s, dossier.filePath(u"a.pdf"_s),
                         dossier.filePath(u"b"_s)});
  for (const QString& lu : {image, dossier.filePath(u"b-1.pgm"_s)}) {
    const QImage points(lu);
    for (const int module : {3, 4}) {
      const std::vector<int> suites = SuitesDePoints(points, module == 3 ? 200 : 680);
      EXPECT_GT(suites.size(), 40U) << qPrintable(lu);
      for (const int suite : suites) EXPECT_TRUE(suite == module || suite == 3 * module) << suite;
    }
  }
}
