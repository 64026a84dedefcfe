#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "core/fichiers.h"

using namespace Qt::StringLiterals;

namespace {

class TFichiersEssai : public testing::Test {
 protected:
  QString Chemin(const char* nom) const { return dossier_.filePath(QString::fromLatin1(nom)); }
  static QByteArray Lu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("(missing)");
  }

  QTemporaryDir dossier_;
};

}  // namespace

TEST_F(TFichiersEssai, ReplacedWholeOrNotAtAll) {
  EcrireFichier(Chemin("a.pdf"), "ancien");
  EcrireFichier(Chemin("a.pdf"), "nouveau");
  EXPECT_EQ(Lu(Chemin("a.pdf")), "nouveau");

  rlimit avant{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &avant), 0);
  const auto gestionnaire = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit petit{100, avant.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &petit), 0);
  EXPECT_THROW(EcrireFichier(Chemin("a.pdf"), QByteArray(5000, 'x')), Exception) << "no room for it";
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, gestionnaire);
  EXPECT_EQ(Lu(Chemin("a.pdf")), "nouveau");
  EXPECT_EQ(QDir(dossier_.path()).entryList(QDir::Files).size(), 1) << "nothing lies beside it";

  for (const QString& ailleurs : {dossier_.path(), Chemin("absent/a.pdf"), QString()})
    EXPECT_THROW(EcrireFichier(ailleurs, "x"), Exception) << ailleurs.toStdString();
}

TEST_F(TFichiersEssai, APipeIsWrittenThroughAndStays) {
  const QByteArray tube = Chemin("tube").toLocal8Bit();
  ASSERT_EQ(mkfifo(tube.constData(), 0600), 0);
  const int lecteur = open(tube.constData(), O_RDWR | O_NONBLOCK);
  ASSERT_GE(lecteur, 0);
  EcrireFichier(Chemin("tube"), "contenu");
  char recu[16] = {};
  EXPECT_EQ(read(lecteur, recu, sizeof recu), 7);
  EXPECT_STREQ(recu, "contenu");
  close(lecteur);
  struct stat etat {};
  ASSERT_EQ(stat(tube.constData(), &etat), 0);
  EXPECT_TRUE(S_ISFIFO(etat.st_mode));
}

TEST_F(TFichiersEssai, FilesThatBelongTogetherAreReplacedTogether) {
  const auto lus = [this]() -> QByteArray { return Lu(Chemin("A")) + ' ' + Lu(Chemin("B")); };
  EcrireFichiers(dossier_.path(), {{u"A"_s, "a1"}, {u"B"_s, "b1"}});
  EcrireFichier(Chemin("A.nouveau"), "a2");
  AcheverFichiers(dossier_.path());
  EXPECT_EQ(lus(), "a1 b1") << "cut off before both were written";
  EcrireFichiers(dossier_.path(), {{u"A"_s, "a3"}, {u"B"_s, "b3"}});
  EXPECT_EQ(lus(), "a3 b3");
  EcrireFichier(Chemin("B.nouveau"), "b4");
  EcrireFichier(Chemin("remplacement.txt"), "A\nB\n");  // cut off between the two
  AcheverFichiers(dossier_.path());
  EXPECT_EQ(lus(), "a3 b4");
  EXPECT_EQ(QDir(dossier_.path()).entryList(QDir::Files), (QStringList{u"A"_s, u"B"_s}));
}
