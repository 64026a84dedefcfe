#include <QDir>

#include "core/data_set.h"
#include "core/fichiers.h"
#include "pupils/photo.h"
#include "support/controleur_essai.h"
#include "support/refus.h"
#include "support/serveur_firebird.h"
#include "workflows/copie_locale.h"
#include "workflows/transfert_repas.h"

namespace {

/// A tablet beside a school of two pupils of P1 A, codes 11 and 22, whose meals have a tariff on schooldays.
struct TTabletteEssai : TEssaiControleur {
  TTabletteEssai() {
    using namespace Essai;
    ecole.tarif(FamilleRepas, LundiMardiJeudiVendredi, "11:30", "13:30", Forfait, "2", ScanPresence);
    for (int i = 0; i < 2; ++i) ecole.unEleve().enClasse("P1", "A");
    ecole.unEleve().enClasse("M1", "B").avec("FLG_RADIE");
    base->Deconnecter();
    Regler("Serveur", base.FichierDeDonnees());
    base.Reglages.Ecrire(TRacine::Machine, "Serveur", base.FichierDeDonnees());
    Regler("DossierPresences", base.Chemin("presences"));
    Regler("Offline", "1");
  }
  ~TTabletteEssai() override { base->Deconnecter(); }

  void Regler(const QString& nom, const QString& valeur) {
    base.Reglages.Ecrire(TRacine::Utilisateur, nom, valeur);
  }
  QString Reglage(const char* nom) { return base.Reglages.Lire(TRacine::Utilisateur, nom); }
  /// What is done to the school by another workstation.
  void Ecole(const std::function<void()>& geste) {
    base->ServerName = base.FichierDeDonnees();
    base->Connecter();
    geste();
    base->Deconnecter();
  }
  void Photo(int eleve, const QByteArray& octets) {
    Ecole([&] {
      base.Sql(u"INSERT INTO ELEVE_PHOTO (ELEVE_PHOTO_ID, ELEVE_ID, PHOTO) VALUES (%1, %1, x'%2')"_s.arg(
          QString::number(eleve), QString::fromLatin1(octets.toHex())));
    });
  }
  TBilanTransfert Transferer() { return TTransfertRepas(essai.Controleur).Executer(); }
  QStringList Presences() {
    QStringList rangees;
    Ecole([&] {
      rangees = base.Rangees("SELECT ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE FROM PRESENCES ORDER BY 3, 1");
    });
    return rangees;
  }
  QStringList Archives() { return QDir(base.Chemin("presences")).entryList({"Presences-*"}, QDir::Files); }
  void Taps(const QByteArray& lignes) { EcrireFichier(Fichiers().Repas, lignes); }
  TFichiersTablette Fichiers() { return TFichiersTablette(base.Reglages); }
};

QByteArray Jpeg(Qt::GlobalColor couleur, int cote = 60) {
  QImage image(cote, cote, QImage::Format_RGB32);
  image.fill(couleur);
  return EncoderJpeg(image);
}

}  // namespace

TEST_F(TTabletteEssai, FromTheFirstLoadToTheTransferAndBack) {
  Photo(1, Jpeg(Qt::red));
  EXPECT_FALSE(PourquoiSansService(true, base.Reglages).isEmpty());
  EXPECT_TRUE(Transferer().HorsLigne);
  EXPECT_FALSE(base->EstConnecte());
  EXPECT_EQ(PourquoiSansService(true, base.Reglages), QString());
  const TDateTime jour = essai.Horloge.Aujourdhui();
  {
    TServiceHorsLigne service(base.Reglages, base.Dialogues);
    EXPECT_EQ(service.Eleves().AnneeScolaire * 10000 + service.AnneeTravail(), 20162016);
    EXPECT_EQ(service.Annees(), (std::vector<QString>{"M1", "P1"}));
    EXPECT_TRUE(service.Eleves().TrouverParId(3)->FlgRadie);
    TEleve& un = *service.Eleves().TrouverParId(1);
    TEleve& deux = *service.Eleves().TrouverParId(2);
    EXPECT_FALSE(un.GetPhoto().isNull());
    EXPECT_TRUE(deux.GetPhoto().isNull());
    EXPECT_TRUE(service.Toucher(un, jour));
    EXPECT_TRUE(service.Toucher(deux, jour));
    EXPECT_FALSE(service.Toucher(deux, jour));  // a second tap takes the meal back
    EXPECT_TRUE(service.Toucher(deux, jour + 1));
    EXPECT_EQ(service.NombreServis(*un.Classe, jour), 1);
    EXPECT_EQ(service.DernierJour(), jour + 1);
    EXPECT_EQ(LireFichier(Fichiers().Repas), "11;2;20161003;120000000;1\n21;2;20161004;120000000;1\n");
  }
  EcrireFichier(base.Chemin("presences/Presences-3.10.2016-7h5m0s.txt"), "déjà là");
  const QByteArray photos = LireFichier(Fichiers().Photos);
  const TBilanTransfert bilan = Transferer();
  EXPECT_TRUE(bilan.Importe && bilan.Archive && bilan.HorsLigne && !bilan.PhotosCopiees);
  EXPECT_EQ(bilan.Lignes * 100 + bilan.Bons * 10 + bilan.Anomalies, 220);
  EXPECT_EQ(Presences(), (QStringList{"1;2;2016-10-03", "2;2;2016-10-04"}));
  EXPECT_EQ(Archives(),
            (QStringList{"Presences-3.10.2016-7h5m0s (2).txt", "Presences-3.10.2016-7h5m0s.txt"}));
  EXPECT_EQ(LireFichier(Fichiers().Photos), photos);
  const TServiceHorsLigne service(base.Reglages, base.Dialogues);
  EXPECT_TRUE(service.EstTransfere(*service.Eleves().TrouverParId(1), jour));
  EXPECT_EQ(service.NombreEnAttente(), 0);
}

// One comes back while the other is being read; and a soup at the very time of a meal counts in its place.
TEST_F(TTabletteEssai, WhatAnotherTabletHasStoredIsNotStoredAgain) {
  Transferer();
  Taps("11;2;20161003;120000000;1\n21;2;20161003;120000000;1\n11;2;20161004;120000000;1\n");
  TTransfertRepas transfert(essai.Controleur);
  transfert.SurAnalyse = [&](const TBilanTransfert&) {
    for (const char* autre : {"901, 1, 2, '2016-10-03'", "902, 2, 6, '2016-10-03'"})
      base.Sql(
          u"INSERT INTO PRESENCES (PRESENCE_ID, ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE) VALUES "
          u"(%1, '12:00')"_s.arg(autre));
  };
  const TBilanTransfert bilan = transfert.Executer();
  EXPECT_EQ(Presences(), (QStringList{"1;2;2016-10-03", "2;6;2016-10-03", "1;2;2016-10-04"}));
  EXPECT_EQ(bilan.Repas * 10 + bilan.DejaNotes, 11);
  EXPECT_EQ(bilan.Couverts.size(), 1) << bilan.Couverts.join(u'|').toStdString();
  const TServiceHorsLigne service(base.Reglages, base.Dialogues);
  EXPECT_EQ(LireFichier(Fichiers().Transferes), "11;2;20161003;120000000;1\n") << "and not the soup";
  EXPECT_EQ(base.Reglages.Lire(TRacine::Utilisateur, "Tablette"), u"1") << "and no office, if it stops";
}

TEST_F(TTabletteEssai, PicturesAreCopiedWhenTheyChanged) {
  Photo(1, Jpeg(Qt::red));
  Photo(2, Jpeg(Qt::blue).left(300));
  Photo(3, Jpeg(Qt::blue, 2000));
  base.Dialogues.Attend("abîmées");
  Transferer();
  EXPECT_EQ(NombreLignesLocales(Fichiers().Photos), 2);
  EXPECT_LT(QFile(Fichiers().Photos).size(), 8000) << "a large one is reduced";
  Ecole([&] {
    base.Sql(u"UPDATE ELEVE_PHOTO SET PHOTO = x'%1' WHERE ELEVE_ID = 2"_s.arg(
        QString::fromLatin1(Jpeg(Qt::green).toHex())));
  });
  Transferer();
  EXPECT_EQ(NombreLignesLocales(Fichiers().Photos), 2) << "the stamp is as it was";
  Ecole([&] { ecole.parametre(115, "4 octobre"); });
  Transferer();
  EXPECT_EQ(NombreLignesLocales(Fichiers().Photos), 3);
  EXPECT_EQ(Reglage("Photo"), u"4 octobre");
}

TEST_F(TTabletteEssai, RefusalsLeaveTheFileAndStayConnected) {
  const QByteArray taps = "99;2;20161003;120000000;1\n11;2;20161005;120000000;1\n11;2;20170703;120000000;1\n";
  Transferer();
  Taps(taps);
  base.Dialogues.Repond(
      "2 repas ne seront pas enregistrés.\nSouhaitez-vous tout de même continuer la procédure ?", false);
  TTransfertRepas transfert(essai.Controleur);
  EXPECT_FALSE(transfert.Executer().HorsLigne);
  EXPECT_TRUE(base->EstConnecte());
  EXPECT_EQ(Reglage("Offline") + Reglage("Transfert"), u"00");
  EXPECT_EQ(RaisonAnomalie(transfert.Anomalies()[0]), u"Matricule inconnu");
  // What lies outside the year is asked about by itself.
  base.Dialogues.Repond("continuer la procédure", true).Repond("1 repas hors de l'année scolaire", false);
  EXPECT_FALSE(Transferer().Importe);
  EXPECT_EQ(LireFichier(Fichiers().Repas), taps);
  base.Dialogues.Repond("continuer la procédure", true).Repond("03/07/2017", true);
  essai.Horloge.Moment = J("2016-10-05");
  EXPECT_TRUE(Transferer().Importe);
  EXPECT_EQ(Presences(), QStringList("1;2;2017-07-03"));
  const TServiceHorsLigne service(base.Reglages, base.Dialogues);
  EXPECT_FALSE(service.EstTransfere(*service.Eleves().TrouverParId(1), J("2016-10-05"))) << "given up";
}

// With the flat rate of the day each meal brings a second record, which is no meal.
TEST_F(TTabletteEssai, MealsAreCountedOnceAndTheLastOneIsRemembered) {
  Ecole([&] { ecole.parametre(30, "1"); });
  Transferer();
  Taps("11;2;20160930;120000000;1\n99;2;20161003;120000000;1\n21;2;20160701;120000000;1\n");
  base.Dialogues.Repond("1 repas ne sera pas enregistré.", true)
      .Repond("1 repas hors de l'année scolaire", true);
  const TBilanTransfert bilan = Transferer();
  EXPECT_EQ(bilan.Repas * 100 + bilan.Bons * 10 + bilan.Anomalies, 241);
  const TServiceHorsLigne service(base.Reglages, base.Dialogues);
  EXPECT_EQ(service.DernierJour(), J("2016-09-30"));
}

TEST_F(TTabletteEssai, AFolderThatTakesNoFileIsTold) {
  for (const QString& dossier : {base.Fichier("fichier", "x"), QString("/proc")}) {
    Regler("DossierPresences", dossier);
    EXPECT_FALSE(PourquoiSansService(true, base.Reglages).isEmpty());
    EXPECT_TRUE(Refus([&] { Transferer(); }).contains(dossier + u'/')) << dossier.toStdString();
    EXPECT_EQ(Reglage("Transfert"), u"0");
  }
}

TEST(Transfert, TheServerGoesAwayInTheMiddleOfIt) {
  std::optional<TServeurFirebird> serveur(std::in_place);
  TBaseEssai base;
  TControleurEssai essai(base);
  base->Deconnecter();
  base->ServerName = serveur->Nom();
  base->Connecter();
  TEcoleEssai ecole(base);
  ecole.tarif(Essai::FamilleRepas, Essai::TousLesJours, "11:30", "13:30", Essai::Forfait, "2",
              Essai::ScanPresence);
  ecole.parametre(27, "2016");
  ecole.unEleve().enClasse("P1", "A");
  for (const auto& [nom, valeur] :
       {std::pair("DossierPresences", base.Chemin("presences")), std::pair("Serveur", serveur->Nom())})
    base.Reglages.Ecrire(TRacine::Utilisateur, nom, valeur);
  base.Reglages.Ecrire(TRacine::Machine, "Serveur", serveur->Nom());
  const TFichiersTablette fichiers(base.Reglages);
  const QByteArray taps = "11;2;20161003;120000000;1\n";
  EcrireFichier(fichiers.Repas, taps);
  TTransfertRepas transfert(essai.Controleur);
  transfert.SurAnalyse = [&](const TBilanTransfert&) { serveur.reset(); };
  const QString dit = Refus([&] { transfert.Executer(); });
  EXPECT_TRUE(dit.startsWith(u"La liaison avec le serveur de données est coupée")) << dit.toStdString();
  EXPECT_EQ(LireFichier(fichiers.Repas), taps);
  EXPECT_TRUE(Globals.ModeHorsLigne) << "the tablet serves on";
  EXPECT_EQ(base.Reglages.Lire(TRacine::Utilisateur, "Offline"), u"1");
}

TEST_F(TTabletteEssai, ADamagedCopyIsRefusedAndTheTapsStay) {
  Photo(1, Jpeg(Qt::red));
  Transferer();
  Taps("11;2;20161003;120000000;1\n");
  for (const QString& fichier : {Fichiers().Eleves, Fichiers().Classes}) {
    QByteArray octets = LireFichier(fichier);
    const QByteArray bons = octets;
    octets[octets.size() / 2] = static_cast<char>(octets[octets.size() / 2] ^ 1);
    for (const QByteArray& mauvais : {octets, bons.left(bons.size() - 1), QByteArray()}) {
      EcrireFichier(fichier, mauvais);
      EXPECT_THROW(TServiceHorsLigne(base.Reglages, base.Dialogues), Exception);
    }
    EcrireFichier(fichier, bons);
  }
  EcrireFichier(Fichiers().Photos, "abc");
  base.Dialogues.Attend("PHOTOS");
  {
    TServiceHorsLigne service(base.Reglages, base.Dialogues);
    EXPECT_EQ(service.NombreEnAttente(), 1);
  }
  Transferer();
  EXPECT_EQ(NombreLignesLocales(Fichiers().Photos), 1) << "replaced";
  TServiceHorsLigne service(base.Reglages, base.Dialogues);
  QFile::remove(Fichiers().Transferes);
  QDir().mkpath(Fichiers().Transferes + u"/dossier"_s);  // what is only a mark stops nobody
  EXPECT_EQ(TServiceHorsLigne(base.Reglages, base.Dialogues).NombreEnAttente(), 0);
  // A tap that cannot be written is not shown as one.
  QDir().mkpath(Fichiers().Repas + u"/dossier"_s);
  EXPECT_THROW(service.Toucher(*service.Eleves().TrouverParId(2), 42646), Exception);
  EXPECT_FALSE(service.EstServi(*service.Eleves().TrouverParId(2), 42646));
}
