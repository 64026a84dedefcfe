#include <random>

#include "pupils/eleves.h"
#include "pupils/photo.h"
#include "support/ecole_essai.h"

namespace {

constexpr QRgb kRouge = qRgb(200, 30, 20);
constexpr QRgb kBleu = qRgb(20, 40, 180);

/// Left half of one colour, right half of another.
QImage Image(QRgb gauche, QRgb droite, QSize taille = {190, 220}) {
  QImage image(taille, QImage::Format_RGB32);
  for (int y = 0; y < taille.height(); ++y)
    for (int x = 0; x < taille.width(); ++x) image.setPixel(x, y, x < taille.width() / 2 ? gauche : droite);
  return image;
}

bool Montre(const QImage& vignette, QRgb gauche, QRgb droite) {
  const auto proche = [&](int x, QRgb couleur) {
    const QRgb vu = vignette.pixel(x, 55);
    return std::abs(qRed(vu) - qRed(couleur)) < 8 && std::abs(qBlue(vu) - qBlue(couleur)) < 8;
  };
  return vignette.size() == QSize(95, 110) && proche(20, gauche) && proche(75, droite);
}

struct TPhotoEssai : TEssaiEcole {
  TPhotoEssai() { ecole.unEleve().enClasse(u"P1"_s, {}); }
};

}  // namespace

TEST_F(TPhotoEssai, EnregistrerRelireEffacer) {
  TEleves eleves(*base, 2016);
  TEleve& eleve = eleves[0];
  EXPECT_TRUE(eleve.GetPhoto().isNull());
  eleve.SetPhoto(Image(kRouge, kBleu));
  EXPECT_TRUE(Montre(eleve.GetPhoto(), kRouge, kBleu));
  // Another picture takes the place of the first, in the row and in the thumbnail.
  eleve.SetPhoto(Image(kBleu, kBleu, {31, 17}));
  EXPECT_TRUE(Montre(eleve.GetPhoto(), kBleu, kBleu));
  EXPECT_TRUE(Montre(TEleves(*base, 2016)[0].GetPhoto(), kBleu, kBleu));
  const QString nombre = u"SELECT COUNT(*) FROM ELEVE_PHOTO"_s;
  EXPECT_EQ(base.Valeur(nombre), u"1");
  EXPECT_THROW(eleve.SetPhoto(QImage()), Exception);
  eleve.DeletePhoto();
  EXPECT_TRUE(eleve.GetPhoto().isNull());
  EXPECT_EQ(base.Valeur(nombre), u"0");
}

TEST_F(TPhotoEssai, UnePhotoAbimeeEchoueUneFoisPuisManque) {
  const QByteArray bonne = EncoderJpeg(Image(kRouge, kBleu));
  for (const QByteArray& octets : {bonne.first(bonne.size() / 2), bonne.first(20), bonne.sliced(2),
                                   QByteArray(500, 'x'), QByteArray("")}) {
    base.Sql(
        u"UPDATE OR INSERT INTO ELEVE_PHOTO VALUES (1, 1, x'%1')"_s.arg(QString::fromLatin1(octets.toHex())));
    TEleves eleves(*base, 2016);
    EXPECT_THROW(eleves[0].GetPhoto(), Exception) << octets.size();
    EXPECT_TRUE(eleves[0].GetPhoto().isNull());
    eleves[0].SetPhoto(Image(kBleu, kBleu));
    EXPECT_FALSE(eleves[0].GetPhoto().isNull());
  }
}

TEST(Photo, AucunOctetNeFaitTomberLeLecteur) {
  const QByteArray bonne = EncoderJpeg(Image(kRouge, kBleu, {64, 48}));
  std::mt19937 hasard(2016);
  const auto moinsDe = [&](qsizetype n) {
    return static_cast<qsizetype>(hasard() % static_cast<unsigned>(n));
  };
  int lues = 0;
  for (int i = 0; i < 3000; ++i) {
    QByteArray octets = bonne;
    for (qsizetype n = moinsDe(6); n >= 0; --n) octets[moinsDe(octets.size())] = static_cast<char>(hasard());
    if (moinsDe(3) == 0) octets.truncate(moinsDe(octets.size()));
    try {
      if (!DecoderJpeg(octets).isNull()) ++lues;
    } catch (const Exception& e) {
      EXPECT_TRUE(e.Message.startsWith(u"La photo")) << e.what();
    }
  }
  EXPECT_GT(lues, 100);
  EXPECT_LT(lues, 2900);
}
