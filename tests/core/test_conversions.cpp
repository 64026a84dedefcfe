#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/numero_national.h"
#include "core/texte_separe.h"

using namespace Qt::StringLiterals;

TEST(Conversions, Amounts) {
  const std::pair<const char*, std::int64_t> cas[] = {{"2,20", 22000},
                                                      {" 2,2 ", 22000},
                                                      {"-0,05", -500},
                                                      {"3", 30000},
                                                      {",5", 5000},
                                                      {"1,23445", 12344},
                                                      {"1,23455", 12346},
                                                      {"1,234450001", 12345},
                                                      {"0,00005", 0},
                                                      {"-1,23455", -12346},
                                                      {"99999999999999", 999999999999990000}};
  for (const auto& [texte, brut] : cas)
    EXPECT_EQ(StrToCurr(QString::fromLatin1(texte)).EnBrut(), brut) << texte;
  for (const char* texte : {"", ",", "2.20", "1 000", "1,2,3", "abc", "12345678901234567890", "--1", "€ 3"})
    EXPECT_THROW(StrToCurr(QString::fromUtf8(texte)), EConvertError) << texte;
  EXPECT_EQ(FormatDeuxDecimales(Currency::Brut(12350)), u"1,24") << "half a cent away from zero";
  EXPECT_EQ(FormatDeuxDecimales(Currency::Brut(-12350)), u"-1,24");
  EXPECT_EQ(FormatDeuxDecimales(Currency::Brut(-49)), u"0,00");
  EXPECT_EQ(FormatQuatreDecimales(Currency::Brut(-5)), u"-0.0005");
  EXPECT_EQ(FormatNombre(Currency::Brut(125000)), u"12,5");
  EXPECT_EQ(Currency::Arrondi(0.00025L).EnBrut(), 2) << "half to even";
  EXPECT_EQ(Currency::Arrondi(0.00035L).EnBrut(), 4);
  EXPECT_EQ(Currency::Brut(-12399).TronqueAuCent().EnBrut(), -12300);
}

TEST(Conversions, NumbersDatesTimes) {
  EXPECT_EQ(StrToInt(u" -12 "_s), -12);
  for (const char* texte : {"", "1x", "1.5", "0x10", "99999999999", "²", "-"})
    EXPECT_THROW(StrToInt(QString::fromUtf8(texte)), EConvertError) << texte;
  EXPECT_EQ(StrToIntDef(u"dix"_s, 7), 7);
  EXPECT_EQ(StrToFloat(u"2,5"_s), 2.5);
  EXPECT_EQ(StrToDate(u"1/9/2016"_s), EncodeDate(2016, 9, 1));
  EXPECT_EQ(StrToDate(u"29/02/16"_s), EncodeDate(2016, 2, 29));
  EXPECT_EQ(EncodeDate(1899, 12, 31), 1.0);
  EXPECT_EQ(EncodeDate(2016, 9, 1), 42614.0);
  for (const char* texte : {"31/06/2016", "2016/09/01", "1-9-2016", "", "01/09", "0/1/2016"})
    EXPECT_THROW(StrToDate(QString::fromUtf8(texte)), EConvertError) << texte;
  EXPECT_EQ(StrToTime(u"7:30"_s), 0.3125);
  for (const char* texte : {"  :  ", "24:00", "7h30", "12:60"})
    EXPECT_THROW(StrToTime(QString::fromUtf8(texte)), EConvertError) << texte;
  EXPECT_EQ(JourLundi1(EncodeDate(2016, 10, 3)), 1);
  EXPECT_EQ(JourLundi1(EncodeDate(2016, 10, 9)), 7);
  EXPECT_EQ(DecodeDate(EncodeDate(2017, 2, 28) + 0.9).Jour, 28);
}

TEST(Conversions, SeparatedText) {
  const auto lire = [](const QByteArray& octets) { return TTexteSepare::Depuis(octets, u"essai"_s); };
  const auto texte = lire(
      "\xEF\xBB\xBF"
      "Nom;\"a;\"\"b\"\"\";=\"12\";\r\n\nx\"y;\"ouvert;z\n\n  \n");
  ASSERT_EQ(texte.NombreLignes(), 3) << "blank rows at the end are left out";
  EXPECT_EQ(texte.Lignes[0], (QStringList{"Nom", "a;\"b\"", "=\"12\"", ""}));
  EXPECT_EQ(texte.Lignes[1], QStringList{""});
  EXPECT_EQ(texte.Lignes[2], (QStringList{"x\"y", "\"ouvert", "z"})) << "an open quote swallows nothing";
  EXPECT_EQ(texte.Cellule(1, 5), u"");
  EXPECT_EQ(lire("Andr\xE9;\x80").Lignes[0], (QStringList{u"André"_s, u"€"_s}));
  EXPECT_EQ(lire(u"André;€"_s.toUtf8()).Lignes[0], (QStringList{u"André"_s, u"€"_s}));
  EXPECT_THROW(lire(QByteArray("a;b\0c", 5)), Exception);
  EXPECT_THROW(TTexteSepare::Lire(u"/"_s), Exception);
  EXPECT_THROW(TTexteSepare::Lire(u"absent.txt"_s), Exception);
}

TEST(Conversions, NumerosNationaux) {
  for (const char16_t* bon : {u"85073003328", u"85.07.30-033.28", u"12051000115", u" 12 05 10 001/15 "})
    EXPECT_TRUE(NumeroNationalValide(QString::fromUtf16(bon))) << QString::fromUtf16(bon).toStdString();
  for (const char16_t* faux :
       {u"", u"85073003329", u"8507300332", u"850730033280", u"1205100011S", u"12051000116"})
    EXPECT_FALSE(NumeroNationalValide(QString::fromUtf16(faux))) << QString::fromUtf16(faux).toStdString();
  EXPECT_EQ(NumeroNationalPresente(u"12051000115"_s), u"12.05.10-001.15");
  EXPECT_EQ(NumeroNationalPresente(u"12"_s), u"12");
}
