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
  const TServeurFirebird autreMotDePasse(u"autrechose"_s);
  const QString refus = MessageDeConnexion(autreMotDePasse.Nom());
  EXPECT_TRUE(refus.startsWith(u"Le serveur de données refuse l'utilisateur du programme."_s))
      << refus.toStdString();
  EXPECT_FALSE(refus.contains(u"corvusnet"_s));
}
