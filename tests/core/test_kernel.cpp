#include "core/exceptions.h"
#include "core/index.h"
#include "core/parametres.h"
#include "core/query_internal.h"
#include "core/transaction_commune.h"
#include "support/base_essai.h"
#include "support/refus.h"

namespace {

struct TGroupe : TBaseObject {
  QString Libelle;
};

constexpr TColonne<TGroupe> kColonnes[] = {Colonne::Texte<&TGroupe::Libelle>("LIBELLE")};

/// A small collection with a counter and an index, over a real table.
class TGroupes : public TCollection<TGroupe> {
 public:
  explicit TGroupes(TDataModule1& base, QString compteur = "GROUPE_FRAIS")
      : TCollection(base), compteur_(std::move(compteur)) {
    Charger();
  }
  TGroupe* Par(const QString& libelle) const { return parLibelle_.Premier(libelle); }
  qsizetype Supprimes() const { return static_cast<qsizetype>(Deleted.size()); }

 protected:
  void DefineQuery() override {
    SelectSql = "SELECT * FROM GROUPE_FRAIS ORDER BY GROUPE_FRAIS_ID";
    TableName = "GROUPE_FRAIS";
    KeyField = "GROUPE_FRAIS_ID";
    CounterName = compteur_;
    Colonnes = kColonnes;
  }
  void Indexer(TGroupe& groupe) override { parLibelle_.Suivre(groupe, groupe.Libelle); }
  void Desindexer(TGroupe& groupe) override { parLibelle_.Oublier(groupe); }

 private:
  QString compteur_;
  TIndex<QString, TGroupe> parLibelle_;
};

std::unique_ptr<TGroupe> Groupe(const QString& libelle) {
  auto groupe = std::make_unique<TGroupe>();
  groupe->Libelle = libelle;
  return groupe;
}

QString Libelles(const TGroupes& groupes) {
  QStringList libelles;
  for (const TGroupe& groupe : groupes) libelles += groupe.Libelle;
  return libelles.join(u' ');
}

const QString kRangees = "SELECT GROUPE_FRAIS_ID, LIBELLE FROM GROUPE_FRAIS ORDER BY 1";

}  // namespace

TEST(Kernel, AddSaveRemoveForget) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe("a"));
  TGroupe& b = groupes.Add(Groupe("b"));
  TGroupe& c = groupes.Add(Groupe("c"));
  EXPECT_EQ(groupes.Position, 2);
  groupes.Add(a);
  EXPECT_EQ(a.Status, TStatus::Nouveau) << "a new object stays new: one insert, no update";
  EXPECT_TRUE(groupes.Save());
  EXPECT_EQ(a.Status, TStatus::Inchange);
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"1;a", "2;b", "3;c"}));

  b.Libelle = "B";
  groupes.Add(b);
  EXPECT_EQ(b.Status, TStatus::Modifie);
  EXPECT_EQ(groupes.Par("B"), &b);
  EXPECT_EQ(groupes.Par("b"), nullptr) << "the index follows a changed key";
  EXPECT_EQ(groupes.Remove(a), nullptr);
  EXPECT_EQ(groupes.Position, -1);
  const auto oublie = groupes.Forget(c);
  ASSERT_NE(oublie, nullptr);
  EXPECT_EQ(oublie->Id, -1);
  EXPECT_EQ(groupes.Remove(*oublie), nullptr) << "not in the collection: nothing happens";
  TGroupe& jamais = groupes.Add(Groupe("jamais"));
  EXPECT_NE(groupes.Remove(jamais), nullptr) << "an object without a row is handed back";
  groupes.Save();
  EXPECT_EQ(groupes.Supprimes(), 0);
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"2;B", "3;c"}));
  EXPECT_EQ(base.Valeur("SELECT VALEUR FROM COUNTERS WHERE TABLE_NAME = 'GROUPE_FRAIS'"), u"3");
}

TEST(Kernel, RowsThatDisappearAndCountersThatFail) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe("a"));
  TGroupe& b = groupes.Add(Groupe("b"));
  groupes.Save();
  base.Sql("DELETE FROM GROUPE_FRAIS");
  groupes.Add(a);
  groupes.Remove(b);
  groupes.Save();
  EXPECT_EQ(a.Status, TStatus::Modifie) << "the change stays in memory";
  EXPECT_EQ(groupes.RangeesDisparues(), std::vector<TGroupe*>{&a});
  EXPECT_EQ(groupes.Supprimes(), 1) << "it is looked for again at the next save";
  base.Sql("INSERT INTO GROUPE_FRAIS VALUES (1, 'revenu')");
  groupes.Save();
  EXPECT_EQ(base.Rangees(kRangees), QStringList{"1;a"});

  TGroupes sansCompteur(*base, "INCONNU");
  TGroupe& c = sansCompteur.Add(Groupe("c"));
  base.Dialogues.Attend("Le compteur de table INCONNU n'existe pas !");
  EXPECT_TRUE(sansCompteur.Save());
  EXPECT_EQ(c.Status, TStatus::Nouveau);
  EXPECT_EQ(c.Id, -1);
  TGroupes sansCle(*base, "*");
  sansCle.Add(Groupe("d"));
  sansCle.Save();
  EXPECT_EQ(base.Rangees(kRangees), QStringList{"1;a"});
}

TEST(Kernel, AFailedSaveKeepsWhatItDidNotReach) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe("a"));
  TGroupe& tropLong = groupes.Add(Groupe(QString(300, u'x')));
  TGroupe& c = groupes.Add(Groupe("c"));
  EXPECT_TRUE(Refus<EDistributor>([&] { groupes.Save(); }).startsWith(u"Un texte est trop long"))
      << "300 letters in a column of 250";
  EXPECT_EQ(a.Status, TStatus::Inchange);
  EXPECT_EQ(tropLong.Status, TStatus::Nouveau);
  EXPECT_EQ(c.Status, TStatus::Nouveau);
  tropLong.Libelle = "court";
  groupes.Save();
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"1;a", "3;court", "4;c"})) << "the spent key is not reused";
}

TEST(Kernel, ARefusedSaveIsPutBackAndTheNextRowIsSaved) {
  TBaseEssai base;
  TGroupes groupes(*base);
  for (const char* libelle : {"a", "b", "c", "d"}) groupes.Add(Groupe(libelle));
  groupes.Save();
  base.Sql("INSERT INTO LISTE_FRAIS (LISTEFRAIS_ID, LIBELLE, COUT) VALUES (1, 'x', 0)");
  base.Sql("ALTER TABLE LISTE_FRAIS ADD GROUPE INTEGER REFERENCES GROUPE_FRAIS");
  base.Sql("UPDATE LISTE_FRAIS SET GROUPE = 2");

  TGroupe& b = *groupes.Par("b");
  groupes.Remove(b);  // still used
  for (const char* libelle : {"a", "c"}) {
    TGroupe& groupe = *groupes.Par(libelle);
    groupe.Libelle = "changé";
    groupes.Add(groupe);
  }
  groupes.Add(Groupe("nouveau"));
  EXPECT_THROW(groupes.Save(), EDistributor);
  EXPECT_THROW(groupes.Save(), EDistributor) << "what was refused is refused again";

  base.Sql("DELETE FROM GROUPE_FRAIS WHERE LIBELLE = 'a'");  // by another workstation
  base.Sql("UPDATE GROUPE_FRAIS SET LIBELLE = 'autre' WHERE LIBELLE = 'c'");
  groupes.Remettre();
  EXPECT_EQ(Libelles(groupes), u"b autre d")
      << "in its place, with the values of the rows, without the new one and the one that has gone";
  EXPECT_EQ(groupes.Par("changé"), nullptr);
  EXPECT_EQ(groupes.ParCle(2), &b);
  TGroupe& d = *groupes.ParCle(4);
  d.Libelle = "D";
  groupes.Add(d);
  groupes.Save();
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"2;b", "3;autre", "4;D"}));
}

TEST(Kernel, TwoSavesInOneTransactionHoldTogetherOrNotAtAll) {
  TBaseEssai base;
  TGroupes groupes(*base);
  groupes.Add(Groupe("ensemble 1"));
  {
    TTransactionCommune ensemble(*base);
    groupes.Save();
    groupes.Add(Groupe(QString(300, u'x')));
    EXPECT_THROW(groupes.Save(), EDistributor);
    EXPECT_THROW(TTransactionCommune{*base}, Exception) << "one at a time";
  }
  EXPECT_EQ(base.Rangees(kRangees), QStringList()) << "the first row went with the second";
  TGroupes autres(*base);
  {
    TTransactionCommune ensemble(*base);
    autres.Add(Groupe("a"));
    autres.Save();
    TQueryInternal(*base, "UPDATE GROUPE_FRAIS SET LIBELLE = 'b'").Executer();
    EXPECT_EQ(TGroupes(*base).Count(), 0) << "nothing is seen before it is valid";
    ensemble.Valider();
  }
  EXPECT_EQ(base.Rangees(kRangees), QStringList{"3;b"});
}

TEST(Kernel, Parameters) {
  TBaseEssai base;
  TParametres parametres(*base);
  EXPECT_EQ(parametres.GetParametre(TParam::AnneeScolaire), u"2016")
      << "the padding of the fixed-width column is cut";
  EXPECT_TRUE(parametres.EstVrai(TParam::TypeCodeBarre));
  EXPECT_EQ(parametres.GetParametre(TParam{999}), u"");
  const int avant = parametres.Count();
  parametres.SetParametre(TParam::NomEcole, "École");
  parametres.SetParametre(TParam::NomEcole, "École \"Les Tilleuls\" d'Été €");
  EXPECT_EQ(parametres.Count(), avant + 1);
  parametres.SetParametre(TParam::AnneeScolaire, "2016");
  EXPECT_EQ(parametres.FindParametre(TParam::AnneeScolaire)->Status, TStatus::Modifie);
  parametres.Save();
  EXPECT_EQ(TParametres(*base).GetParametre(TParam::NomEcole), u"École \"Les Tilleuls\" d'Été €");
  base.Sql("DROP TABLE PARAMETRE");
  EXPECT_THROW(TParametres{*base}, EDistributor);
}

TEST(Kernel, ValuesTravelExactly) {
  TBaseEssai base;
  base.Sql("CREATE TABLE ESSAI (ID INTEGER, M DECIMAL(10,4), H TIME, D DATE, V VARCHAR(20), C CHAR(20))");
  const std::int64_t montants[] = {0, 1, -1, 12345, 99999999, -123456789, 7, 33333};
  for (const std::int64_t m : montants)
    for (const double h : {0.0, EncodeTime(7, 30), EncodeTime(23, 59, 59, 999), EncodeTime(0, 0, 8, 640)}) {
      TQueryInternal ecrire(*base, "INSERT INTO ESSAI VALUES (1, :m, :h, :d, :v, :v2)");
      TLigne ligne;
      ligne.Ecrire("M", Currency::Brut(m));
      ligne.EcrireHeure("H", h);
      ligne.EcrireDate("D", EncodeDate(2016, 10, 3));
      ligne.Ecrire("V", "é  ");
      const auto& v = ligne.Valeurs();
      ecrire.Parametre("m", v[0]).Parametre("H", v[1]);
      ecrire.Parametre("d", v[2]).Parametre("v", v[3]);
      EXPECT_EQ(ecrire.Parametre("v2", v[3]).Executer(), 1);
    }
  TCurseur lu(*base, "SELECT * FROM ESSAI");
  for (const std::int64_t m : montants)
    for (const double h : {0.0, EncodeTime(7, 30), EncodeTime(23, 59, 59, 999), EncodeTime(0, 0, 8, 640)}) {
      ASSERT_TRUE(lu.Suivant());
      EXPECT_EQ(lu.Montant("M").EnBrut(), m);
      EXPECT_EQ(lu.Heure("H"), h) << "the very same double";
      EXPECT_EQ(lu.Date("D"), EncodeDate(2016, 10, 3));
      EXPECT_EQ(lu.Texte("V"), u"é  ");
      EXPECT_EQ(lu.Texte("C"), u"é");
    }
  EXPECT_FALSE(lu.Suivant());
  EXPECT_THROW(lu.Texte("ABSENTE"), Exception);
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM ESSAI WHERE H IS NULL"), QString::number(std::size(montants)))
      << "midnight is no hour";
}

TEST(Kernel, TextsAndBlobsTravelWhole) {
  TBaseEssai base;
  base.Sql("CREATE TABLE ESSAI (ID INTEGER, V VARCHAR(250), B BLOB SUB_TYPE BINARY)");
  const QString textes[] = {"", " ", "'; DROP TABLE ESSAI; --", QString(250, u'é'), "\U0001F600 12:30"};
  QByteArray octets;
  for (int i = 0; i < 100000; ++i) octets.append(static_cast<char>(i * 7));
  TQueryInternal ecrire(*base, "INSERT INTO ESSAI VALUES (:I, :V, :B)");
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(ecrire.Parametre("I", i).Parametre("V", textes[i]).Parametre("B", octets).Executer(), 1);
  TCurseur lu(*base, "SELECT * FROM ESSAI ORDER BY ID");
  for (const QString& texte : textes) {
    ASSERT_TRUE(lu.Suivant());
    EXPECT_EQ(lu.Texte("V"), texte);
    EXPECT_EQ(lu.Octets("B"), octets);
  }
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM ESSAI WHERE V IS NULL"), u"0") << "an empty text is a text";
  for (const int longueur : {251, 40000})
    EXPECT_THROW(ecrire.Parametre("V", QString(longueur, u'x')).Executer(), Exception);
  EXPECT_EQ(TQueryInternal(*base, "UPDATE ESSAI SET V = '12:30' WHERE ID > 1 AND V <> ':V'").Executer(), 3);
  EXPECT_EQ(base.Valeur("SELECT COUNT(*) FROM ESSAI WHERE V = '12:30'"), u"3");
}
