#include <QRegularExpression>
#include <cstring>

#include "core/exceptions.h"
#include "payments/communication_structuree.h"
#include "payments/releve_bancaire.h"
#include "support/affichage.h"
#include "support/fichier_camt.h"

using namespace FichierCoda;

namespace {

QString EnTexte(const TReleveBancaire& releve) {
  QStringList lus;
  for (const TMouvement& m : releve.Mouvements)
    lus += QStringList{DateVersQt(m.Date).toString("ddMM"), FormatNombre(m.Montant), m.Compte, m.Donneur,
                       CommunicationNormalisee(m.Communication)}
               .join(u'|');
  return (lus + releve.Preuves).join(u'\n');
}

/// What the bytes give, or "! reason".
QString Lire(const QByteArray& octets) {
  try {
    const auto releve = LireReleveBancaire(octets);
    return releve ? EnTexte(*releve) : "?";
  } catch (const Exception& e) {
    return u"! "_s + e.Message;
  }
}

QString Suite(const QString& article, const QString& texte) {
  return Enregistrement({{1, u"22"_s + article}, {11, texte}});
}
QString Information(const QString& genre, const QString& texte, bool structuree = false) {
  if (genre == u"31") return Enregistrement({{1, "3100019999"}, {40, structuree ? "1" : "0"}, {41, texte}});
  return Enregistrement({{1, genre + u"00019999"}, {11, texte}});
}

const QString kUn = "00010000";

}  // namespace

TEST(Coda, WhatAMovementSays) {
  const QString cinquante(51, u'é');
  const QString codes = u"0"_s.repeated(45);
  const std::pair<QStringList, QString> cas[] = {
      {{Mouvement(kUn, 1250, "merci  beaucoup")}, "0510|12,5|||merci beaucoup"},
      {{Mouvement(kUn, 1250, {}, u'0', false, "000000")}, "0610|12,5|||"},
      {{Mouvement(kUn, 1250, cinquante % u" a"), Suite(kUn, "b***"),
        Donneur(kUn, "BE68539007547034EUR", "ZOÉ", "fin")},
       u"0510|12,5|BE68539007547034|ZOÉ|%1 ab+++ fin"_s.arg(cinquante)},
      {{Mouvement(kUn, 1250, "101001231016185", u'0', true), Information("31", "texte")},
       "0510|12,5|||+++001/2310/16185+++"},
      {{Mouvement(kUn, 1250, "101", u'0', true), Information("31", "libre")}, "0510|12,5|||libre"},
      {{Mouvement(kUn, 1250, "101 école", u'0', true), Information("31", "libre")},
       "0510|12,5|||école libre"},
      {{Mouvement(kUn, 1250, "x"), Donneur(kUn, "BE68 5390 0754 7034 EUR", "A")},
       "0510|12,5|BE68539007547034|A|x"},
      {{Mouvement(kUn, 1250, "x"), Donneur(kUn, "DE89 3704 0044 0532 0130 00EUR", "A")},
       "0510|12,5|DE89370400440532013000|A|x"},
      {{Mouvement(kUn, 1250, "x"), Donneur(kUn, "NL0584894293994456 EUR", "A")},
       "0510|12,5|NL0584894293994456|A|x"},  // digits are no currency, whatever they leave
      {{Mouvement(kUn, 1250, "102001231016185", u'0', true)}, "0510|12,5|||+++001/2310/16185+++"},
      {{Mouvement(kUn, 1250, u"105"_s % codes % u"00123", u'0', true), Suite(kUn, "1016185")},
       "0510|12,5|||+++001/2310/16185+++"},
      {{Mouvement(kUn, 1250, u"105"_s % codes % u"00000", u'0', true), Suite(kUn, "0000000"),
        Information("31", "libre")},
       "0510|12,5|||libre"},
      {{Mouvement(kUn, 1250, "127", u'0', true), Suite(kUn, u"x"_s.repeated(29) % u"cotisation")},
       "0510|12,5|||cotisation"},
      {{Mouvement(kUn, 1250, "113autre", u'0', true)}, "0510|12,5|||autre"},
      {{Mouvement(kUn, 1250, "x"), Donneur(kUn, "BE68539007547034EUR", "VAN DEN"),
        Information("31", "001VAN DEN BERGHE", true), Information("32", "rue"), Information("31", "un"),
        Information("32", "deux"), Information("33", "trois")},
       "0510|12,5|BE68539007547034|VAN DEN BERGHE|x un deux trois"},
      {{Mouvement(kUn, 1250, "x"), Donneur(kUn, "123456789012 EUR", "DUPONT"),
        Information("31", "001DURAND", true)},
       "0510|12,5|123456789012|DUPONT|x"},
  };
  for (const auto& [milieu, lu] : cas) EXPECT_EQ(Lire(Coda(milieu, 1250)), lu);
  QByteArray ansi = Coda({Mouvement(kUn, 1250, "  é")}, 1250).replace("é", "\xE9");
  EXPECT_EQ(Lire(ansi), u"0510|12,5|||é") << "decoded before characters are counted";
}

TEST(Coda, GroupsCountOnce) {
  const auto groupe = [](QChar type, int un, int deux, QChar typeDeux = u'6') {
    return Lire(Coda({Mouvement(kUn, 300, "total", type), Mouvement("00010001", un, "a", u'6'),
                      Mouvement("00010002", deux, "b", typeDeux), Mouvement("00020000", 100, "c")},
                     400));
  };
  const QString total = "0510|3|||total\n0510|1|||c";
  for (const QChar type : {u'1', u'2'}) {
    EXPECT_EQ(groupe(type, 100, 200), u"0510|1|||a\n0510|2|||b\n0510|1|||c");
    EXPECT_EQ(groupe(type, 400, -100), u"0510|4|||a\n0510|-1|||b\n0510|1|||c");
    EXPECT_EQ(groupe(type, 100, 201), total);
    for (const QChar sansMontant : {u'8', u'9'})
      EXPECT_EQ(groupe(type, 300, 7, sansMontant), u"0510|3|||a\n0510|1|||c");
  }
  EXPECT_EQ(groupe(u'3', 100, 200), total);
  EXPECT_EQ(Lire(Coda({Mouvement("00010001", 100, "a", u'6')}, 100)),
            u"! Ligne 3 : le détail d'un mouvement vient sans son total.");
}

TEST(Coda, ProofsAndRefusals) {
  const QStringList deux{Mouvement(kUn, 300, "a"), Mouvement("00020000", -100, "b")};
  const QByteArray juste = Coda(deux, 200, 100);
  const QString lus = "0510|3|||a\n0510|-1|||b";
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
                  "l'ancien solde et les mouvements font 102,00, et le nouveau solde est 102,01"),
        {juste.left(neuf), "L'enregistrement 9 manque"},
        {change(neuf + 2 + 21, "9"), "Nombre d'enregistrements : 4, et l'enregistrement 9 annonce 9."},
        {change(neuf + 2 + 34, "9"), "Somme des débits : 1,00 €, et l'enregistrement 9 annonce 1,90 €."},
        {change(neuf + 2 + 37, "x"), "Somme des crédits : 3,00 €, et l'enregistrement 9 annonce « x0"}}) {
    const QString lu = Lire(octets);
    EXPECT_TRUE(lu.startsWith(lus + u'\n') && lu.contains(preuve)) << lu.toStdString();
    EXPECT_EQ(lu.count(u'\n'), 2);
  }
  for (const auto& [octets, raison] : {std::pair(QByteArray(juste).replace(127, 1, "1"), "version 2"),
                                       {QByteArray(juste).replace("EUR", "USD"), "« USD »"},
                                       {change(130 + 130 + 34, "x"), "n'est pas un nombre"},
                                       {change(130 + 130 + 47, "310216"), "n'est pas une date"},
                                       {change(130 + 130, "5"), "n'est pas un enregistrement CODA"},
                                       {change(130, "4"), "sans ancien solde"}})
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
      "</BkToCstmrStmt></n:Document>"_s.arg(version, QString(soldes + ecritures));
  return QString(document).replace(QRegularExpression("<(/?)(?=[A-Z])"), "<\\1n:").toUtf8();
}

QString Ecriture(const QString& montant, const QString& sens, const QString& reste,
                 const QString& etat = "<Sts>BOOK</Sts>") {
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
      "<Strd><CdtrRefInf><Tp><Issr>%1</Issr></Tp><Ref>%2</Ref></CdtrRefInf></Strd><Ustrd>libre</Ustrd>";
  const QString notre = QString(kParties).replace("BE1", "BE33");
  const std::pair<QString, QString> cas[] = {
      {Ecriture("12.50", "CRDT", "<AddtlNtryInf>info</AddtlNtryInf>"), "0510|12,5|||info"},
      {Ecriture("1", "CRDT", {}, "<Sts><Cd>BOOK</Cd></Sts>"), "0510|1|||"},
      {Ecriture("1", "CRDT", {}, {}), "0510|1|||"},
      {Ecriture("1", "CRDT", {}, "<Sts>PDNG</Sts>"), {}},
      {Ecriture("1", "CRDT", Details(Detail(kParties))), "0510|1|BE1|A|"},
      {Ecriture("1", "DBIT", Details(Detail(kParties))), "0510|-1|77|B|"},
      {Ecriture("1", "CRDT", Details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + kParties))), "0510|1|BE1|A|"},
      {Ecriture("1", "CRDT", {}).replace("DtTm>2016-10-05T23:59:00-05:00</DtTm", "Dt></Dt"), "0610|1|||"},
      {Ecriture("1", "DBIT", u"<RvslInd>true</RvslInd>"_s + Details(Detail(kParties))), "0510|-1|BE1|A|"},
      {Ecriture("1", "CRDT", Details(Detail(notre))), "0510|1|77|B|"},
      {Ecriture("1", "CRDT", Remise("<Ustrd>a</Ustrd><Ustrd>***b</Ustrd>")), "0510|1|||a +++b"},
      {Ecriture("1", "CRDT", Remise(reference.arg("BBA", "001231016186"))), "0510|1|||+++001/2310/16186+++"},
      {Ecriture("1", "CRDT", Remise(reference.arg("x", "001231016185"))), "0510|1|||+++001/2310/16185+++"},
      {Ecriture("1", "CRDT", Remise(reference.arg("x", "001231016186"))), "0510|1|||001231016186"},
      {Ecriture("1", "CRDT",
                Remise(u"<Strd><CdtrRefInf><Ref>RF18</Ref></CdtrRefInf></Strd>"_s +
                       reference.arg("BBA", "001231016186"))),
       "0510|1|||+++001/2310/16186+++"},
      {Ecriture("1", "CRDT", Remise(u"<Ustrd>"_s + u"/"_s.repeated(250) + u"001231016185</Ustrd>"_s)),
       "0510|1|||+++001/2310/16185+++"},
      {Ecriture("1", "CRDT", Details(Detail("<AddtlTxInf>t</AddtlTxInf>"))), "0510|1|||t"},
  };
  for (const auto& [ecriture, lu] : cas)
    for (const char* version : {"02", "08"}) EXPECT_EQ(Lire(Camt(ecriture, {}, version)), lu);
}

TEST(Camt, DetailsThatSumToTheEntry) {
  const auto details = [](const QString& details) {
    return Lire(Camt(Ecriture("3", "CRDT", Details(details))));
  };
  const QString un = "<Amt Ccy='EUR'>1</Amt><AddtlTxInf>a</AddtlTxInf>";
  const QString deux =
      "<AmtDtls><InstdAmt><Amt Ccy='EUR'>9</Amt></InstdAmt><TxAmt><Amt "
      "Ccy='EUR'>2</Amt></TxAmt></AmtDtls><AddtlTxInf>b</AddtlTxInf>";
  const QString trois =
      "<AmtDtls><InstdAmt><Amt Ccy='EUR'>2</Amt></InstdAmt></AmtDtls><AddtlTxInf>c</AddtlTxInf>";
  EXPECT_EQ(details(Detail(un)), u"0510|3|||a");
  EXPECT_EQ(details(Detail({}) + Detail(un) + Detail(deux)), u"0510|1|||a\n0510|2|||b");
  EXPECT_EQ(details(Detail(un) + Detail(trois)), u"0510|3|||");
  const QString dollars = QString(deux).replace("<AmtDtls>", "<Amt Ccy='USD'>2.2</Amt><AmtDtls>");
  EXPECT_EQ(details(Detail(un) + Detail(dollars)), u"0510|3|||") << "an amount of its own, in no euros";
  EXPECT_EQ(details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + un) + Detail(deux + un)), u"0510|3|||");
  EXPECT_EQ(details(Detail(u"<CdtDbtInd>DBIT</CdtDbtInd>"_s + un) + Detail(deux) + Detail(deux)),
            u"0510|-1|||a\n0510|2|||b\n0510|2|||b");
}

TEST(Camt, ProofsAndRefusals) {
  using FichierCamt::Solde;
  const QString un = Ecriture("1", "DBIT", {}), lu = "0510|-1|||";
  EXPECT_EQ(Lire(Camt(un, Solde("PRCD", "5") + Solde("OPBD", "3") + Solde("CLBD", "2"))), lu);
  EXPECT_EQ(Lire(Camt(un, Solde("PRCD", "3") + Solde("CLAV", "9"))), lu);
  EXPECT_TRUE(Lire(Camt(un, Solde("PRCD", "3") + Solde("CLBD", "3"))).contains("le nouveau solde est 3,00"));
  for (const auto& [octets, raison] :
       {std::pair(Camt(un, {}, "09"), "version"),
        {Camt(un).replace("?>", "?><!DOCTYPE a>"), "DOCTYPE"},
        {Camt(un).replace("EUR", "USD"), "« USD »"},
        {Camt(un).replace(">1<", ">un<"), "n'est pas un montant"},
        {Camt(un).replace("2016-10-05T", "2016-02-31T"), "n'est pas une date"},
        {Camt(un).replace("BkToCstmrStmt", "BkToCstmrDbtCdtNtfctn"), "n'est pas un relevé"},
        {Camt(un).chopped(20), "abîmé"},
        {Camt(u"<A>"_s.repeated(50) + u"</A>"_s.repeated(50)), "trop profond"},
        {"<a/>", "n'est pas un relevé"}})
    EXPECT_TRUE(Lire(octets).startsWith(u'!') && Lire(octets).contains(raison)) << Lire(octets).toStdString();
}
