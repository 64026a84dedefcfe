// The tablet killed at any point of a transfer, or between its taps: no meal is lost, none is stored twice,
// it starts off-line again, and its pictures are whole.
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <random>

#include "core/data_set.h"
#include "lot_essai.h"
#include "pupils/photo.h"

namespace {

constexpr int kEleves = 30;
constexpr int kLimiteMs = 60'000;

class TTabletteInterrompue : public TProgrammeEssai {
 protected:
  TTabletteInterrompue() {
    using namespace Essai;
    ecole_.tarif(FamilleRepas, TousLesJours, u"11:30"_s, u"13:30"_s, Forfait, u"2"_s, ScanPresence);
    QImage image(80, 90, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString photo = QString::fromLatin1(EncoderJpeg(image).toHex());
    for (int n = 1; n <= kEleves; ++n) {
      ecole_.unEleve().enClasse(u"P1"_s, u"A"_s);
      base_.Sql(
          u"INSERT INTO ELEVE_PHOTO (ELEVE_PHOTO_ID, ELEVE_ID, PHOTO) VALUES (%1, %1, x'%2')"_s.arg(n).arg(
              photo));
    }
    base_->Deconnecter();
  }

  /// Runs to the end, or kills the program at the given change of its files (-1: never). How many were seen.
  int Executer(const QStringList& commande, int fatal = -1) const {
    QProcess programme;
    programme.setStandardOutputFile(QProcess::nullDevice());
    programme.setStandardErrorFile(QProcess::nullDevice());
    programme.start(QStringLiteral(CALPENNE_LOT), Serveur() + commande);
    QString vu = Empreinte();
    int changements = 0;
    const QDeadlineTimer limite(kLimiteMs);
    while (!programme.waitForFinished(1) && !limite.hasExpired()) {
      const QString maintenant = Empreinte();
      if (maintenant == vu) continue;
      vu = maintenant;
      if (++changements != fatal) continue;
      programme.kill();
      programme.waitForFinished(kLimiteMs);
    }
    return changements;
  }
  QString Lire(const QStringList& commande) const {
    QProcess programme;
    Lancer(programme, Serveur() + commande);
    return QString::fromUtf8(programme.readAllStandardOutput());
  }
  /// Changes at each write to the database or to the tablet's folder.
  QString Empreinte() const {
    QString texte;
    QFileInfoList fichiers = QDir(Chemin("presences")).entryInfoList(QDir::Files);
    fichiers.prepend(QFileInfo(base_.FichierDeDonnees()));
    for (const QFileInfo& f : fichiers)
      texte += f.fileName() % QString::number(f.size()) % u' ' %
               QString::number(f.lastModified().toMSecsSinceEpoch()) % u'|';
    return texte;
  }
  /// A tablet that waits off-line, with a picture set that is to be replaced, and a meal for each pupil.
  void Preparer(const QByteArray& repas) {
    QDir(Chemin("presences")).removeRecursively();
    QDir().mkpath(Chemin("presences"));
    Lire({u"reglage"_s, u"DossierPresences"_s, Chemin("presences")});
    for (const QString& reglage : Mots(u"Offline=1 Transfert=0 Photo=ancienne"_s))
      Lire({u"reglage"_s, reglage.section(u'=', 0, 0), reglage.section(u'=', 1)});
    QFile::remove(base_.FichierDeDonnees());
    ASSERT_TRUE(QFile::copy(Chemin("depart.fdb"), base_.FichierDeDonnees()));
    Fichier("presences/presences.txt", repas);
  }
};

}  // namespace

TEST_F(TTabletteInterrompue, ATransfer) {
  QByteArray repas;
  for (int n = 1; n <= kEleves; ++n) repas += QByteArray::number(n) + "1;2;20161003;120000000;1\n";
  ASSERT_TRUE(QFile::copy(base_.FichierDeDonnees(), Chemin("depart.fdb")));
  Preparer(repas);
  const QStringList transfert = Mots(u"tablette transferer"_s);
  const int changements = Executer(transfert);
  ASSERT_GT(changements, 3);
  std::mt19937 hasard(2016);
  for (int essai = 0; essai < 2; ++essai) {
    const int fatal = std::uniform_int_distribution(1, changements)(hasard);
    SCOPED_TRACE(fatal);
    Preparer(repas);
    Executer(transfert, fatal);
    // The next start is off-line, and serves whom it has.
    const bool copie = QFile::exists(Chemin("presences/ELEVES"));
    EXPECT_EQ(Lire(Mots(u"tablette eleves --jour 03/10/2016"_s)).count(u'\n'), copie ? kEleves + 1 : 1);
    EXPECT_EQ(Lire(Mots(u"reglage Offline"_s)), u"1\n");
    const bool photos = QFile::exists(Chemin("presences/PHOTOS"));
    EXPECT_EQ(photos ? TDataSet::LireDe(Chemin("presences/PHOTOS")).NombreLignes() : kEleves, kEleves);
    // Another transfer brings all to the same end.
    Executer(transfert);
    EXPECT_EQ(Lire(Mots(u"reglage Photo"_s)), u"\n");
    EXPECT_FALSE(QFile::exists(Chemin("presences/presences.txt")));
    TBaseEssai lue(base_.FichierDeDonnees());
    EXPECT_EQ(lue.Valeur(u"SELECT COUNT(*) || ' ' || COUNT(DISTINCT ELEVE_ID) FROM PRESENCES"_s),
              u"%1 %1"_s.arg(kEleves));
  }
}

TEST_F(TTabletteInterrompue, Taps) {
  ASSERT_TRUE(QFile::copy(base_.FichierDeDonnees(), Chemin("depart.fdb")));
  Preparer({});
  Executer(Mots(u"tablette transferer"_s));
  QStringList taps = Mots(u"tablette toucher"_s);
  for (int n = 1; n <= kEleves; ++n) taps += QString::number(n);
  for (const int fatal : {2, 9, 17, 30}) {
    QFile::remove(Chemin("presences/presences.txt"));
    QProcess programme;
    programme.start(QStringLiteral(CALPENNE_LOT), taps);
    // What it has said is noted is on the disk.
    QByteArray dit;
    while (dit.count('\n') <= fatal && programme.waitForReadyRead(kLimiteMs))
      dit += programme.readAllStandardOutput();
    programme.kill();
    programme.waitForFinished(kLimiteMs);
    const auto notes = Lire(Mots(u"tablette eleves"_s)).count(u";1\n"_s);
    EXPECT_GE(notes, dit.count('\n') - 1);
  }
}
