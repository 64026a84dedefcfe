#include <gtest/gtest.h>

#include <QRegularExpression>
#include <cstring>

#include "core/exceptions.h"
#include "payments/communication_structuree.h"
#include "payments/releve_bancaire.h"
#include "support/affichage.h"
#include "support/fichier_coda.h"

using namespace Qt::StringLiterals;
using namespace FichierCoda;

namespace {

QString EnTexte(const TReleveBancaire& releve) {
  QStringList lus;
  for (const TMouvement& m : releve.Mouvements)
    lus += QStringList{DateVersQt(m.Date).toString(u"ddMM"_s), FormatNombre(m.Montant), m.Compte, m.Donneur,
                       CommunicationNormalisee(m.Communication)}
               .join(u'|');
  return (lus + releve.Preuves).join(u'\n');
}

/// What the bytes give, or "! reason".
QString Lire(const QByteArray& octets) {
  try {
    const auto releve = LireReleveBancaire(octets);
    return releve ? EnTexte(*releve) : u"?"_s;
  } catch (const Exception& e) {
    return u"! "_s + e.Message;
  }
}

QString Suite(const QString& article, const QString& texte) {
  return Enregistrement({{1, u"22"_s + article}, {11, texte}});
}
QString Information(const QString& genre, const QString& texte, bool structuree = false) {
  if (genre == u"31")
    return Enregistrement({{1, u"3100019999"_s}, {40, structuree ? u"1"_s : u"0"_s}, {41, texte}});
  return Enregistrement({{1, genre + u"00019999"}, {11, texte}});
}

const QString kUn = u"00010000"_s;

}  // namespace

TEST(Coda, WhatAMovementSays) {
  const QString cinquante(51, u'é');
  const QString codes = u"0"_s.repeated(45);
  const struct {
    QStringList milieu;
    QString lu;
  } cas[] = {
      {{Mouvement(kUn, 1250, u"merci  beaucoup"_s)}, u"0510|12,5|||merci beaucoup"_s},
      {{Mouvement(kUn, 1250, {}, u'0', false, u"000000"_s)}, u"0610|12,5|||"_s},
      {{Mouvement(kUn, 1250, cinquante % u" a"), Suite(kUn, u"b***"_s),
        Donneur(kUn, u"BE68539007547034EUR"_s, u"ZOÉ"_s, u"fin"_s)},
       u"0510|12,5|BE68539007547034|ZOÉ|%1 ab+++ fin"_s.arg(cinquante)},
      {{Mouvement(kUn, 1250, u"101001231016185"_s, u'0', true), Information(u"31"_s, u"texte"_s)},
       u"0510|12,5|||+++001/2310/16185+++"_s},
      {{Mouvement(kUn, 1250, u"101"_s, u'0', true), Information(u"31"_s, u"libre"_s)},
       u"0510|12,5|||libre"_s},
      {{Mouvement(kUn, 1250, u"101 école"_s, u'0', true), Information(u"31"_s, u"libre"_s)},
       u"0510|12,5|||école libre"_s},
      {{Mouvement(kUn, 1250, u"x"_s), Donneur(kUn, u"BE68 5390 0754 7034 EUR"_s, u"A"_s)},
       u"0510|12,5|BE68539007547034|A|x"_s},
      {{Mouvement(kUn, 1250, u"x"_s), Donneur(kUn, u"DE89 3704 0044 0532 0130 00EUR"_s, u"A"_s)},
       u"0510|12,5|DE89370400440532013000|A|x"_s},
      {{Mouvement(kUn, 1250, u"x"_s), Donneur(kUn, u"NL0584894293994456 EUR"_s, u"A"_s)},
       u"0510|12,5|NL0584894293994456|A|x"_s},  // digits are no currency, whatever they leave
      {{Mouvement(kUn, 1250, u"102001231016185"_s, u'0', true)}, u"0510|12,5|||+++001/2310/16185+++"_s},
      {{Mouvement(kUn, 1250, u"105"_s % codes % u"00123", u'0', true), Suite(kUn, u"1016185"_s)},
       u"0510|12,5|||+++001/2310/16185+++"_s},
      {{Mouvement(kUn, 1250, u"105"_s % codes % u"00000", u'0', true), Suite(kUn, u"0000000"_s),
        Information(u"31"_s, u"libre"_s)},
       u"0510|12,5|||libre"_s},
      {{Mouvement(kUn, 1250, u"127"_s, u'0', true), Suite(kUn, u"x"_s.repeated(29) % u"cotisation")},
       u"0510|12,5|||cotisation"_s},
      {{Mouvement(kUn, 1250, u"113autre"_s, u'0', true)}, u"0510|12,5|||autre"_s},
      {{Mouvement(kUn, 1250, u"x"_s), Donneur(kUn, u"BE68539007547034EUR"_s, u"VAN DEN"_s),
        Information(u"31"_s, u"001VAN DEN BERGHE"_s, true), Information(u"32"_s, u"rue"_s),
        Information(u"31"_s, u"un"_s), Information(u"32"_s, u"deux"_s), Information(u"33"_s, u"trois"_s)},
       u"0510|12,5|BE68539007547034|VAN DEN BERGHE|x un deux trois"_s},
      {{Mouvement(kUn, 1250, u"x"_s), Donneur(kUn, u"123456789012 EUR"_s, u"DUPONT"_s),
        Information(u"31"_s, u"001DURAND"_s, true)},
       u"0510|12,5|123456789012|DUPONT|x"_s},
  };
  for (const auto& [milieu, lu] : cas) EXPECT_EQ(Lire(Coda(milieu, 1250)), lu);
  QByteArray ansi = Coda({Mouvement(kUn, 1250, u"  é"_s)}, 1250).replace("é", "\xE9");
  EXPECT_EQ(Lire(ansi), u"0510|12,5|||é") << "decoded before characters are counted";
}

TEST(Coda, GroupsCountOnce) {
  const auto groupe = [](QChar type, int un, int deux, QChar typeDeux = u'6') {
    return Lire(
        Coda({Mouvement(kUn, 300, u"total"_s, type), Mouvement(u"00010001"_s, un, u"a"_s, u'6'),
              Mouvement(u"00010002"_s, deux, u"b"_s, typeDeux), Mouvement(u"00020000"_s, 100, u"c"_s)},
             400));
  };
  const QString total = u"0510|3|||total\n0510|1|||c"_s;
  for (const QChar type : {u'1', u'2'}) {
    EXPECT_EQ(groupe(type, 100, 200), u"0510|1|||a\n0510|2|||b\n0510|1|||c");
    EXPECT_EQ(groupe(type, 400, -100), u"0510|4|||a\n0510|-1|||b\n0510|1|||c");
    EXPECT_EQ(groupe(type, 100, 201), total);
    EXPECT_EQ(groupe(type, 300, 7, u'9'), u"0510|3|||a\n0510|1|||c");
  }
  EXPECT_EQ(groupe(u'3', 100, 200), total);
  EXPECT_EQ(Lire(Coda({Mouvement(u"00010001"_s, 100, u"a"_s, u'6')}, 100)),
            u"! Ligne 3 : le détail d'un mouvement vient sans son total.");
}

TEST(Coda, ProofsAndRefusals) {
  const QStringList deux{Mouvement(kUn, 300, u"a"_s), Mouvement(u"00020000"_s, -100, u"b"_s)};
  const QByteArray juste = Coda(deux, 200, 100);
  const QString lus = u"0510|3|||a\n0510|-1|||b"_s;
  EXPECT_EQ(Lire(juste), lus);
  EXPECT_EQ(LireReleveBancaire(juste)->Entetes.at(0).Numero, u"007");
  EXPECT_EQ(LireReleveBancaire(juste)->Entetes.at(0).Compte, u"BE33123456789012");
  EXPECT_EQ(Lire(juste + "\r\n" + juste), QString(lus % u'\n' % lus)) << "two files in one";
  const qsizetype neuf = juste.lastIndexOf("\r\n9");
  const auto change = [&](qsizetype place, const char* texte) {
    return QByteArray(juste).replace(place, qsizetype(strlen(texte)), texte);
  };
  for (const auto& [octets, preuve] :
       {std::pair(Coda(deux, 200, 100, 1),
                  u"l'ancien solde et les mouvements font 102,00, et le nouveau solde est 102,01"_s),
        {juste.left(neuf), u"L'enregistrement 9 manque"_s},
        {change(neuf + 2 + 21, "9"), u"Nombre d'enregistrements : 4, et l'enregistrement 9 annonce 9."_s},
        {change(neuf + 2 + 34, "9"), u"Somme des débits : 1,00 €, et l'enregistrement 9 annonce 1,90 €."_s},
        {change(neuf + 2 + 37, "x"), u"Somme des crédits : 3,00 €, et l'enregistrement 9 annonce « x0"_s}}) {
    const QString lu = Lire(octets);
    EXPECT_TRUE(lu.startsWith(lus + u'\n') && lu.contains(preuve)) << lu.toStdString();
    EXPECT_EQ(lu.count(u'\n'), 2);
  }
  for (const auto& [octets, raison] : {std::pair(QByteArray(juste).replace(127, 1, "1"), u"version 2"_s),
                                       {QByteArray(juste).replace("EUR", "USD"), u"« USD »"_s},
                                       {change(130 + 130 + 34, "x"), u"n'est pas un nombre"_s},
                                       {change(130 + 130 + 47, "310216"), u"n'est pas une date"_s},
                                       {change(130 + 130, "5"), u"n'est pas un enregistrement CODA"_s},
                                       {change(130, "4"), u"sans ancien solde"_s}})
    EXPECT_TRUE(Lire(octets).startsWith(u'!') && Lire(octets).contains(raison)) << Lire(octets).toStdString();
  EXPECT_EQ(Lire(QByteArray(juste).append('\0')), u"! Ce fichier n'est pas un fichier de texte.");
  EXPECT_EQ(Lire("Date;Montant"), u"?");
}

namespace {

QByteArray Camt(const QString& ecritures, const QString& soldes = {}, const char* version = "02") {
  const QString document =
      u"<?xml version='1.0'?><n:Document "
      u"xmlns:n='urn:iso:std:iso:20022:tech:xsd:camt.053.001.%1'><BkToCstmrStmt>"
      "<GrpHdr/><Stmt><Id>S</Id><LglSeqNb>7</LglSeqNb><Acct><Id><IBAN>BE33</IBAN></Id></Acct>%2</Stmt>"
      "</BkToCstmrStmt></n:Document>"_s.arg(QString::fromLatin1(version), QString(soldes + ecritures));
  return QString(document).replace(QRegularExpression(u"<(/?)(?=[A-Z])"_s), u"<\\1n:"_s).toUtf8();
}

QString Ecriture(const QString& montant, const QString& sens, const QString& reste,
                 const QString& etat = u"<Sts>BOOK</Sts>"_s) {
  return u"<Ntry><Amt Ccy='EUR'>%1</Amt><CdtDbtInd>%2</CdtDbtInd>%3<BookgDt><Dt>2016-10-06</Dt></BookgDt>"
         "<ValDt><DtTm>2016-10-05T23:59:00-05:00</DtTm></ValDt>%4</Ntry>"_s.arg(montant, sens, etat, reste);
}

QString Detail(const QString& reste) { return u"<TxDtls>%1</TxDtls>"_s.arg(reste); }
QString Details(const QString& details) { return u"<NtryDtls>%1</NtryDtls>"_s.arg(details); }
QString Remise(const QString& reste) { return Details(Detail(u"<RmtInf>%1</RmtInf>"_s.arg(reste))); }

const QString kParties =
    u"<RltdPties><Dbtr><Nm>A</Nm></Dbtr><DbtrAcct><Id><IBAN>BE1</IBAN></Id></DbtrAcct>"
    "<Cdtr><Pty><Nm>B</Nm></Pty></Cdtr><CdtrAcct><Id><Othr><Id>77</Id></Othr></Id></CdtrAcct></RltdPties>"_s;

}  // namespace

TEST(Camt, WhatAnEntrySays) {
  const QString reference =
      u"<Strd><CdtrRefInf><Tp><Issr>%1</Issr></Tp><Ref>%2</Ref></CdtrRefInf></Strd><Ustrd>libre</Ustrd>"_s;
  const QString notre = QString(kParties).replace(u"BE1"_s, u"BE33"_s);
  const struct {
    QString ecriture, lu;
  } cas[] = {
      {Ecriture(u"12.50"_s, u"CRDT"_s, u"<AddtlNtryInf>info</AddtlNtryInf>"_s), u"0510|12,5|||info"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, {}, u"<Sts><Cd>BOOK</Cd></Sts>"_s), u"0510|1|||"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, {}, {}), u"0510|1|||"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, {}, u"<Sts>PDNG</Sts>"_s), {}},
      {Ecriture(u"1"_s, u"CRDT"_s, Details(Detail(kParties))), u"0510|1|BE1|A|"_s},
      {Ecriture(u"1"_s, u"DBIT"_s, Details(Detail(kParties))), u"0510|-1|77|B|"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + kParties))),
       u"0510|1|BE1|A|"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, {}).replace(u"DtTm>2016-10-05T23:59:00-05:00</DtTm"_s, u"Dt></Dt"_s),
       u"0610|1|||"_s},
      {Ecriture(u"1"_s, u"DBIT"_s, u"<RvslInd>true</RvslInd>"_s + Details(Detail(kParties))),
       u"0510|-1|BE1|A|"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Details(Detail(notre))), u"0510|1|77|B|"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Remise(u"<Ustrd>a</Ustrd><Ustrd>***b</Ustrd>"_s)), u"0510|1|||a +++b"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Remise(reference.arg(u"BBA"_s, u"001231016186"_s))),
       u"0510|1|||+++001/2310/16186+++"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Remise(reference.arg(u"x"_s, u"001231016185"_s))),
       u"0510|1|||+++001/2310/16185+++"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Remise(reference.arg(u"x"_s, u"001231016186"_s))),
       u"0510|1|||001231016186"_s},
      {Ecriture(u"1"_s, u"CRDT"_s,
                Remise(u"<Strd><CdtrRefInf><Ref>RF18</Ref></CdtrRefInf></Strd>"_s +
                       reference.arg(u"BBA"_s, u"001231016186"_s))),
       u"0510|1|||+++001/2310/16186+++"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Remise(u"<Ustrd>"_s + u"/"_s.repeated(250) + u"001231016185</Ustrd>"_s)),
       u"0510|1|||+++001/2310/16185+++"_s},
      {Ecriture(u"1"_s, u"CRDT"_s, Details(Detail(u"<AddtlTxInf>t</AddtlTxInf>"_s))), u"0510|1|||t"_s},
  };
  for (const auto& [ecriture, lu] : cas)
    for (const char* version : {"02", "08"}) EXPECT_EQ(Lire(Camt(ecriture, {}, version)), lu);
}

TEST(Camt, DetailsThatSumToTheEntry) {
  const auto details = [](const QString& details) {
    return Lire(Camt(Ecriture(u"3"_s, u"CRDT"_s, Details(details))));
  };
  const QString un = u"<Amt Ccy='EUR'>1</Amt><AddtlTxInf>a</AddtlTxInf>"_s;
  const QString deux =
      u"<AmtDtls><InstdAmt><Amt Ccy='EUR'>9</Amt></InstdAmt><TxAmt><Amt Ccy='EUR'>2</Amt></TxAmt></AmtDtls><AddtlTxInf>b</AddtlTxInf>"_s;
  const QString trois =
      u"<AmtDtls><InstdAmt><Amt Ccy='EUR'>2</Amt></InstdAmt></AmtDtls><AddtlTxInf>c</AddtlTxInf>"_s;
  EXPECT_EQ(details(Detail(un)), u"0510|3|||a");
  EXPECT_EQ(details(Detail({}) + Detail(un) + Detail(deux)), u"0510|1|||a\n0510|2|||b");
  EXPECT_EQ(details(Detail(un) + Detail(trois)), u"0510|3|||");
  const QString dollars = QString(deux).replace(u"<AmtDtls>"_s, u"<Amt Ccy='USD'>2.2</Amt><AmtDtls>"_s);
  EXPECT_EQ(details(Detail(un) + Detail(dollars)), u"0510|3|||") << "an amount of its own, in no euros";
  EXPECT_EQ(details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + un) + Detail(deux + un)), u"0510|3|||");
  EXPECT_EQ(details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + un) + Detail(deux) + Detail(deux)),
            u"0510|-1|||a\n0510|2|||b\n0510|2|||b");
}

TEST(Camt, ProofsAndRefusals) {
  const auto solde = [](const QString& genre, const QString& montant) {
    return u"<Bal><Tp><CdOrPrtry><Cd>%1</Cd></CdOrPrtry></Tp><Amt "
           u"Ccy='EUR'>%2</Amt><CdtDbtInd>CRDT</CdtDbtInd>"
           "<Dt><Dt>2016-10-05</Dt></Dt></Bal>"_s.arg(genre, montant);
  };
  const QString un = Ecriture(u"1"_s, u"DBIT"_s, {}), lu = u"0510|-1|||"_s;
  EXPECT_EQ(Lire(Camt(un, solde(u"PRCD"_s, u"5"_s) + solde(u"OPBD"_s, u"3"_s) + solde(u"CLBD"_s, u"2"_s))),
            lu);
  EXPECT_EQ(Lire(Camt(un, solde(u"PRCD"_s, u"3"_s) + solde(u"CLAV"_s, u"9"_s))), lu);
  EXPECT_TRUE(Lire(Camt(un, solde(u"PRCD"_s, u"3"_s) + solde(u"CLBD"_s, u"3"_s)))
                  .contains(u"le nouveau solde est 3,00"_s));
  for (const auto& [octets, raison] :
       {std::pair(Camt(un, {}, "09"), u"version"_s),
        {Camt(un).replace("?>", "?><!DOCTYPE a>"), u"DOCTYPE"_s},
        {Camt(un).replace("EUR", "USD"), u"« USD »"_s},
        {Camt(un).replace(">1<", ">un<"), u"n'est pas un montant"_s},
        {Camt(un).replace("2016-10-05T", "2016-02-31T"), u"n'est pas une date"_s},
        {Camt(un).replace("BkToCstmrStmt", "BkToCstmrDbtCdtNtfctn"), u"n'est pas un relevé"_s},
        {Camt(un).chopped(20), u"abîmé"_s},
        {Camt(u"<A>"_s.repeated(50) + u"</A>"_s.repeated(50)), u"trop profond"_s},
        {"<a/>", u"n'est pas un relevé"_s}})
    EXPECT_TRUE(Lire(octets).startsWith(u'!') && Lire(octets).contains(raison)) << Lire(octets).toStdString();
}
