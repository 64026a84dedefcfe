#include <gtest/gtest.h>

#include <QtEndian>
#include <random>

#include "fuzz/cibles.h"
#include "report/layout/document_prepare.h"

namespace {

/// A seeded mutation: bytes flipped, cut, repeated, and pieces that readers trip over put in.
QByteArray Alterer(QByteArray octets, std::mt19937& tirage) {
  static const QByteArray pieces[] = {";",
                                      "\"",
                                      "\"\"",
                                      "\r\n",
                                      "\n\n",
                                      QByteArray(1, '\0'),
                                      "\xff\xfe",
                                      "\xEF\xBB\xBF",
                                      "=\"",
                                      "-1",
                                      "00000000",
                                      "99999999999999999999",
                                      "\xC3",
                                      "20161003",
                                      "é",
                                      QByteArray(3000, ';'),
                                      QByteArray(5000, '7'),
                                      "4;",
                                      "31/06/2017"};
  const auto hasard = [&](qsizetype n) {
    return static_cast<qsizetype>(tirage() % static_cast<unsigned>(n));
  };
  for (auto fois = hasard(6) + 1; fois > 0; --fois) {
    const qsizetype ou = hasard(octets.size() + 1);
    switch (hasard(5)) {
      case 0:
        octets.insert(ou, pieces[hasard(std::size(pieces))]);
        break;
      case 1:
        octets.remove(ou, hasard(40));
        break;
      case 2:
        octets.truncate(ou);
        break;
      case 3:
        octets.insert(ou, octets.mid(hasard(octets.size() + 1), hasard(200)));
        break;
      default:
        if (ou < octets.size()) octets[ou] = static_cast<char>(tirage());
    }
  }
  return octets;
}

QByteArray RegistreValide() {
  QByteArray texte = "entete\r\n";
  for (int i = 1; i < 12; ++i)
    texte += "x;S1;1-" + QByteArray::number(i) +
             ";Nom;Zoé;x;20100228;;;;;;Rue;=\"12\";1300;Wavre;2016/09/"
             "01;P1;A;;;;Père;;;;;;;;;;;;Mère;;;;;;;Rue;7;1300;Namur\r\n";
  return texte;
}

/// What a saved report holds once decompressed.
QByteArray RapportValide() {
  TDocumentPrepare document;
  document.Titre = QStringLiteral("Facture");
  document.Defauts.resize(2);
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(0x80112233);
  TPagePreparee& page = document.Pages.emplace_back();
  page.Signets = {{QStringLiteral("P3 A"), 0}};
  page.Elements = {TElementTexte{Former(QStringLiteral("Théâtre 12,50 €"), {}), 40, 60},
                   TElementTrait{0, 0, 9, 9, 1},
                   TElementCadre{{1, 2, 3, 4}, 1, 0xFF000000, 0xFF112233, 0xFF998877},
                   TElementImage{{0, 0, 9, 9}, std::make_shared<const QImage>(image)},
                   TElementBarres{{{1, 2, 3, 4}, {5, 2, 3, 4}}}};
  const QByteArray fichier = document.EnOctets();
  QByteArray taille(4, '\0');
  qToBigEndian(qFromLittleEndian<quint32>(fichier.constData() + 8), taille.data());
  return qUncompress(taille + fichier.mid(12));
}

}  // namespace

TEST(Fuzz, SavedReportReader) {
  TCibles cibles;
  std::mt19937 tirage(33);
  const QByteArray valide = RapportValide();
  ASSERT_GT(valide.size(), 200);
  for (int i = 0; i < 20'000; ++i) cibles.Rapport(Alterer(valide, tirage));
}

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
