#include <gtest/gtest.h>

#include "core/exceptions.h"
#include "core/index.h"
#include "core/parametres.h"
#include "core/query_internal.h"
#include "support/base_essai.h"

using namespace Qt::StringLiterals;

namespace {

struct TGroupe : TBaseObject {
  QString Libelle;
};

/// A small collection with a counter and an index, over a real table.
class TGroupes : public TCollection<TGroupe> {
 public:
  explicit TGroupes(TDataModule1& base, QString compteur = u"GROUPE_FRAIS"_s)
      : TCollection(base), compteur_(std::move(compteur)) {
    Charger();
  }
  TGroupe* Par(const QString& libelle) const { return parLibelle_.Premier(libelle); }
  qsizetype Supprimes() const { return static_cast<qsizetype>(Deleted.size()); }

 protected:
  void DefineQuery() override {
    SelectSql = u"SELECT * FROM GROUPE_FRAIS ORDER BY GROUPE_FRAIS_ID"_s;
    TableName = u"GROUPE_FRAIS"_s;
    KeyField = "GROUPE_FRAIS_ID";
    CounterName = compteur_;
  }
  void LoadItems(TCurseur& ligne) override { Nouveau(ligne).Libelle = ligne.Texte("LIBELLE"); }
  void StoreRecord(const TGroupe& groupe, TLigne& ligne) const override {
    ligne.Ecrire("LIBELLE", groupe.Libelle);
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

const QString kRangees = u"SELECT GROUPE_FRAIS_ID, LIBELLE FROM GROUPE_FRAIS ORDER BY 1"_s;

}  // namespace

TEST(Kernel, AddSaveRemoveForget) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe(u"a"_s));
  TGroupe& b = groupes.Add(Groupe(u"b"_s));
  TGroupe& c = groupes.Add(Groupe(u"c"_s));
  EXPECT_EQ(groupes.Position, 2);
  groupes.Add(a);
  EXPECT_EQ(a.Status, TStatus::Nouveau) << "a new object stays new: one insert, no update";
  EXPECT_TRUE(groupes.Save());
  EXPECT_EQ(a.Status, TStatus::Inchange);
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"1;a", "2;b", "3;c"}));

  b.Libelle = u"B"_s;
  groupes.Add(b);
  EXPECT_EQ(b.Status, TStatus::Modifie);
  EXPECT_EQ(groupes.Par(u"B"_s), &b);
  EXPECT_EQ(groupes.Par(u"b"_s), nullptr) << "the index follows a changed key";
  EXPECT_EQ(groupes.Remove(a), nullptr);
  EXPECT_EQ(groupes.Position, -1);
  const auto oublie = groupes.Forget(c);
  ASSERT_NE(oublie, nullptr);
  EXPECT_EQ(oublie->Id, -1);
  EXPECT_EQ(groupes.Remove(*oublie), nullptr) << "not in the collection: nothing happens";
  TGroupe& jamais = groupes.Add(Groupe(u"jamais"_s));
  EXPECT_NE(groupes.Remove(jamais), nullptr) << "an object without a row is handed back";
  groupes.Save();
  EXPECT_EQ(groupes.Supprimes(), 0);
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"2;B", "3;c"}));
  EXPECT_EQ(base.Valeur(u"SELECT VALEUR FROM COUNTERS WHERE TABLE_NAME = 'GROUPE_FRAIS'"_s), u"3");
}

TEST(Kernel, RowsThatDisappearAndCountersThatFail) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe(u"a"_s));
  TGroupe& b = groupes.Add(Groupe(u"b"_s));
  groupes.Save();
  base.Sql(u"DELETE FROM GROUPE_FRAIS"_s);
  groupes.Add(a);
  groupes.Remove(b);
  groupes.Save();
  EXPECT_EQ(a.Status, TStatus::Modifie) << "the change stays in memory";
  EXPECT_EQ(groupes.Supprimes(), 1) << "it is looked for again at the next save";
  base.Sql(u"INSERT INTO GROUPE_FRAIS VALUES (1, 'revenu')"_s);
  groupes.Save();
  EXPECT_EQ(base.Rangees(kRangees), QStringList{"1;a"});

  TGroupes sansCompteur(*base, u"INCONNU"_s);
  TGroupe& c = sansCompteur.Add(Groupe(u"c"_s));
  base.Dialogues.Attend(u"Le compteur de table INCONNU n'existe pas !"_s);
  EXPECT_TRUE(sansCompteur.Save());
  EXPECT_EQ(c.Status, TStatus::Nouveau);
  EXPECT_EQ(c.Id, -1);
  TGroupes sansCle(*base, u"*"_s);
  sansCle.Add(Groupe(u"d"_s));
  sansCle.Save();
  EXPECT_EQ(base.Rangees(kRangees), QStringList{"1;a"});
}

TEST(Kernel, AFailedSaveKeepsWhatItDidNotReach) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe(u"a"_s));
  TGroupe& tropLong = groupes.Add(Groupe(QString(300, u'x')));
  TGroupe& c = groupes.Add(Groupe(u"c"_s));
  try {
    groupes.Save();
    FAIL() << "a text of 300 letters fits no column of 250";
  } catch (const EDistributor& e) {
    EXPECT_TRUE(e.Message.startsWith(u"Un texte est trop long")) << e.what();
  }
  EXPECT_EQ(a.Status, TStatus::Inchange);
  EXPECT_EQ(tropLong.Status, TStatus::Nouveau);
  EXPECT_EQ(c.Status, TStatus::Nouveau);
  tropLong.Libelle = u"court"_s;
  groupes.Save();
  EXPECT_EQ(base.Rangees(kRangees), (QStringList{"1;a", "3;court", "4;c"})) << "the spent key is not reused";
}

TEST(Kernel, IndexKeepsTheOrderOfTheCollection) {
  TBaseEssai base;
  TGroupes groupes(*base);
  TGroupe& a = groupes.Add(Groupe(u"a"_s));
  TGroupe& b = groupes.Add(Groupe(u"x"_s));
  a.Libelle = u"x"_s;
  groupes.Add(a);
  EXPECT_EQ(groupes.Par(u"x"_s), &a) << "the first of the collection, not the first entered";
  groupes.Remove(a);
  EXPECT_EQ(groupes.Par(u"x"_s), &b);
}

TEST(Kernel, Parameters) {
  TBaseEssai base;
  TParametres parametres(*base);
  EXPECT_EQ(parametres.GetParametre(TParam::AnneeScolaire), u"2016")
      << "the padding of the fixed-width column is cut";
  EXPECT_TRUE(parametres.EstVrai(TParam::TypeCodeBarre));
  EXPECT_EQ(parametres.GetParametre(TParam{999}), u"");
  const int avant = parametres.Count();
  parametres.SetParametre(TParam::NomEcole, u"École"_s);
  parametres.SetParametre(TParam::NomEcole, u"École \"Les Tilleuls\" d'Été €"_s);
  EXPECT_EQ(parametres.Count(), avant + 1);
  parametres.SetParametre(TParam::AnneeScolaire, u"2016"_s);
  EXPECT_EQ(parametres.FindParametre(TParam::AnneeScolaire)->Status, TStatus::Modifie);
  parametres.Save();
  EXPECT_EQ(TParametres(*base).GetParametre(TParam::NomEcole), u"École \"Les Tilleuls\" d'Été €");
  base.Sql(u"DROP TABLE PARAMETRE"_s);
  EXPECT_THROW(TParametres{*base}, EDistributor);
}

TEST(Kernel, ValuesTravelExactly) {
  TBaseEssai base;
  base.Sql(u"CREATE TABLE ESSAI (ID INTEGER, M DECIMAL(10,4), H TIME, D DATE, V VARCHAR(20), C CHAR(20))"_s);
  const std::int64_t montants[] = {0, 1, -1, 12345, 99999999, -123456789, 7, 33333};
  for (const std::int64_t m : montants)
    for (const double h : {0.0, EncodeTime(7, 30), EncodeTime(23, 59, 59, 999), EncodeTime(0, 0, 8, 640)}) {
      TQueryInternal ecrire(*base, u"INSERT INTO ESSAI VALUES (1, :m, :h, :d, :v, :v2)"_s);
      TLigne ligne;
      ligne.Ecrire("M", Currency::Brut(m));
      ligne.EcrireHeure("H", h);
      ligne.EcrireDate("D", EncodeDate(2016, 10, 3));
      ligne.Ecrire("V", u"é  "_s);
      const auto& v = ligne.Valeurs();
      ecrire.Parametre(u"m"_s, v[0]).Parametre(u"h"_s, v[1]);
      ecrire.Parametre(u"d"_s, v[2]).Parametre(u"v"_s, v[3]);
      EXPECT_EQ(ecrire.Parametre(u"v2"_s, v[3]).Executer(), 1);
    }
  TCurseur lu(*base, u"SELECT * FROM ESSAI"_s);
  for (const std::int64_t m : montants)
    for (const double h : {0.0, EncodeTime(7, 30), EncodeTime(23, 59, 59, 999), EncodeTime(0, 0, 8, 640)}) {
      ASSERT_TRUE(lu.Suivant());
      EXPECT_EQ(lu.Montant("M").EnBrut(), m);
      EXPECT_EQ(lu.Heure("H"), h) << "the very same double";
      EXPECT_EQ(lu.EstNul("H"), h == 0.0);
      EXPECT_EQ(lu.Date("D"), EncodeDate(2016, 10, 3));
      EXPECT_EQ(lu.Texte("V"), u"é  ");
      EXPECT_EQ(lu.Texte("C"), u"é");
    }
  EXPECT_FALSE(lu.Suivant());
  EXPECT_THROW(lu.Texte("ABSENTE"), Exception);
}
