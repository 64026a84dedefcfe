// The presences of a real FTP site, and of a device that is mounted as a folder.
#include "screens/presences_essai.h"
#include "support/serveur_ftp.h"
#include "workflows/lien_lecteur.h"

namespace {

const QByteArray kScans = "11;1;20161003;073000000;1\n";
const QString kErreur = u"L'erreur suivante s'est produite : "_s;

class PresencesDuSite : public TPresencesEssai {
 protected:
  void SetUp() override {
    TPresencesEssai::SetUp();
    Ecran.Contexte.Lecteur = Lecteur.get();
  }
  void Viser(const TServeurFtp& serveur, const QString& motDePasse = u"secret"_s) {
    Globals.Parametres->SetParametre(TParam::ServeurFTP, serveur.Hote());
    Globals.Parametres->SetParametre(TParam::MdpFTP, motDePasse);
  }
  QString Archives(const QString& dossier = {}) const {
    return QDir(Base.Chemin(u"archives/"_s + dossier)).entryList(QDir::Files).join(u' ');
  }

  std::unique_ptr<ILienLecteur> Lecteur = LienDuPoste(Base.Reglages);
};

}  // namespace

TEST_F(PresencesDuSite, TwoFilesInTurn) {
  QDir().mkpath(Base.Chemin(u"archives"_s));
  Base.Fichier(u"archives/presences.txt"_s, "tablette");
  const TServeurFtp serveur;
  serveur.Poser(u"presences.txt"_s, kScans);
  serveur.Poser(u"z.TXT"_s, kScans);
  serveur.Poser(u"z.csv"_s, kScans);
  Viser(serveur);
  Form.btnImportFTPClick();
  EXPECT_EQ(Form.Fichier(), u"presences.txt · 1 fichier.");
  Form.btnImportFTPClick();  // connected already: nothing
  EXPECT_EQ(serveur.Fichiers(), u"presences.txt z.TXT z.csv") << "nothing goes before the save";
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_EQ(serveur.Fichiers(), u"z.TXT z.csv");
  EXPECT_EQ(Archives(), u"presences (2).txt presences.txt");
  EXPECT_EQ(Archives(u"Traitement"_s), QString());
  Form.btnImportFTPClick();
  EXPECT_EQ(Form.Fichier(), u"z.TXT · 0 fichier.");
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  Base.Dialogues.Attend(u"Toutes les informations ont été transférées."_s);
  Form.btnImportFTPClick();
  EXPECT_FALSE(Form.Etape2Active());
  EXPECT_EQ(Stockees(), u"1") << "the same scan twice";
}

TEST_F(PresencesDuSite, WhatGoesWrong) {
  const auto essayer = [&](const QString& mode, const QString& message,
                           const QString& motDePasse = u"secret"_s) {
    SCOPED_TRACE(mode.toStdString());
    const TServeurFtp serveur(mode);
    serveur.Poser(u"a.txt"_s, kScans.repeated(10));
    Viser(serveur, motDePasse);
    Base.Dialogues.Attend(message);
    Form.btnImportFTPClick();
    EXPECT_FALSE(Base.Dialogues.Dits.join(u'|').contains(u"secret"));
    EXPECT_FALSE(Form.Etape2Active());
    EXPECT_EQ(serveur.Fichiers(), mode == u"gone" ? QString() : u"a.txt"_s);
    EXPECT_EQ(Archives(u"Traitement"_s), QString());
  };
  essayer({}, kErreur + u"le site refuse l'utilisateur ou le mot de passe."_s, u"faux secret"_s);
  essayer(u"gone"_s, u"Une erreur s'est produite pendant l'ouverture du fichier"_s);
  essayer(u"cut"_s, kErreur + u"le transfert a été coupé."_s);
  Globals.Parametres->SetParametre(TParam::ServeurFTP, {});
  Base.Dialogues.Attend(kErreur + u"l'adresse du site n'est pas connue"_s);
  Form.btnImportFTPClick();
}

TEST_F(PresencesDuSite, TheFileOnTheSiteAfterTheSave) {
  for (const QString& mode : {u"closes"_s, u"keeps"_s, u"paths"_s}) {
    SCOPED_TRACE(mode.toStdString());
    const TServeurFtp serveur(mode);
    serveur.Poser(u"z.txt"_s, kScans);
    Viser(serveur);
    if (mode == u"paths") Base.Dialogues.Attend(u"5 fichiers du site ont un nom"_s);
    Form.btnImportFTPClick();
    EXPECT_EQ(Form.Fichier(), u"z.txt · 0 fichier.");
    Base.Dialogues.Attend(kMemorisees);
    if (mode == u"keeps") Base.Dialogues.Attend(kErreur + u"le site refuse d'effacer le fichier."_s);
    Form.btnEtape2Click();
    EXPECT_EQ(serveur.Fichiers(), mode == u"keeps" ? u"z.txt"_s : QString());
  }
  EXPECT_EQ(Archives(), u"z (2).txt z (3).txt z.txt");
}

TEST_F(PresencesDuSite, TheFolderOfTheDevice) {
  const QString absent =
      u"Veuillez vérifier si votre lecteur de code à barre est allumé et connecté à votre ordinateur."_s;
  const QString premier = u"appareil/StorageCard/Presences/"_s, second = u"appareil/Backup/Presences/"_s;
  Ecran.Contexte.Lecteur = nullptr;  // a machine that knows no scanner
  Base.Dialogues.Attend(absent).Attend(absent);
  Form.btnImportScannerClick();
  Ecran.Contexte.Lecteur = Lecteur.get();
  Base.Reglages.Ecrire(TRacine::Utilisateur, u"Lecteur"_s, Base.Chemin(u"appareil"_s));
  Form.btnImportScannerClick();
  for (const QString& dossier : {premier, second}) QDir().mkpath(Base.Chemin(dossier));
  Base.Dialogues.Attend(kErreur + u"Unable to open"_s).Attend(kErreur + u"Unable to open"_s);
  Base.Dialogues.Attend(u"Aucune donnée à récupérer"_s);
  Form.btnImportScannerClick();
  const QString fichier = Base.Fichier(second + u"Presences.txt"_s, "11;x\n");
  Base.Dialogues.Attend(kErreur + u"Unable to open"_s).Attend(kErreur + u"Unable to open"_s);
  EXPECT_THROW(Form.btnImportScannerClick(), EConvertError);
  EXPECT_TRUE(QFile::exists(fichier)) << "a malformed file stays on the device";
  Base.Fichier(second + u"Presences.txt"_s, kScans + QByteArray(5000, ' '));
  Form.btnImportScannerClick();
  const QString copie = Base.Chemin(u"Presences.txt"_s);
  EXPECT_TRUE(QFile::exists(fichier) && QFile::exists(copie));
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_FALSE(QFile::exists(fichier) || QFile::exists(copie));
  EXPECT_EQ(Archives(), u"Presences-3.10.2016-7h5m0s.txt");
  EXPECT_EQ(Stockees(), u"1");
  for (const QString& dossier : {premier, second}) Base.Fichier(dossier + u"Presences.txt"_s, kScans);
  Form.btnImportScannerClick();
  Base.Dialogues.Attend(kMemorisees);
  Form.btnEtape2Click();
  EXPECT_FALSE(QFile::exists(fichier)) << "the other file of the device goes too";

  const QString muet = Base.Chemin(premier + u"Presences.txt"_s);
  ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, muet));  // it opens, and gives nothing
  Base.Dialogues.Attend(kErreur + u"Unable to read data"_s).Attend(kErreur + u"Unable to open"_s);
  Base.Dialogues.Attend(u"Aucune donnée à récupérer"_s);
  Form.btnImportScannerClick();
  EXPECT_TRUE(QFileInfo(muet).isSymLink()) << "it stays where it was";
  QFile::remove(muet);
  Base.Fichier(second + u"Presences.txt"_s, kScans);
  Base.Dialogues.Attend(kErreur + u"Unable to open"_s);
  Form.btnImportScannerClick();
  QFile::remove(fichier);
  QDir().mkpath(fichier + u"/plein"_s);  // what no deletion of a file takes away
  Base.Dialogues.Attend(kMemorisees).Attend(kErreur + u"Unable to delete the remote file"_s);
  Form.btnEtape2Click();
  EXPECT_TRUE(QFileInfo::exists(fichier));
  EXPECT_EQ(Stockees(), u"1") << "stored, and dropped again at the next import";
}
