#include "core/data_set.h"
#include "fuzz/alterer.h"
#include "fuzz/cibles.h"
#include "support/fichier_camt.h"
#include "support/fichier_registre.h"

namespace {

/// A group of two payments, with a whole name and a text of three records.
QByteArray CodaValide() {
  using namespace FichierCoda;
  const auto suite = [](const QString& genre, int place, const QString& texte) {
    return Enregistrement({{1, genre}, {place, texte}});
  };
  return Coda({Mouvement("00010000", 300, "101001231016185", u'1', true),
               Mouvement("00010001", 100, "105", u'6', true), suite("2200010001", 11, "suite"),
               Donneur("00010001", "BE68539007547034EUR", "VAN DEN", "fin"),
               suite("3100019999", 40, "1001VAN DEN BERGHE"), suite("3100019999", 40, "0libre"),
               suite("3200019999", 11, "et"), suite("3300019999", 11, "fin"),
               Mouvement("00010002", 200, "113autre", u'6', true)},
              300);
}

QByteArray CamtValide() {
  using namespace FichierCamt;
  const QString reference =
      "<Strd><CdtrRefInf><Tp><Issr>BBA</Issr></Tp><Ref>001231016185</Ref></CdtrRefInf></Strd>";
  const QString detail = "<AmtDtls><TxAmt><Amt Ccy='EUR'>1.50</Amt></TxAmt></AmtDtls>" +
                         Detail("Zoé", "BE68539007547034", reference + Libre("libre"));
  const QString dates =
      "<Sts>BOOK</Sts><BookgDt><Dt>2016-10-06</Dt></BookgDt><ValDt><DtTm>2016-10-05T23:59:00</DtTm></ValDt>";
  return Camt(Releve(7, "BE33",
                     Solde("OPBD", "5") + Solde("CLBD", "8") +
                         Ecriture("3", "CRDT", dates + Details(detail + "</TxDtls><TxDtls>" + detail))));
}

}  // namespace

TEST(Fuzz, RegisterReader) {
  TCibles cibles;
  std::mt19937 tirage(27);
  const QByteArray valide = TFichierRegistre(1, 11).EnOctets();
  cibles.Registre(valide);
  for (int i = 0; i < 300; ++i) cibles.Registre(Alterer(valide, tirage));
}

TEST(Fuzz, ScannerReader) {
  TCibles cibles;
  std::mt19937 tirage(30);
  const QByteArray valide =
      "11;1;20161003;073000000;1\r\n11;4;20161004;160000000;1\r\n99;2;20161005;120000000;1\r\n";
  for (int i = 0; i < 3000; ++i) cibles.Presences(Alterer(valide, tirage));
}

TEST(Fuzz, StatementReaders) {
  TCibles cibles;
  std::mt19937 tirage(51);
  const QByteArray blancs(10, ' ');
  const QByteArray lignes[] = {
      QByteArray(";\r\n").repeated(13) +
          "x;05/10/2016;x;x;BE68;Dupont;x;x;001231016185;x;12,50;EUR;x;x;+++000/0110/16178+++\r\n",
      QByteArray(";\r\n").repeated(14) + "x;x;x;05/10/2016;BE68;Dupont;x;x;001231016185;x;12,50\r\n",
      "x\r\na;b;c;d;05-10-16;f;1.250,00;h;i;De: DUPONT" + blancs + "IBAN: BE68" + blancs +
          "Communication : ***000/0110/16178*** \r\n"};
  for (const QByteArray& valide : lignes) {
    cibles.Releve(valide);
    for (int i = 0; i < 300; ++i) cibles.Releve(Alterer(valide, tirage));
  }
}

// Whole characters must be left for a file to be read at all, so that most mutations move or change values.
TEST(Fuzz, StatementsThatTellTheirForm) {
  TCibles cibles;
  std::mt19937 tirage(53);
  for (const QByteArray& valide : {CodaValide(), CamtValide()}) {
    EXPECT_TRUE(cibles.ReleveBancaire(valide));
    cibles.Releve(valide);
    int lus = 0;
    for (int i = 0; i < 3000; ++i) {
      lus += cibles.ReleveBancaire(AltererLignes(valide, tirage));
      lus += cibles.ReleveBancaire(Alterer(valide, tirage));
    }
    EXPECT_GT(lus, 0);
    for (int i = 0; i < 30; ++i) cibles.Releve(Alterer(valide, tirage));
  }
}

TEST(Fuzz, LocalDataSet) {
  TCibles cibles;
  std::mt19937 tirage(65);
  TDataSet copie({u"ELEVE_ID"_s, u"NOM"_s, u"PHOTO"_s});
  for (int i = 0; i < 5; ++i) copie.Ajouter({i, u"Zoé"_s, QByteArray(20, 'x')});
  copie.Ajouter({{}, u"seul"_s, {}});
  const QByteArray valide = copie.EnOctets();
  EXPECT_TRUE(cibles.CopieLocale(valide));
  for (int i = 0; i < 5000; ++i) cibles.CopieLocale(Alterer(valide.chopped(32), tirage));
}

TEST(Fuzz, FileOfMeals) {
  TCibles cibles;
  std::mt19937 tirage(65);
  const QByteArray valide = "11;2;20161003;120000000;1\r\n11;2;20161004;120000000;1\n\nzoé\n";
  for (int i = 0; i < 300; ++i) cibles.Repas(Alterer(valide, tirage));
}
