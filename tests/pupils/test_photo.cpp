#include <gtest/gtest.h>

#include <random>

#include "core/data_set.h"
#include "pupils/eleves.h"
#include "pupils/photo.h"
#include "support/affichage.h"
#include "support/ecole_essai.h"

namespace {

/// Left half of one colour, right half of another.
QImage Image(QRgb gauche, QRgb droite, QSize taille = {190, 220}) {
  QImage image(taille, QImage::Format_RGB32);
  image.fill(gauche);
  for (int y = 0; y < taille.height(); ++y)
    for (int x = taille.width() / 2; x < taille.width(); ++x) image.setPixel(x, y, droite);
  return image;
}

bool Proches(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) < 8 && std::abs(qGreen(a) - qGreen(b)) < 8 &&
         std::abs(qBlue(a) - qBlue(b)) < 8;
}

constexpr QRgb kRouge = qRgb(200, 30, 20);
constexpr QRgb kBleu = qRgb(20, 40, 180);

struct TPhotoEssai : testing::Test {
  TPhotoEssai() { ecole.unEleve().enClasse(QStringLiteral("P1"), {}); }
  QString NombrePhotos() { return base.Valeur(QStringLiteral("SELECT COUNT(*) FROM ELEVE_PHOTO")); }

  TBaseEssai base;
  TEcoleEssai ecole{base};
};

}  // namespace

TEST_F(TPhotoEssai, EnregistrerRelireEffacer) {
  TEleves eleves(*base, 2016);
  TEleve& eleve = eleves[0];
  EXPECT_TRUE(eleve.GetPhoto().isNull());
  eleve.SetPhoto(Image(kRouge, kBleu));
  const QImage& vignette = eleve.GetPhoto();
  EXPECT_EQ(vignette.size(), QSize(95, 110));
  EXPECT_TRUE(Proches(vignette.pixel(20, 55), kRouge));
  EXPECT_TRUE(Proches(vignette.pixel(75, 55), kBleu));

  // Another picture takes the place of the first, in the row and in the thumbnail.
  eleve.SetPhoto(Image(kBleu, kBleu, {31, 17}));
  EXPECT_TRUE(Proches(eleve.GetPhoto().pixel(20, 55), kBleu));
  EXPECT_EQ(NombrePhotos(), u"1");
  TEleves relus(*base, 2016);
  EXPECT_TRUE(Proches(relus[0].GetPhoto().pixel(0, 0), kBleu));

  eleve.DeletePhoto();
  EXPECT_TRUE(eleve.GetPhoto().isNull());
  EXPECT_EQ(NombrePhotos(), u"0");
  EXPECT_THROW(eleve.SetPhoto(QImage()), Exception);
  EXPECT_EQ(NombrePhotos(), u"0");
}

TEST_F(TPhotoEssai, UnePhotoAbimeeEchoueUneFoisPuisManque) {
  const QByteArray bonne = EncoderJpeg(Image(kRouge, kBleu));
  for (const QByteArray& octets : {bonne.first(bonne.size() / 2), bonne.first(20), bonne.sliced(2),
                                   QByteArray(500, 'x'), QByteArray("")}) {
    base.Sql(QStringLiteral("DELETE FROM ELEVE_PHOTO"));
    base.Sql(u"INSERT INTO ELEVE_PHOTO VALUES (1, 1, x'" % QString::fromLatin1(octets.toHex()) % u"')");
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
  int lues = 0;
  for (int i = 0; i < 3000; ++i) {
    QByteArray octets = bonne;
    for (int n = static_cast<int>(hasard() % 6); n >= 0; --n)
      octets[static_cast<qsizetype>(hasard() % static_cast<unsigned>(octets.size()))] =
          static_cast<char>(hasard());
    if (hasard() % 3 == 0)
      octets.truncate(static_cast<qsizetype>(hasard() % static_cast<unsigned>(octets.size())));
    try {
      if (!DecoderJpeg(octets).isNull()) ++lues;
    } catch (const Exception& e) {
      EXPECT_TRUE(e.Message.startsWith(u"La photo")) << e.what();
    }
  }
  EXPECT_GT(lues, 100);
  EXPECT_LT(lues, 2900);
}

TEST(Photo, HorsLigne) {
  TDataSet inscriptions(
      {QStringLiteral("ELEVE_ID"), QStringLiteral("CLASSE"), QStringLiteral("SOUS_CLASSE")});
  TDataSet copie({QStringLiteral("ELEVE_ID"), QStringLiteral("NOM")});
  for (const int id : {1, 2, 3}) copie.Ajouter({id, QStringLiteral("Eleve")});
  TDataSet photos({QStringLiteral("ELEVE_ID"), QStringLiteral("PHOTO")});
  photos.Ajouter({3, QByteArray("rien")});
  photos.Ajouter({2, EncoderJpeg(Image(kRouge, kBleu))});
  TEleves eleves(2016, inscriptions, copie);
  eleves.SourcePhotos = &photos;
  EXPECT_TRUE(eleves[0].GetPhoto().isNull());
  EXPECT_TRUE(Proches(eleves[1].GetPhoto().pixel(20, 55), kRouge));
  EXPECT_THROW(eleves[2].GetPhoto(), Exception);
  EXPECT_THROW(eleves[0].SetPhoto(Image(kRouge, kBleu)), Exception);
}
