#include <QDir>
#include <QTemporaryDir>

#include "core/exceptions.h"
#include "workflows/lien_lecteur.h"

using namespace Qt::StringLiterals;

namespace {

/// A device with one file, which it can be made unable to read beyond its first blocks.
struct TAppareil : ILienLecteur {
  bool CeRapiInit() override { return true; }
  void CeRapiUnInit() override {}
  TPoignee CeCreateFile(const QString&) override {
    place_ = 0;
    return 1;
  }
  bool CeReadFile(TPoignee, qint64 maximum, QByteArray& lu) override {
    if (place_ >= Lisible) return false;
    lu = Contenu.mid(place_, maximum);
    place_ += lu.size();
    return true;
  }
  void CeCloseHandle(TPoignee) override { ++Fermes; }
  bool CeDeleteFile(const QString&) override { return true; }

  QByteArray Contenu;
  qsizetype Lisible = 1'000'000;
  int Fermes = 0;

 private:
  qsizetype place_ = 0;
};

}  // namespace

TEST(LienLecteur, ACopyIsWholeOrNotMade) {
  const QTemporaryDir dossier;
  const QString local = dossier.filePath(u"Presences.txt"_s);
  const auto contenu = [&] {
    QFile fichier(local);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
  };
  TAppareil appareil;
  for (const qsizetype taille : {0, 4096, 5000, 20000}) {  // around the block and the buffer
    appareil.Contenu = QByteArray(taille, 'a') + "fin";
    CopierDepuisLecteur(appareil, {}, local);
    EXPECT_EQ(contenu(), appareil.Contenu);
  }
  const QByteArray avant = contenu();

  appareil.Contenu = QByteArray(5000, 'b');
  appareil.Lisible = 4096;
  EXPECT_THROW(CopierDepuisLecteur(appareil, {}, local), Exception) << "the device gives up";
  EXPECT_EQ(contenu(), avant);
  EXPECT_EQ(QDir(dossier.path()).entryList(QDir::Files).size(), 1) << "nothing lies beside it";
  EXPECT_EQ(appareil.Fermes, 5);
}
