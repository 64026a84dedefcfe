#include "core/chaines.h"

using namespace Qt::StringLiterals;

namespace {

using Liste = QStringList;

Liste Pieces(void (*couper)(const QString&, QChar, QStringList&), const QString& texte) {
  Liste liste{"déjà là"};
  couper(texte, u';', liste);
  EXPECT_EQ(liste.takeFirst(), "déjà là");
  return liste.replaceInStrings("\r\n", "(vide)");
}

}  // namespace

TEST(Chaines, Remplacer) {
  const std::tuple<const char*, const char*, const char*, const char*> cas[] = {
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
    EXPECT_EQ(Remplacer(texte, ancien, nouveau).toStdString(), attendu) << texte;
}

TEST(Chaines, RetourLigne) { EXPECT_EQ(SansRetourLigne("a\r\n\r\nb\nc\rd"), "a  b\nc\rd"); }

TEST(Chaines, DecouperPasseLesVidesOuLesCompte) {
  const std::tuple<QString, Liste, Liste> cas[] = {
      {";;a;b", {"a", "b"}, {"(vide)", "(vide)", "a", "b"}},
      {"a;; ;b;;", {"a", " ", "b"}, {"a", "(vide)", " ", "b", "(vide)"}},
      {"a;b;", {"a", "b"}, {"a", "b"}},
      {{}, {}, {}}};
  for (const auto& [texte, pieces, strictes] : cas) {
    EXPECT_EQ(Pieces(Decouper, texte), pieces);
    EXPECT_EQ(Pieces(DecouperStrict, texte), strictes);
  }
}

TEST(Chaines, NombresEtRecherche) {
  EXPECT_TRUE(EstEntier("-12"));
  for (const char* faux : {"", "1,5", "12a", "99999999999"}) EXPECT_FALSE(EstEntier(faux)) << faux;
  EXPECT_TRUE(EstChiffres("0099999999999"));
  for (const char* faux : {"", "  ", " 12", "12 ", "-1", "1a", "٣"}) EXPECT_FALSE(EstChiffres(faux)) << faux;

  const Liste noms{"P1", "p2", "P2", "P2"};
  EXPECT_EQ(IndexChaine(noms, "P2"), 2);
  EXPECT_EQ(IndexChaine(noms, "P3"), -1);
  const int nombres[] = {5, 7, 7};
  EXPECT_EQ(IndexEntier(nombres, 7), 1);
  EXPECT_EQ(IndexEntier({}, 7), -1);
}
