// What several workstations do at once, against a real server.

#include <algorithm>
#include <list>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "core/parametres.h"
#include "core/query_internal.h"
#include "support/dialogues_scenario.h"
#include "support/refus.h"
#include "support/serveur_firebird.h"

namespace {

/// One workstation: a connection and what it has loaded.
struct TPoste {
  explicit TPoste(const QString& serveur) {
    base.ServerName = serveur;
    base.Connecter();
    parametres = std::make_unique<TParametres>(base);
  }
  TDialoguesScenario dialogues;
  TReglagesPoste reglages;
  TDataModule1 base{dialogues, reglages};
  std::unique_ptr<TParametres> parametres;
};

/// The value that a workstation loading now would see; "" without a row.
QString Relu(TDataModule1& base, int id) { return TParametres(base).GetParametre(TParam{id}); }

QString MessageDeConnexion(const QString& serveur) {
  return Refus([&] { TPoste poste(serveur); });
}

}  // namespace

TEST(Serveur, EightProcessesTakeDistinctKeysWithoutAGap) {
  constexpr int kPostes = 8, kClesParPoste = 250;
  const TServeurFirebird serveur;
  TPoste temoin(serveur.Nom());
  const int avant = temoin.base.GetNextId(u"ELEVES"_s);
  ASSERT_GT(avant, 0);

  std::list<QProcess> postes(kPostes);
  for (QProcess& poste : postes)
    poste.start(QStringLiteral(PRENEUR_DE_CLES),
                {serveur.Nom(), u"ELEVES"_s, QString::number(kClesParPoste)});
  for (QProcess& poste : postes) {
    while (!poste.canReadLine())
      ASSERT_TRUE(poste.waitForReadyRead()) << poste.readAllStandardError().toStdString();
    ASSERT_EQ("prêt\n", poste.readLine());
  }
  for (QProcess& poste : postes) poste.write("\n");

  std::vector<int> cles;
  for (QProcess& poste : postes) {
    ASSERT_TRUE(poste.waitForFinished(120'000));
    EXPECT_EQ(0, poste.exitCode()) << poste.readAllStandardError().toStdString();
    for (const QByteArray& ligne : poste.readAllStandardOutput().trimmed().split('\n'))
      cles.push_back(ligne.toInt());
  }
  std::sort(cles.begin(), cles.end());
  ASSERT_EQ(kPostes * kClesParPoste, static_cast<int>(cles.size()));
  for (std::size_t i = 0; i < cles.size(); ++i) ASSERT_EQ(avant + 1 + static_cast<int>(i), cles[i]);
  EXPECT_EQ(cles.back() + 1, temoin.base.GetNextId(u"ELEVES"_s));
}

TEST(Serveur, TheLastWriterWins) {
  const TServeurFirebird serveur;
  TPoste a(serveur.Nom());
  a.parametres->SetParametre(TParam{901}, u"départ"_s);
  a.parametres->Save();
  TPoste b(serveur.Nom());
  ASSERT_EQ(u"départ"_s, b.parametres->GetParametre(TParam{901})) << "an insertion is seen by the next load";

  a.parametres->SetParametre(TParam{901}, u"de A"_s);
  b.parametres->SetParametre(TParam{901}, u"de B"_s);
  b.parametres->Save();
  a.parametres->Save();
  EXPECT_EQ(u"de A"_s, Relu(b.base, 901));
  EXPECT_EQ(u"de B"_s, b.parametres->GetParametre(TParam{901}))
      << "a loaded collection does not change by itself";

  b.parametres->SetParametre(TParam{901}, u"de B encore"_s);
  b.parametres->Save();
  EXPECT_EQ(u"de B encore"_s, Relu(a.base, 901));
}

TEST(Serveur, ARowThatHasGoneStaysModifiedAndHarmsNothing) {
  const TServeurFirebird serveur;
  TPoste a(serveur.Nom());
  for (int id : {901, 902}) a.parametres->SetParametre(TParam{id}, u"départ"_s);
  a.parametres->Save();
  TPoste b(serveur.Nom());

  a.parametres->Remove(*a.parametres->FindParametre(TParam{901}));
  a.parametres->Save();
  b.parametres->SetParametre(TParam{901}, u"perdu"_s);
  b.parametres->SetParametre(TParam{902}, u"gardé"_s);
  EXPECT_TRUE(b.parametres->Save());

  EXPECT_EQ(TStatus::Modifie, b.parametres->FindParametre(TParam{901})->Status);
  EXPECT_EQ(TStatus::Inchange, b.parametres->FindParametre(TParam{902})->Status);
  EXPECT_EQ(nullptr, TParametres(a.base).FindParametre(TParam{901}));
  EXPECT_EQ(u"gardé"_s, Relu(a.base, 902)) << "the save went on behind the missing row";

  EXPECT_EQ(b.parametres->RangeesDisparues(),
            std::vector<TParametre*>{b.parametres->FindParametre(TParam{901})})
      << "and can be told";
  b.parametres->Remove(*b.parametres->FindParametre(TParam{902}));
  a.parametres = std::make_unique<TParametres>(a.base);
  a.parametres->SetParametre(TParam{902}, u"de A"_s);
  a.parametres->Save();
  b.parametres->Remettre();
  EXPECT_EQ(nullptr, b.parametres->FindParametre(TParam{901})) << "what has gone leaves memory too";
  EXPECT_EQ(u"de A"_s, b.parametres->GetParametre(TParam{902})) << "what comes back is what the table holds";

  a.parametres->Remove(*a.parametres->FindParametre(TParam{902}));
  a.parametres->Save();
  b.parametres->Remove(*b.parametres->FindParametre(TParam{902}));
  EXPECT_TRUE(b.parametres->Save()) << "deleting a row that the other one has deleted";
}

TEST(Serveur, AReadingThatStaysPreparedSeesTheOthersAndKeepsNobodyWaiting) {
  const TServeurFirebird serveur;
  TPoste a(serveur.Nom()), b(serveur.Nom());
  const auto lu = [&](int id) {
    TCurseur ligne(a.base, u"SELECT * FROM PARAMETRE WHERE PARAMETRE_ID = ?"_s, {id});
    return ligne.Suivant() ? ligne.Texte("VALEUR") : u"rien"_s;
  };
  EXPECT_EQ(u"rien"_s, lu(901));
  for (const QString& valeur : {u"un"_s, u"deux"_s}) {
    b.parametres->SetParametre(TParam{901}, valeur);
    b.parametres->Save();
    EXPECT_EQ(valeur, lu(901));
  }
  {  // one reading inside another of the same text
    const QString sql = u"SELECT * FROM PARAMETRE WHERE PARAMETRE_ID = ?"_s;
    TCurseur dehors(a.base, sql, {901});
    EXPECT_EQ(u"rien"_s, lu(902));
    ASSERT_TRUE(dehors.Suivant());
    EXPECT_EQ(u"deux"_s, dehors.Texte("VALEUR"));
  }
  TQueryInternal(b.base, u"ALTER TABLE PARAMETRE ADD ESSAI INTEGER DEFAULT 7 NOT NULL"_s).Executer();
  EXPECT_EQ(u"deux"_s, lu(901)) << "the upgrade of another workstation was not held up";
  TQueryInternal(b.base, u"ALTER TABLE PARAMETRE DROP ESSAI"_s).Executer();
  EXPECT_EQ(u"deux"_s, lu(901));

  EXPECT_THROW(TCurseur(a.base, u"SELECT * FROM ABSENTE WHERE CLE = ?"_s, {1}), Exception);
  EXPECT_EQ(u"deux"_s, lu(901)) << "a failure is forgotten";
}

TEST(Serveur, AFailedConnectionIsToldInFrench) {
  const QString personne = u"127.0.0.1/%1"_s.arg(PortLibre());
  EXPECT_TRUE(MessageDeConnexion(personne).startsWith(u"Le serveur de données ne répond pas."_s))
      << MessageDeConnexion(personne).toStdString();

  const TServeurFirebird autreMotDePasse(u"autrechose"_s);
  const QString refus = MessageDeConnexion(autreMotDePasse.Nom());
  EXPECT_TRUE(refus.startsWith(u"Le serveur de données refuse l'utilisateur du programme."_s))
      << refus.toStdString();
  EXPECT_FALSE(refus.contains(u"corvusnet"_s));
}

TEST(Serveur, AServerThatDiesIsToldAndLosesNoStatus) {
  auto serveur = std::make_unique<TServeurFirebird>();
  TPoste poste(serveur->Nom());
  poste.parametres->SetParametre(TParam{901}, u"jamais écrit"_s);
  serveur.reset();
  const QString dit = Refus<EDistributor>([&] { poste.parametres->Save(); });
  EXPECT_TRUE(dit.startsWith(u"La liaison avec le serveur de données est coupée."_s)) << dit.toStdString();
  EXPECT_EQ(TStatus::Nouveau, poste.parametres->FindParametre(TParam{901})->Status);
}
