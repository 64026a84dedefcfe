#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "page_essai.h"
#include "report/output/pdf.h"
#include "report/output/peintre.h"

namespace {

class Pdf : public testing::Test {
 protected:
  void Ecrire(const std::vector<const TDocumentPrepare*>& documents) {
    EcrirePdf(documents, u"Factures d'été"_s, u"École"_s, chemin_);
    Sortie(u"qpdf"_s, {u"--check"_s, chemin_});
  }
  QString Lire(const QString& programme) { return Sortie(programme, {chemin_}); }
  QString Texte() { return Sortie(u"pdftotext"_s, {u"-layout"_s, chemin_, u"-"_s}); }

  QTemporaryDir dossier_;
  const QString chemin_ = dossier_.filePath(u"a.pdf"_s);
};

/// "title(child child) title", each with its page from 1.
QString EnLigne(const QJsonArray& signets) {
  QStringList textes;
  for (const QJsonValue& signet : signets) {
    QString texte =
        signet[u"title"_s].toString() % u'@' % QString::number(signet[u"destpageposfrom1"_s].toInt());
    if (const QJsonArray enfants = signet[u"kids"_s].toArray(); !enfants.isEmpty())
      texte += u'(' % EnLigne(enfants) % u')';
    textes += texte;
  }
  return textes.join(u' ');
}

int Gris(const QImage& image, int x, int y) { return qGray(image.pixel(x, y)); }

}  // namespace

TEST_F(Pdf, LeTexteSeRelit) {
  const QStringList textes{u"affiche difficile offre attention fjord petite"_s,
                           u"12,50 € « À petits pas » Œuvre"_s,
                           u"ŞTEFĂNESCU Yiğit Łódź — ç"_s,
                           u"[Total] <b>gras</b> (a\\b) %d"_s,
                           u"yx\u0323\u0301 ☐"_s,
                           u"mot \u0476 mot"_s,
                           u"AVANT To. WAWA Tél."_s,
                           u"\u2044 et \u2215"_s};
  TDocumentPrepare document;
  for (const TStyle style :
       {TStyle{}, TStyle{TFamille::Carlito, 18, true, true}, TStyle{TFamille::LiberationMono, 11}}) {
    TPagePreparee& page = document.Pages.emplace_back();
    float y = 60;
    for (const QString& texte : textes) page.Elements.emplace_back(::Texte(texte, 40, y += 40, style));
  }
  Ecrire({&document});
  const QStringList pages = Texte().split(u'\f');
  ASSERT_EQ(pages.size(), 4);
  for (int page = 0; page < 3; ++page) {
    QStringList lignes;
    for (const QString& ligne : pages[page].split(u'\n'))
      if (!ligne.trimmed().isEmpty()) lignes += ligne.trimmed();
    EXPECT_EQ(lignes.join(u'\n').toStdString(), textes.join(u'\n').toStdString());
  }
  const QStringList polices = Lire(u"pdffonts"_s).split(u'\n', Qt::SkipEmptyParts).mid(2);
  EXPECT_EQ(polices.size(), 5);  // three, and two of DejaVu for what they lack
  for (const QString& police : polices)
    EXPECT_TRUE(
        police.contains(QRegularExpression(u"^[A-Z]{6}\\+.*CID TrueType +Identity-H +yes yes yes "_s)))
        << qPrintable(police);
  EXPECT_LT(QFileInfo(chemin_).size(), 80'000);
}

TEST_F(Pdf, TitreSignetsEtPapier) {
  TDocumentPrepare premier, second;
  premier.Titre = u"Factures"_s;
  second.Titre = u"Rappels"_s;
  premier.Pages.resize(3);
  premier.Pages[0].Signets = {{u"P1 A"_s, 0}, {u"ADAM Léa"_s, 1}};
  premier.Pages[1].Signets = {{u"BAH Aïssatou"_s, 1}};
  premier.Pages[2].Signets = {{u"P2 A"_s, 0}, {u"(€)"_s, 1}};
  second.Pages.resize(1);
  second.Pages[0].Largeur = 325;  // a badge
  second.Pages[0].Hauteur = 208;
  const auto signets = [&] {
    const QString json = Sortie(u"qpdf"_s, {u"--json=2"_s, u"--json-key=outlines"_s, chemin_});
    return EnLigne(QJsonDocument::fromJson(json.toUtf8())[u"outlines"_s].toArray());
  };
  Ecrire({&premier});
  EXPECT_EQ(signets(), u"P1 A@1(ADAM Léa@1 BAH Aïssatou@2) P2 A@3((€)@3)"_s);
  Ecrire({&premier, &second});
  EXPECT_EQ(signets(), u"Factures@1(P1 A@1(ADAM Léa@1 BAH Aïssatou@2) P2 A@3((€)@3)) Rappels@4"_s);
  const QString fiche = Sortie(u"pdfinfo"_s, {u"-f"_s, u"1"_s, u"-l"_s, u"4"_s, chemin_});
  for (const QString& attendu :
       {u"Title: +Factures d'été\n"_s, u"Author: +École\n"_s, u"Pages: +4\n"_s,
        u"Page +1 size: +595.28 x 841.89 pts \\(A4\\)"_s, u"Page +4 size: +243.78 x 155.91 pts"_s})
    EXPECT_TRUE(fiche.contains(QRegularExpression(attendu))) << qPrintable(fiche);
  const QString objets = Sortie(u"qpdf"_s, {u"--object-streams=disable"_s, chemin_, u"-"_s});
  for (const QString& attendu : {u"/Lang (fr-BE)"_s, u"/DisplayDocTitle true"_s, u"/PrintScaling /None"_s})
    EXPECT_TRUE(objets.contains(attendu)) << qPrintable(attendu);
  EXPECT_EQ(PdfEnOctets({&premier}, {}, {}), PdfEnOctets({&premier}, {}, {}));

  const TDocumentPrepare vide;
  EXPECT_THROW(PdfEnOctets({&vide}, {}, {}), Exception);
  EXPECT_THROW(EcrirePdf({&premier}, {}, {}, dossier_.filePath(u"absent/a.pdf"_s)), Exception);
  EXPECT_EQ(QDir(dossier_.path()).entryList(QDir::Files), QStringList{u"a.pdf"_s});
}

/// The paper and the screen show the same page, seen from some distance.
TEST_F(Pdf, MontreCeQueMontreLEcran) {
  TDocumentPrepare document;
  document.Pages.push_back(PageDeTout());
  Ecrire({&document});
  EXPECT_EQ(PdfEnOctets({&document}, {}, {}).count("/Subtype/Image"), 2);  // once, and its mask
  Sortie(u"pdftoppm"_s, {u"-r"_s, u"96"_s, u"-png"_s, chemin_, dossier_.filePath(u"p"_s)});
  const QImage papier(dossier_.filePath(u"p-1.png"_s));
  const QImage ecran = Rasteriser(document.Pages[0], 96);
  ASSERT_LE(qAbs(papier.width() - ecran.width()), 1);
  constexpr int pas = 8;  // the bars below stand on each device's own dots
  int encre = 0;
  for (int y = 0; y + pas <= 400; y += pas)
    for (int x = 0; x + pas <= 790; x += pas) {
      int ici = 0, la = 0;
      for (int i = 0; i < pas * pas; ++i) {
        ici += Gris(papier, x + i % pas, y + i / pas);
        la += Gris(ecran, x + i % pas, y + i / pas);
      }
      encre += 255 - la / (pas * pas);
      EXPECT_NEAR(ici / (pas * pas), la / (pas * pas), 40) << x << ' ' << y;
    }
  EXPECT_GT(encre, 20'000);
}
