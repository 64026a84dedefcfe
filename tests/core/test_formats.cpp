#include <gtest/gtest.h>

#include "core/comparaisons.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/lecture_dates.h"

namespace {

const TDateTime kRentree = EncodeDate(2016, 9, 1);

void Egal(const QString& obtenu, const QString& attendu) {
  EXPECT_EQ(obtenu.toStdString(), attendu.toStdString());
}

}  // namespace

TEST(Formats, UneDateEtSonHeure) {
  const TDateTime moment = kRentree + EncodeTime(7, 45, 59);
  Egal(FormatDate(moment), QStringLiteral("01/09/2016"));
  Egal(FormatHeure(moment), QStringLiteral("07h45"));
  Egal(FormatHeureCourte(moment), QStringLiteral("07:45"));
  Egal(FormatDateLongue(moment), QStringLiteral("1 septembre 2016"));
  Egal(FormatJourLong(moment), QStringLiteral("jeudi 1 septembre 2016"));
  Egal(FormatJour(EncodeDate(2024, 2, 29)), QStringLiteral("jeudi 29 février"));
  Egal(FormatDateSql(moment), QStringLiteral("'09/01/2016'"));
  Egal(FormatDateCompacte(moment), QStringLiteral("20160901"));
  Egal(FormatHeure(kRentree), QStringLiteral("00h00"));
}

TEST(Formats, ZeroEstVideOuLeJourZero) {
  for (const QString& vide : {FormatDate(0), FormatHeure(0), FormatHeureCourte(0), IntOuVide(0)})
    EXPECT_TRUE(vide.isEmpty());
  Egal(FormatDateLongue(0), QStringLiteral("30 décembre 1899"));
  Egal(FormatJourLong(0), QStringLiteral("samedi 30 décembre 1899"));
  Egal(FormatJour(0), QStringLiteral("samedi 30 décembre"));
  Egal(FormatDateSql(0), QStringLiteral("'12/30/1899'"));
  Egal(FormatDateCompacte(0), QStringLiteral("18991230"));
  Egal(IntOuVide(-7), QStringLiteral("-7"));
}

TEST(Formats, MontantsAuCentime) {
  const struct {
    std::int64_t Brut;
    const char16_t* Texte;
  } cas[] = {{125000, u"12,50 €"}, {0, u"0,00 €"},       {50, u"0,01 €"},
             {49, u"0,00 €"},      {-50, u"-0,01 €"},    {-49, u"0,00 €"},
             {20250, u"2,03 €"},   {-20250, u"-2,03 €"}, {9999950, u"1.000,00 €"}};
  for (const auto& [brut, texte] : cas)
    Egal(FormatMontant(Currency::Brut(brut)),
         QString::fromUtf16(texte).replace(u'.', LocaleEcole().groupSeparator()));
}

TEST(LectureDates, FormesCompactes) {
  EXPECT_EQ(LireDateCompacte(QStringLiteral("20160901")), kRentree);
  EXPECT_EQ(LireDateCompacte(QStringLiteral("20160901;x")), kRentree);
  EXPECT_EQ(LireHeureCompacte(QStringLiteral("074559")), EncodeTime(7, 45));
  for (const char* faux : {"", "2016", "2016091", "201609 1", "20161301", "20150229", "2016-9-1", "abcdefgh"})
    EXPECT_THROW(LireDateCompacte(QString::fromUtf8(faux)), EConvertError) << faux;
  for (const char* faux : {"", "074", "2400", "0760", "7:45", "-145"})
    EXPECT_THROW(LireHeureCompacte(QString::fromUtf8(faux)), EConvertError) << faux;
}

TEST(LectureDates, TroisChampsOuZero) {
  EXPECT_EQ(LireDateBarre(QStringLiteral("01/09/2016")), kRentree);
  EXPECT_EQ(LireDateBarre(QStringLiteral(" 1 / 9 / 2016 ")), kRentree);
  EXPECT_EQ(LireDateTiret(QStringLiteral("1-09-2016")), kRentree);
  for (const char* faux :
       {"", "01/09", "01/09/2016/1", "01-09-2016", "31/02/2016", "x/09/2016", "01/09/16", "29/12/1899"})
    EXPECT_EQ(LireDateBarre(QString::fromUtf8(faux)), 0.0) << faux;
  EXPECT_EQ(LireDateTiret(QStringLiteral("01/09/2016")), 0.0);
}

TEST(Comparaisons, OrdreDeLaLangue) {
  const char16_t* const noms[] = {u"de Smet", u"Dubois", u"Élan", u"Elsen", u"Étienne", u"Zoé"};
  for (size_t i = 1; i < std::size(noms); ++i)
    EXPECT_LT(ComparerTextes(QString::fromUtf16(noms[i - 1]), QString::fromUtf16(noms[i])), 0) << i;

  struct TPersonne {
    QString Nom, Prenom;
    QString NomComplet() const { return Nom % u' ' % Prenom; }
  };
  const TPersonne anne{QStringLiteral("Côté"), QStringLiteral("Anne")};
  const TPersonne luc{QStringLiteral("Cote"), QStringLiteral("Luc")};
  EXPECT_LT(ComparerNoms(anne, luc), 0);
  EXPECT_GT(ComparerNoms(luc, anne), 0);
  EXPECT_EQ(ComparerNoms(luc, luc), 0);
}
