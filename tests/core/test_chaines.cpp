#include <gtest/gtest.h>

#include "core/chaines.h"

namespace {

using Liste = QStringList;

Liste Pieces(void (*couper)(const QString&, QChar, QStringList&), const QString& texte) {
  Liste liste{QStringLiteral("déjà là")};
  couper(texte, u';', liste);
  EXPECT_EQ(liste.takeFirst(), QStringLiteral("déjà là"));
  return liste;
}

}  // namespace

TEST(Chaines, Remplacer) {
  const struct {
    const char *Texte, *Ancien, *Nouveau, *Attendu;
  } cas[] = {
      {"a-b-c", "-", "", "abc"},
      // What a replacement makes is replaced too.
      {"a    b", "  ", " ", "a b"},
      {"aaabbb", "ab", "", ""},
      {"xaabby", "aabb", "ab", "xaby"},
      {"aab", "ab", "bba", "bbbbaa"},
      // The new text holds the old one; then one that feeds itself without holding it.
      {"a.a", "a", "aa", "aa.aa"},
      {"aab", "ab", "bbaa", "abbaa"},
      {"abc", "", "x", "abc"},
      {"abc", "C", "x", "abc"},
  };
  for (const auto& [texte, ancien, nouveau, attendu] : cas)
    EXPECT_EQ(Remplacer(QString::fromUtf8(texte), QString::fromUtf8(ancien), QString::fromUtf8(nouveau))
                  .toStdString(),
              attendu)
        << texte;
}

TEST(Chaines, RetourLigne) {
  EXPECT_EQ(SansRetourLigne(QStringLiteral("a\r\n\r\nb\nc\rd")), QStringLiteral("a  b\nc\rd"));
}

TEST(Chaines, DecouperPasseLesVides) {
  EXPECT_EQ(Pieces(Decouper, QStringLiteral(";;a;b")), (Liste{QStringLiteral("a"), QStringLiteral("b")}));
  EXPECT_EQ(Pieces(Decouper, QStringLiteral("a;; ;b;;")),
            (Liste{QStringLiteral("a"), QStringLiteral(" "), QStringLiteral("b")}));
  EXPECT_EQ(Pieces(Decouper, QString()), Liste());
}

TEST(Chaines, DecouperStrictCompteLesVides) {
  const QString a = QStringLiteral("a"), b = QStringLiteral("b"), vide = QStringLiteral("\r\n");
  EXPECT_EQ(Pieces(DecouperStrict, QStringLiteral("a;;b")), (Liste{a, vide, b}));
  EXPECT_EQ(Pieces(DecouperStrict, QStringLiteral(";a;b")), (Liste{vide, a, b}));
  EXPECT_EQ(Pieces(DecouperStrict, QStringLiteral("a;b;")), (Liste{a, b}));
  EXPECT_EQ(Pieces(DecouperStrict, QStringLiteral("a;;")), (Liste{a, vide}));
  EXPECT_EQ(Pieces(DecouperStrict, QString()), Liste());
}

TEST(Chaines, NombresEtRecherche) {
  EXPECT_TRUE(EstEntier(QStringLiteral("-12")));
  for (const char* faux : {"", "1,5", "12a", "99999999999"})
    EXPECT_FALSE(EstEntier(QString::fromUtf8(faux))) << faux;
  EXPECT_TRUE(EstChiffres(QStringLiteral("0099999999999")));
  for (const char* faux : {"", "  ", " 12", "12 ", "-1", "1a", "٣"})
    EXPECT_FALSE(EstChiffres(QString::fromUtf8(faux))) << faux;

  const Liste noms{QStringLiteral("P1"), QStringLiteral("p2"), QStringLiteral("P2"), QStringLiteral("P2")};
  EXPECT_EQ(IndexChaine(noms, QStringLiteral("P2")), 2);
  EXPECT_EQ(IndexChaine(noms, QStringLiteral("P3")), -1);
  const int nombres[] = {5, 7, 7};
  EXPECT_EQ(IndexEntier(nombres, 7), 1);
  EXPECT_EQ(IndexEntier({}, 7), -1);
}
