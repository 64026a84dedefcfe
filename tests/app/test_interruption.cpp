// The batch program killed at any point of its work: the database opens again, nothing that was
// stored is lost, and the same command brings it to the same end.
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <filesystem>
#include <random>

#include "support/ecole_essai.h"

namespace {

constexpr int kLimiteMs = 60'000;

/// How a run ended: by itself, or after so many changes of the database file.
struct TRun {
  bool tue = false;
  int changements = 0;
  QString erreurs;
};

/// A database file that nobody holds open between two calls, and the program that works on it.
class TBancDEssai {
 public:
  QString Base() const { return dossier_.filePath(QStringLiteral("essai.fdb")); }

  /// From now on `Reprendre` brings back what the database holds now.
  void Retenir(const QString& base) const {
    QFile::remove(Depart());
    ASSERT_TRUE(QFile::copy(base, Depart()));
  }
  void Reprendre() const {
    QFile::remove(Base());
    ASSERT_TRUE(QFile::copy(Depart(), Base()));
  }

  QString Fichier(const QString& nom, const QByteArray& contenu) const {
    QFile fichier(dossier_.filePath(nom));
    EXPECT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write(contenu);
    return fichier.fileName();
  }

  /// Runs a command to its end, or kills it at the given change of the file (-1: never).
  TRun Lancer(const QStringList& commande, int changementFatal = -1) const {
    QProcess programme;
    programme.setStandardOutputFile(QProcess::nullDevice());
    programme.start(QStringLiteral(CALPENNE_LOT),
                    QStringList{QStringLiteral("--serveur"), Base()} + commande);
    TRun run;
    auto vu = Empreinte();
    const QDeadlineTimer limite(kLimiteMs);
    while (!programme.waitForFinished(1) && !limite.hasExpired()) {
      const auto maintenant = Empreinte();
      if (maintenant == vu) continue;
      vu = maintenant;
      if (++run.changements != changementFatal) continue;
      programme.kill();
      programme.waitForFinished(kLimiteMs);
      break;
    }
    run.tue = programme.exitStatus() == QProcess::CrashExit;
    run.erreurs = QString::fromUtf8(programme.readAllStandardError());
    EXPECT_EQ(QProcess::NotRunning, programme.state());
    EXPECT_TRUE(run.tue || programme.exitCode() == 0) << run.erreurs.toStdString();
    return run;
  }

  /// Every row of a statement on what the file holds.
  QStringList Lire(const QString& sql) const { return TBaseEssai(Base()).Rangees(sql); }

 private:
  QString Depart() const { return dossier_.filePath(QStringLiteral("depart.fdb")); }
  /// Changes at each write that the engine makes.
  std::pair<std::filesystem::file_time_type, std::uintmax_t> Empreinte() const {
    std::error_code absent;
    const std::filesystem::path chemin = std::filesystem::path(Base().toStdString());
    return {std::filesystem::last_write_time(chemin, absent), std::filesystem::file_size(chemin, absent)};
  }

  QTemporaryDir dossier_;
};

/// `lignes` starts with what `debut` holds.
bool Commence(const QStringList& lignes, const QStringList& debut) {
  return debut.size() <= lignes.size() && std::equal(debut.begin(), debut.end(), lignes.begin());
}

/// Points of a run at which to kill it, spread over its length.
std::vector<int> Moments(int changements, int nombre) {
  std::mt19937 hasard(2016);
  std::vector<int> moments;
  for (int i = 0; i < nombre; ++i) {
    std::uniform_int_distribution<int> tirage(1 + changements * i / nombre, changements * (i + 1) / nombre);
    moments.push_back(tirage(hasard));
  }
  return moments;
}

constexpr int kEleves = 100;

QString NomEleve(int n) { return QStringLiteral("NOM%1").arg(n, 3, 10, QLatin1Char('0')); }
QString Matricule(int n) { return QStringLiteral("%1-7").arg(1000 + n); }

/// A register in the first layout, without its unread columns filled.
QByteArray Registre() {
  QStringList lignes{QStringLiteral("Etablissement;Implantation;Matricule")};
  for (int n = 1; n <= kEleves; ++n) {
    QStringList champs(46);
    champs[1] = QStringLiteral("0451");
    champs[2] = Matricule(n);
    champs[3] = NomEleve(n);
    champs[4] = QStringLiteral("Zoé");
    champs[6] = QStringLiteral("20080602");
    champs[14] = champs[44] = QStringLiteral("5537");
    champs[16] = QStringLiteral("2016/10/03");
    champs[17] = QStringLiteral("P%1").arg(1 + n % 6);
    champs[18] = QStringLiteral("A");
    lignes += champs.join(u';');
  }
  return lignes.join(u'\n').toUtf8();
}

}  // namespace

TEST(Interruption, ARegisterImport) {
  const TBancDEssai banc;
  {
    TBaseEssai vide;
    vide->Deconnecter();
    banc.Retenir(vide.FichierDeDonnees());
  }
  const QStringList commande{QStringLiteral("registre"),
                             banc.Fichier(QStringLiteral("registre.csv"), Registre())};
  const QString eleves = QStringLiteral(
      "SELECT MATRICULE, NOM, PRENOM, DATE_NAISSANCE, CODE_POSTAL FROM ELEVES ORDER BY ELEVE_ID");
  const QString classes = QStringLiteral(
      "SELECT E.MATRICULE, C.ANNEE_SCOLAIRE, C.CLASSE, C.SOUS_CLASSE, C.CODE_IMPLANTATION FROM "
      "ELEVES_CLASSES C "
      "JOIN ELEVES E ON E.ELEVE_ID = C.ELEVE_ID ORDER BY C.ELEVE_CLASSE_ID");
  banc.Reprendre();
  const TRun entier = banc.Lancer(commande);
  const QStringList tousEleves = banc.Lire(eleves), toutesClasses = banc.Lire(classes);
  ASSERT_EQ(kEleves, tousEleves.size());
  ASSERT_EQ(kEleves, toutesClasses.size());

  int tues = 0, plusLoin = 0;
  for (const int moment : Moments(entier.changements, 12)) {
    banc.Reprendre();
    const TRun run = banc.Lancer(commande, moment);
    tues += run.tue;
    const QStringList aEleves = banc.Lire(eleves), aClasses = banc.Lire(classes);
    // The last pupil that the program named was stored, class included, before it was named.
    const auto nommes = run.erreurs.split(u'\n', Qt::SkipEmptyParts);
    const int nomme = nommes.isEmpty() ? 0 : nommes.last().section(QStringLiteral("NOM"), 1).toInt();
    EXPECT_GE(aClasses.size(), nomme);
    if (run.tue) plusLoin = qMax(plusLoin, nomme);
    EXPECT_TRUE(Commence(tousEleves, aEleves)) << moment;
    EXPECT_TRUE(Commence(toutesClasses, aClasses)) << moment;
    EXPECT_LE(aEleves.size() - aClasses.size(), 1) << moment;

    EXPECT_FALSE(banc.Lancer(commande).tue);
    EXPECT_EQ(tousEleves, banc.Lire(eleves)) << moment;
    EXPECT_EQ(toutesClasses, banc.Lire(classes)) << moment;
  }
  EXPECT_GE(tues, 8) << "too few runs were killed for the test to say anything";
  EXPECT_GE(plusLoin, kEleves / 2) << "no run was killed late";
}

namespace {

/// A school week of entries and exits; every tenth pupil goes out twice, and the later exit holds.
QByteArray Scans(int premierJour) {
  QStringList lignes;
  for (int jour = premierJour; jour < premierJour + 5; ++jour)
    for (int n = 1; n <= 40; ++n) {
      const QString debut =
          Matricule(n).remove(u'-') + QStringLiteral(";1;201610%1;").arg(jour, 2, 10, QLatin1Char('0'));
      lignes += debut + QStringLiteral("0715%1000;1").arg(n, 2, 10, QLatin1Char('0'));
      lignes += debut + QStringLiteral("1610%1000;2").arg(n, 2, 10, QLatin1Char('0'));
      if (n % 10 == 0) lignes += debut + QStringLiteral("1720%1000;2").arg(n, 2, 10, QLatin1Char('0'));
    }
  return lignes.join(u'\n').toUtf8();
}

}  // namespace

TEST(Interruption, AScannerImport) {
  const TBancDEssai banc;
  {
    using namespace Essai;
    TBaseEssai base;
    TEcoleEssai ecole(base);
    ecole.tarif(Matin, TousLesJours, QStringLiteral("07:00"), QStringLiteral("08:30"), Forfait,
                QStringLiteral("1"), ScanPresence);
    ecole.tarif(Soir, TousLesJours, QStringLiteral("15:30"), QStringLiteral("18:00"), Forfait,
                QStringLiteral("1"), ScanSortie);
    for (int n = 1; n <= 40; ++n)
      ecole.unEleve().matricule(Matricule(n)).enClasse(QStringLiteral("P1"), QStringLiteral("A"));
    base->Deconnecter();
    banc.Retenir(base.FichierDeDonnees());
  }
  const auto importer = [&](int jour) {
    return QStringList{QStringLiteral("presences"), banc.Fichier(QStringLiteral("scans.txt"), Scans(jour))};
  };
  banc.Reprendre();
  banc.Lancer(importer(3));
  banc.Retenir(banc.Base());
  const QString presences = QStringLiteral(
      "SELECT ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE, HEURE_SORTIE FROM PRESENCES ORDER BY "
      "PRESENCE_ID");
  const QStringList semaineDAvant = banc.Lire(presences);
  const TRun entier = banc.Lancer(importer(10));
  const QStringList toutes = banc.Lire(presences);
  ASSERT_EQ(2 * 5 * 40, semaineDAvant.size());
  ASSERT_EQ(2 * semaineDAvant.size(), toutes.size());

  int tues = 0;
  for (const int moment : Moments(entier.changements, 12)) {
    banc.Reprendre();
    tues += banc.Lancer(importer(10), moment).tue;
    const QStringList apres = banc.Lire(presences);
    EXPECT_TRUE(Commence(apres, semaineDAvant)) << moment;
    EXPECT_TRUE(Commence(toutes, apres)) << moment;

    EXPECT_FALSE(banc.Lancer(importer(10)).tue);
    EXPECT_EQ(toutes, banc.Lire(presences)) << moment;
  }
  EXPECT_GE(tues, 8) << "too few runs were killed for the test to say anything";
}

TEST(Interruption, TheCreationOfADatabase) {
  const TBancDEssai banc;
  const QStringList commande{QStringLiteral("creer")};
  const QString tables =
      QStringLiteral("SELECT RDB$RELATION_NAME, RDB$FIELD_NAME FROM RDB$RELATION_FIELDS ORDER BY 1, 2");
  banc.Lancer(commande);
  const QStringList entier = banc.Lire(tables);
  // Until it is complete the file has another name: the program is killed while it does not exist.
  for (int attente : {5, 40, 80, 120, 160, 200}) {
    QFile::remove(banc.Base());
    QProcess programme;
    programme.start(QStringLiteral(CALPENNE_LOT),
                    QStringList{QStringLiteral("--serveur"), banc.Base()} + commande);
    const QString ebauche = banc.Base() + QStringLiteral(".nouveau");
    const QDeadlineTimer limite(kLimiteMs);
    while (QFileInfo(ebauche).size() < attente * 16384 && !QFile::exists(banc.Base()) && !limite.hasExpired())
      programme.waitForFinished(1);
    programme.kill();
    programme.waitForFinished(kLimiteMs);
    EXPECT_FALSE(banc.Lancer(commande).tue);
    EXPECT_EQ(entier, banc.Lire(tables)) << attente;
  }
}
