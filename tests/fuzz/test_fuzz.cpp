#include <gtest/gtest.h>

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
