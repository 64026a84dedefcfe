#include "page_essai.h"
#include "report/layout/mise_en_page.h"
#include "report/output/pdf.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kModele = R"(<modele nom="Papier">
  <script>
procedure Choisir(Sender: TMemo);
begin
  if &lt;Codabar&gt; = '1' then Sender.BarType := 'Codabar';
end;
  </script>
  <page nom="P">
    <bande sorte="maitre" nom="MasterData1" hauteur="600">
      <image x="0" y="0" largeur="96" hauteur="96" fichier="damier.png"/>
      <cadre x="200" y="0" largeur="96" hauteur="96" epaisseur="0" fond="#000000" fondBas="#ffffff"/>
      <code nom="BarCode" x="20" y="150" largeur="400" hauteur="57" avantImpression="Choisir">[Matricule]</code>
      <qr x="20" y="250" largeur="120" hauteur="120">[Virement]</qr>
      <texteRiche x="0" y="420" largeur="500" hauteur="18">un <![CDATA[<b>[Nom]</b> et <i>la suite</i>]]></texteRiche>
    </bande>
  </page>
</modele>)";

/// The page of a pupil, as a scanner would see it: 300 dots an inch.
QImage Imprimer(const QTemporaryDir& dossier, const QString& codabar) {
  TArbreRapport arbre(1);
  for (const auto& [nom, valeur] :
       std::initializer_list<TValeurs::TValeur>{{u"Matricule"_s, u"553-701-234"_s},
                                                {u"Codabar"_s, codabar},
                                                {u"Virement"_s, u"BCD\n002\n1\nSCT\n+++001/2310/16185+++"_s},
                                                {u"Nom"_s, u"[Nom] <i>Zoé</i>"_s}})
    arbre[0].Valeurs.Ecrire(nom, valeur);
  TRapport rapport(u"Papier"_s, u"Papier"_s);
  rapport.CopierArbre(std::move(arbre));
  const TDocumentPrepare document = MettreEnPage(rapport, LireModele(kModele, u"papier.xml"_s));
  EXPECT_TRUE(document.Defauts.empty());
  EcrirePdf({&document}, {}, {}, dossier.filePath(u"a.pdf"_s));
  Sortie(u"pdftoppm"_s,
         {u"-r"_s, u"300"_s, u"-png"_s, dossier.filePath(u"a.pdf"_s), dossier.filePath(u"p"_s)});
  return QImage(dossier.filePath(u"p-1.png"_s));
}

/// How light the paper is, at a place of the printable area in px.
int Gris(const QImage& page, double x, double y) {
  return qGray(page.pixel(qRound((38 + x) * 300 / 96), qRound((38 + y) * 300 / 96)));
}

}  // namespace

TEST(Papier, DuModeleAuPapier) {
  const QTemporaryDir dossier;
  const QImage page = Imprimer(dossier, {});
  // A board of four by four squares.
  for (int ligne = 0; ligne < 4; ++ligne)
    for (int colonne = 0; colonne < 4; ++colonne)
      EXPECT_NEAR(Gris(page, 12 + 24 * colonne, 12 + 24 * ligne), (ligne + colonne) % 2 == 0 ? 255 : 0, 8)
          << ligne << ' ' << colonne;
  EXPECT_EQ(Gris(page, 98, 12), 255);
  // From black above to white below, without a step.
  for (int y = 4; y < 96; y += 8) EXPECT_NEAR(Gris(page, 248, y), 255 * y / 96, 8) << y;
  const QString codes = Sortie(u"zbarimg"_s, {u"-q"_s, u"--nodbus"_s, dossier.filePath(u"p-1.png"_s)});
  EXPECT_TRUE(codes.contains(u"CODE-39:553701234\n"_s)) << qPrintable(codes);
  EXPECT_TRUE(codes.contains(u"QR-Code:BCD\n002\n1\nSCT\n+++001/2310/16185+++\n"_s)) << qPrintable(codes);
  EXPECT_EQ(Sortie(u"pdftotext"_s, {dossier.filePath(u"a.pdf"_s), u"-"_s}).trimmed(),
            u"un [Nom] <i>Zoé</i> et la suite"_s);
  const QString polices = Sortie(u"pdffonts"_s, {dossier.filePath(u"a.pdf"_s)});
  for (const QString& style : {u"+Carlito "_s, u"+Carlito-Bold "_s, u"+Carlito-Italic "_s})
    EXPECT_TRUE(polices.contains(style)) << qPrintable(polices);

  Imprimer(dossier, u"1"_s);
  EXPECT_TRUE(Sortie(u"zbarimg"_s, {u"-q"_s, u"--nodbus"_s, dossier.filePath(u"p-1.png"_s)})
                  .contains(u"Codabar:A553701234A\n"_s));
}
