#include "core/exceptions.h"
#include "payments/extraits.h"
#include "support/ecole_essai.h"

namespace {

std::unique_ptr<TExtrait> Extrait(const QString& donneur = u"Zoé Dupont"_s, const char* date = "2016-10-05") {
  auto extrait = std::make_unique<TExtrait>();
  extrait->DonneurOrdre = donneur;
  extrait->DateVirement = J(date);
  extrait->Montant = Currency::Brut(-125001);
  extrait->Communication = u"merci "_s;
  extrait->NumCptDonneur = u"be68"_s;
  return extrait;
}

}  // namespace

TEST(Extraits, TheirRows) {
  TBaseEssai base;
  TExtraits extraits(*base, 2016);
  TExtrait& premier = extraits.Add(Extrait());
  TExtrait& cache = extraits.Add(Extrait(u"X"_s, "2017-01-02"));
  cache.FlgIgnore = true;
  cache.TypeResponsable = 2;
  extraits.Save();
  EXPECT_EQ(base.Rangees(u"SELECT * FROM EXTRAITS"_s),
            (QStringList{u"1;Zoé Dupont;2016-10-05;-12.5001;merci ;be68;-;2016;0"_s,
                         u"2;X;2017-01-02;-12.5001;merci ;be68;1;2016;2"_s}));
  cache.FlgIgnore = false;
  extraits.Add(cache);
  extraits.Save();
  EXPECT_EQ(base.Valeur(u"SELECT COUNT(*) FROM EXTRAITS WHERE FLG_IGNORE IS NULL"_s), u"2");
  base.Sql(u"UPDATE EXTRAITS SET FLG_IGNORE = 2, TYPE_RESPONSABLE = NULL"_s);

  const TExtraits lus(*base, 2016);
  ASSERT_EQ(lus.Count(), 2);
  EXPECT_FALSE(lus[1].FlgIgnore);
  EXPECT_EQ(lus[1].TypeResponsable, 0);
  EXPECT_EQ(lus.TrouverParId(2), &lus[1]);
  EXPECT_EQ(lus.TrouverParId(3), nullptr);
  EXPECT_NE(lus.Identique(premier), nullptr);
  EXPECT_EQ(lus.BornesDates(), (TPeriode{J("2016-10-05"), J("2017-01-02")}));
  EXPECT_EQ(TExtraits(*base, 2017).BornesDates(), TPeriode());
}

TEST(Extraits, TheSameMovement) {
  TBaseEssai base;
  TExtraits extraits(*base, 2016);
  TExtrait& premier = extraits.Add(Extrait());
  extraits.Add(Extrait());
  const auto trouve = [&](auto changer) {
    auto autre = Extrait();
    changer(*autre);
    return extraits.Identique(*autre);
  };
  EXPECT_EQ(trouve([](TExtrait& e) {
              e.DonneurOrdre = u"ZOé dupont"_s, e.Communication = u"MERCI "_s, e.NumCptDonneur = u"BE68"_s;
            }),
            &premier);
  EXPECT_EQ(trouve([](TExtrait& e) { e.DonneurOrdre = u"ZOÉ DUPONT"_s; }), nullptr);
  EXPECT_EQ(trouve([](TExtrait& e) { e.Communication = u"merci"_s; }), nullptr);
  EXPECT_EQ(trouve([](TExtrait& e) { e.NumCptDonneur += u'1'; }), nullptr);
  EXPECT_EQ(trouve([](TExtrait& e) { e.Montant += Currency::Brut(1); }), nullptr);
  EXPECT_EQ(trouve([](TExtrait& e) { e.DateVirement += 1; }), nullptr);
  premier.Communication = u"autre"_s;
  extraits.Add(premier);
  EXPECT_EQ(trouve([](TExtrait&) {}), &extraits[1]) << "the next one";
}
