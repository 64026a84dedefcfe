#include <gtest/gtest.h>

#include "core/chaines.h"

using namespace Qt::StringLiterals;

namespace {

using Liste = QStringList;

Liste Pieces(void (*couper)(const QString&, QChar, QStringList&), const QString& texte) {
  Liste liste{u"déjà là"_s};
  couper(texte, u';', liste);
  EXPECT_EQ(liste.takeFirst(), u"déjà là"_s);
  return liste.replaceInStrings(u"\r\n"_s, u"(vide)"_s);
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

TEST(Chaines, RetourLigne) { EXPECT_EQ(SansRetourLigne(u"a\r\n\r\nb\nc\rd"_s), u"a  b\nc\rd"_s); }

TEST(Chaines, DecouperPasseLesVidesOuLesCompte) {
  const struct {
    QString Texte;
    Liste Pieces, Strictes;
  } cas[] = {{u";;a;b"_s, {"a", "b"}, {"(vide)", "(vide)", "a", "b"}},
             {u"a;; ;b;;"_s, {"a", " ", "b"}, {"a", "(vide)", " ", "b", "(vide)"}},
             {u"a;b;"_s, {"a", "b"}, {"a", "b"}},
             {{}, {}, {}}};
  for (const auto& [texte, pieces, strictes] : cas) {
    EXPECT_EQ(Pieces(Decouper, texte), pieces);
    EXPECT_EQ(Pieces(DecouperStrict, texte), strictes);
  }
}

TEST(Chaines, NombresEtRecherche) {
  EXPECT_TRUE(EstEntier(u"-12"_s));
  for (const char* faux : {"", "1,5", "12a", "99999999999"})
    EXPECT_FALSE(EstEntier(QString::fromUtf8(faux))) << faux;
  EXPECT_TRUE(EstChiffres(u"0099999999999"_s));
  for (const char* faux : {"", "  ", " 12", "12 ", "-1", "1a", "٣"})
    EXPECT_FALSE(EstChiffres(QString::fromUtf8(faux))) << faux;

  const Liste noms{u"P1"_s, u"p2"_s, u"P2"_s, u"P2"_s};
  EXPECT_EQ(IndexChaine(noms, u"P2"_s), 2);
  EXPECT_EQ(IndexChaine(noms, u"P3"_s), -1);
  const int nombres[] = {5, 7, 7};
  EXPECT_EQ(IndexEntier(nombres, 7), 1);
  EXPECT_EQ(IndexEntier({}, 7), -1);
}
