#include "core/data_set.h"
#include "fuzz/alterer.h"
#include "fuzz/cibles.h"

namespace {

QByteArray RegistreValide() {
  QByteArray texte = "entete\r\n";
  for (int i = 1; i < 12; ++i)
    texte += "x;S1;1-" + QByteArray::number(i) +
             ";Nom;Zoé;x;20100228;;;;;;Rue;=\"12\";1300;Wavre;2016/09/"
             "01;P1;A;;;;Père;;;;;;;;;;;;Mère;;;;;;;Rue;7;1300;Namur\r\n";
  return texte;
}

}  // namespace

TEST(Fuzz, RegisterReader) {
  TCibles cibles;
  std::mt19937 tirage(27);
  cibles.Registre(RegistreValide());
  for (int i = 0; i < 300; ++i) cibles.Registre(Alterer(RegistreValide(), tirage));
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
