// The tablet killed at any point of a transfer, or between its taps: no meal is lost, none is stored twice,
// it starts off-line again, and its pictures are whole.
#include <QDir>
#include <QElapsedTimer>
#include <QSet>
#include <QSettings>
#include <random>

#include "core/data_set.h"
#include "lot_essai.h"
#include "pupils/photo.h"

namespace {

constexpr int kEleves = 30;
constexpr int kMortsTransfert = 40, kMortsRepas = 60;

/// So many times the program is killed; CALPENNE_MORTS asks for more.
int Morts(int moindre) { return qMax(moindre, qEnvironmentVariableIntValue("CALPENNE_MORTS")); }
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

  /// Starts the program; it ends by itself, or is killed after so many milliseconds. How long it ran.
  qint64 Executer(const QStringList& commande, int fatal = kLimiteMs) const {
    QProcess programme;
    programme.setProcessEnvironment(MilieuAPart());
    programme.setStandardOutputFile(QProcess::nullDevice());
    programme.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer duree;
    duree.start();
    programme.start(QStringLiteral(CALPENNE_LOT), Serveur() + commande);
    if (!programme.waitForFinished(fatal)) {
      programme.kill();
      programme.waitForFinished(kLimiteMs);
    }
    return duree.elapsed();
  }
  /// Lines that a command prints.
  qsizetype Lignes(const QStringList& commande) const {
    QProcess programme;
    Lancer(programme, Serveur() + commande);
    return programme.readAllStandardOutput().count('\n');
  }
  static QString Reglage(const char* nom) {
    return QSettings(FichierReglages(), QSettings::NativeFormat).value(QLatin1String(nom)).toString();
  }
  QByteArray Taps() const {
    QFile fichier(Chemin("presences/presences.txt"));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
  }
  /// A tablet that waits off-line, with a picture set that is to be replaced, and these meals.
  void Preparer(const QByteArray& repas) {
    QDir(Chemin("presences")).removeRecursively();
    QDir().mkpath(Chemin("presences"));
    {
      QSettings reglages(FichierReglages(), QSettings::NativeFormat);
      for (const auto& [nom, valeur] :
           {std::pair("DossierPresences", Chemin("presences")), std::pair("Offline", u"1"_s),
            std::pair("Transfert", u"0"_s), std::pair("Photo", u"ancienne"_s)})
        reglages.setValue(QLatin1String(nom), valeur);
    }
    QFile::remove(base_.FichierDeDonnees());
    ASSERT_TRUE(QFile::copy(Chemin("depart.fdb"), base_.FichierDeDonnees()));
    Fichier("presences/presences.txt", repas);
    TDataSet ancien({u"ELEVE_ID"_s, u"PHOTO"_s});
    ancien.Ajouter({1, QByteArray("ancienne")});
    Fichier("presences/PHOTOS", ancien.EnOctets());
  }
  /// Of the picture set, which is whole.
  int Photos() const { return TDataSet::LireDe(Chemin("presences/PHOTOS")).NombreLignes(); }
  QString Presences() const {
    return TBaseEssai(base_.FichierDeDonnees())
        .Valeur(u"SELECT COUNT(*) || ' ' || COUNT(DISTINCT ELEVE_ID) FROM PRESENCES"_s);
  }
  /// Stored once, or still on the tablet: each of the meals.
  void VerifierRepas() const {
    TBaseEssai lue(base_.FichierDeDonnees());
    QStringList gardes = lue.Rangees(u"SELECT ELEVE_ID FROM PRESENCES"_s);
    EXPECT_EQ(QSet(gardes.begin(), gardes.end()).size(), gardes.size()) << "stored twice";
    for (const QByteArray& ligne : Taps().split('\n'))
      if (!ligne.isEmpty()) gardes += QString::fromLatin1(ligne.left(ligne.indexOf(';') - 1));
    EXPECT_EQ(QSet(gardes.begin(), gardes.end()).size(), kEleves) << "lost";
  }
};

}  // namespace

TEST_F(TTabletteInterrompue, ATransfer) {
  QByteArray repas;
  for (int n = 1; n <= kEleves; ++n) repas += QByteArray::number(n) + "1;2;20161003;120000000;1\n";
  ASSERT_TRUE(QFile::copy(base_.FichierDeDonnees(), Chemin("depart.fdb")));
  Preparer(repas);
  const QStringList transfert = Mots(u"tablette transferer"_s);
  Executer(transfert);  // the first one starts slowly
  Preparer(repas);
  const auto duree = static_cast<double>(Executer(transfert));
  std::mt19937 hasard(2016);
  int entames = 0;
  const int morts = Morts(kMortsTransfert);
  for (int essai = 0; essai < morts; ++essai) {
    // Spread over the run, at random within each part of it.
    const double part = essai + std::uniform_real_distribution<>(0.0, 1.0)(hasard);
    const int fatal = 1 + static_cast<int>(duree * part / morts);
    SCOPED_TRACE(fatal);
    Preparer(repas);
    Executer(transfert, fatal);
    VerifierRepas();
    // The next start is off-line, ends an exchange of the copies that had begun, and serves whom it has.
    const qsizetype servis = Lignes(Mots(u"tablette eleves --jour 03/10/2016"_s));
    const bool copie = QFile::exists(Chemin("presences/ELEVES"));
    entames += copie && !Taps().isEmpty();
    EXPECT_EQ(servis, copie ? kEleves + 1 : 1);
    EXPECT_EQ(Reglage("Offline"), u"1");
    const int photos = Photos();
    EXPECT_TRUE(photos == kEleves || (photos == 1 && Reglage("Photo") == u"ancienne")) << photos;
    // Another transfer brings all to the same end.
    Executer(transfert);
    EXPECT_EQ(Reglage("Photo"), QString());
    EXPECT_EQ(Photos(), kEleves);
    EXPECT_FALSE(QFile::exists(Chemin("presences/presences.txt")));
    EXPECT_EQ(Presences(), u"%1 %1"_s.arg(kEleves));
  }
  RecordProperty("KilledBetweenCopyAndArchive", entames);  // how many depends on the machine
}

TEST_F(TTabletteInterrompue, Taps) {
  ASSERT_TRUE(QFile::copy(base_.FichierDeDonnees(), Chemin("depart.fdb")));
  Preparer({});
  Executer(Mots(u"tablette transferer"_s));
  QStringList taps = Mots(u"tablette toucher --jour 03/10/2016"_s);
  QByteArray tout;
  for (int n = 1; n <= kEleves; ++n) {
    taps += QString::number(n);
    tout += QByteArray::number(n) + "1;2;20161003;120000000;1\n";
  }
  std::mt19937 hasard(2016);
  for (int essai = 0; essai < Morts(kMortsRepas); ++essai) {
    const int fatal = std::uniform_int_distribution(1, kEleves)(hasard);
    SCOPED_TRACE(fatal);
    QFile::remove(Chemin("presences/presences.txt"));
    QProcess programme;
    programme.start(QStringLiteral(CALPENNE_LOT), taps);
    QByteArray dit;  // a heading, then a line a tap
    while (dit.count('\n') <= fatal && programme.waitForReadyRead(kLimiteMs))
      dit += programme.readAllStandardOutput();
    programme.kill();
    programme.waitForFinished(kLimiteMs);
    ASSERT_GT(dit.count('\n'), fatal) << "it ended before it was killed";
    const QByteArray notes = Taps();
    EXPECT_TRUE(tout.startsWith(notes) && (notes.isEmpty() || notes.endsWith('\n'))) << notes.constData();
    EXPECT_GE(notes.count('\n'), dit.count('\n') - 1) << "what it has said is noted is on the disk";
  }
}
