#include <QCoreApplication>
#include <QDir>
#include <QtEndian>

#include "documents/modeles.h"
#include "fuzz/alterer.h"
#include "fuzz/cibles.h"
#include "report/layout/document_prepare.h"

namespace {

/// What a saved report holds once decompressed.
QByteArray RapportValide() {
  TDocumentPrepare document;
  document.Titre = u"Facture"_s;
  document.Defauts.resize(2);
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(0x80112233);
  TPagePreparee& page = document.Pages.emplace_back();
  page.Signets = {{u"P3 A"_s, 0}};
  page.Elements = {TElementTexte{Former(u"Théâtre 12,50 €"_s, {}), 40, 60}, TElementTrait{0, 0, 9, 9, 1},
                   TElementCadre{{1, 2, 3, 4}, 1, 0xFF000000, 0xFF112233, 0xFF998877},
                   TElementImage{{0, 0, 9, 9}, std::make_shared<const QImage>(image)},
                   TElementBarres{{{1, 2, 3, 4}, {5, 2, 3, 4}}}};
  const QByteArray fichier = document.EnOctets();
  QByteArray taille(4, '\0');
  qToBigEndian(qFromLittleEndian<quint32>(fichier.constData() + 8), taille.data());
  return qUncompress(taille + fichier.mid(12));
}

/// The templates of the program, the parts that they share included.
std::vector<QByteArray> Modeles() {
  ModeleDocument(u"Facture"_s);  // attaches them
  std::vector<QByteArray> modeles;
  for (const QFileInfo& fichier : QDir(u":/modeles"_s).entryInfoList({u"*.xml"_s})) {
    QFile modele(fichier.filePath());
    if (modele.open(QIODevice::ReadOnly)) modeles.push_back(modele.readAll());
  }
  return modeles;
}

/// Their scripts.
std::vector<QByteArray> Scripts() {
  std::vector<QByteArray> scripts;
  for (const QByteArray& modele : Modeles()) {
    const qsizetype debut = modele.indexOf("<![CDATA[") + 9;
    if (debut > 8) scripts.push_back(modele.mid(debut, modele.indexOf("]]>", debut) - debut));
  }
  return scripts;
}

}  // namespace

TEST(Fuzz, SavedReportReader) {
  TCibles cibles;
  std::mt19937 tirage(33);
  const QByteArray valide = RapportValide();
  ASSERT_GT(valide.size(), 200);
  for (int i = 0; i < 20'000; ++i) cibles.Rapport(Alterer(valide, tirage));
}

TEST(Fuzz, TemplateReader) {
  TCibles cibles;
  std::mt19937 tirage(21);
  const auto modeles = Modeles();
  ASSERT_GT(modeles.size(), 5U);
  int lus = 0;
  for (const QByteArray& modele : modeles) {
    cibles.Modele(modele);
    for (int i = 0; i < 500; ++i) lus += cibles.Modele(AltererLignes(modele, tirage)) ? 1 : 0;
    for (int i = 0; i < 50; ++i) cibles.Modele(Alterer(modele, tirage));
  }
  EXPECT_GT(lus, 300);  // the layout is met as well
}

TEST(Fuzz, LabelReader) {
  TCibles cibles;
  std::mt19937 tirage(44);
  int lus = 0;
  for (const QFileInfo& fichier :
       QDir(QCoreApplication::applicationDirPath()).entryInfoList({u"*.label"_s})) {
    const QByteArray modele = LireFichier(fichier.filePath());
    ASSERT_TRUE(cibles.Etiquette(modele)) << fichier.fileName().toStdString();
    for (int i = 0; i < 2000; ++i) lus += cibles.Etiquette(AltererLignes(modele, tirage)) ? 1 : 0;
    for (int i = 0; i < 500; ++i) cibles.Etiquette(Alterer(modele, tirage));
  }
  EXPECT_GT(lus, 200);  // labels are printed as well
}

TEST(Fuzz, ScriptReader) {
  TCibles cibles;
  std::mt19937 tirage(22);
  const auto scripts = Scripts();
  ASSERT_GT(scripts.size(), 2U);
  int lus = 0;
  for (const QByteArray& script : scripts)
    for (int i = 0; i < 1500; ++i) {
      const QByteArray autre = i % 2 == 0 ? Alterer(script, tirage) : AltererLignes(script, tirage);
      lus += cibles.Script(autre) ? 1 : 0;
    }
  EXPECT_GT(lus, 1000);
}
