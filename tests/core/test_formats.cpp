#include "core/comparaisons.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/lecture_dates.h"

using namespace Qt::StringLiterals;

namespace {

const TDateTime kRentree = EncodeDate(2016, 9, 1);

void Egal(const QString& obtenu, const QString& attendu) {
  EXPECT_EQ(obtenu.toStdString(), attendu.toStdString());
}

}  // namespace

TEST(Formats, UneDateEtSonHeure) {
  const TDateTime moment = kRentree + EncodeTime(7, 45, 59);
  Egal(FormatDate(moment), u"01/09/2016"_s);
  Egal(FormatHeure(moment), u"07h45"_s);
  Egal(FormatHeureCourte(moment), u"07:45"_s);
  Egal(FormatDateLongue(moment), u"1 septembre 2016"_s);
  Egal(FormatJourLong(moment), u"jeudi 1 septembre 2016"_s);
  Egal(FormatJour(EncodeDate(2024, 2, 29)), u"jeudi 29 février"_s);
  Egal(FormatDateSql(moment), u"'09/01/2016'"_s);
  Egal(FormatDateCompacte(moment), u"20160901"_s);
  Egal(FormatHeure(kRentree), u"00h00"_s);
}

TEST(Formats, ZeroEstVideOuLeJourZero) {
  for (const QString& vide : {FormatDate(0), FormatHeure(0), FormatHeureCourte(0), IntOuVide(0)})
    EXPECT_TRUE(vide.isEmpty());
  Egal(FormatDateLongue(0), u"30 décembre 1899"_s);
  Egal(FormatJourLong(0), u"samedi 30 décembre 1899"_s);
  Egal(FormatJour(0), u"samedi 30 décembre"_s);
  Egal(FormatDateSql(0), u"'12/30/1899'"_s);
  Egal(FormatDateCompacte(0), u"18991230"_s);
  Egal(IntOuVide(-7), u"-7"_s);
}

TEST(Formats, MontantsAuCentime) {
  const std::pair<std::int64_t, const char16_t*> cas[] = {
      {125000, u"12,50 €"}, {0, u"0,00 €"},       {50, u"0,01 €"},
      {49, u"0,00 €"},      {-50, u"-0,01 €"},    {-49, u"0,00 €"},
      {20250, u"2,03 €"},   {-20250, u"-2,03 €"}, {9999950, u"1.000,00 €"}};
  for (const auto& [brut, texte] : cas)
    Egal(FormatMontant(Currency::Brut(brut)),
         QString::fromUtf16(texte).replace(u'.', LocaleEcole().groupSeparator()));
}

TEST(LectureDates, FormesCompactes) {
  EXPECT_EQ(LireDateCompacte(u"20160901"_s), kRentree);
  EXPECT_EQ(LireDateCompacte(u"20160901;x"_s), kRentree);
  EXPECT_EQ(LireHeureCompacte(u"074559"_s), EncodeTime(7, 45));
  for (const char* faux : {"", "2016", "2016091", "201609 1", "20161301", "20150229", "2016-9-1", "abcdefgh"})
    EXPECT_THROW(LireDateCompacte(QString::fromUtf8(faux)), EConvertError) << faux;
  for (const char* faux : {"", "074", "2400", "0760", "7:45", "-145"})
    EXPECT_THROW(LireHeureCompacte(QString::fromUtf8(faux)), EConvertError) << faux;
}

TEST(LectureDates, TroisChampsOuZero) {
  EXPECT_EQ(LireDateBarre(u"01/09/2016"_s), kRentree);
  EXPECT_EQ(LireDateBarre(u" 1 / 9 / 2016 "_s), kRentree);
  EXPECT_EQ(LireDateTiret(u"1-09-2016"_s), kRentree);
  for (const char* faux :
       {"", "01/09", "01/09/2016/1", "01-09-2016", "31/02/2016", "x/09/2016", "01/09/16", "29/12/1899"})
    EXPECT_EQ(LireDateBarre(QString::fromUtf8(faux)), 0.0) << faux;
  EXPECT_EQ(LireDateTiret(u"01/09/2016"_s), 0.0);
}

TEST(Comparaisons, ChaqueMotCherche) {
  const QString nom = u"D'Hondt Élise Anne-Marie"_s;
  for (const char* trouve : {"", "  ", "elise", "MARIE d'h", " lis  hond ", "é"})
    EXPECT_TRUE(ContientMots(nom, QString::fromUtf8(trouve))) << trouve;
  for (const char* faux : {"elisa", "elise luc", "élisemarie"})
    EXPECT_FALSE(ContientMots(nom, QString::fromUtf8(faux))) << faux;
}

TEST(Comparaisons, OrdreDeLaLangue) {
  const char16_t* const noms[] = {u"de Smet", u"Dubois", u"Élan", u"Elsen", u"Étienne", u"Zoé"};
  for (size_t i = 1; i < std::size(noms); ++i)
    EXPECT_LT(ComparerTextes(QString::fromUtf16(noms[i - 1]), QString::fromUtf16(noms[i])), 0) << i;

  struct TPersonne {
    QString Nom, Prenom;
    QString NomComplet() const { return Nom % u' ' % Prenom; }
  };
  const TPersonne anne{u"Côté"_s, u"Anne"_s};
  const TPersonne luc{u"Cote"_s, u"Luc"_s};
  EXPECT_LT(ComparerNoms(anne, luc), 0);
  EXPECT_GT(ComparerNoms(luc, anne), 0);
  EXPECT_EQ(ComparerNoms(luc, luc), 0);
}
