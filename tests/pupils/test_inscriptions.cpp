#include <gtest/gtest.h>

#include "core/data_set.h"
#include "pupils/eleves_classes.h"
#include "pupils/implantations.h"
#include "support/ecole_essai.h"

namespace {

const QString kInscriptions = QStringLiteral(
    "SELECT ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION FROM ELEVES_CLASSES "
    "ORDER BY ELEVE_CLASSE_ID");

}  // namespace

TEST(ElevesClasses, UneInscriptionParEleveEtParAnnee) {
  TBaseEssai base;
  TElevesClasses toutes(*base, 0);
  toutes.Inscrire(5, QStringLiteral("P1"), 2016, QStringLiteral("A1"), QStringLiteral("A"));
  toutes.Inscrire(5, QStringLiteral("P2"), 2016, QStringLiteral("B"), QStringLiteral("C"));
  toutes.Inscrire(5, QStringLiteral("P3"), 2017, {}, {});
  toutes.Inscrire(6, QStringLiteral("M1"), 2016, {}, {});
  EXPECT_EQ(base.Rangees(kInscriptions),
            (QStringList{QStringLiteral("5;2016;P2;C;B"), QStringLiteral("5;2017;P3;;"),
                         QStringLiteral("6;2016;M1;;")}));
  // The first row in the order of the database, not the latest year.
  EXPECT_EQ(toutes.ClasseDe(5), u"P2");
  EXPECT_EQ(toutes.SousClasseDe(5), u"C");
  EXPECT_EQ(toutes.ImplantationDe(5), u"B");
  EXPECT_EQ(toutes.ClasseDe(99), QString());

  TElevesClasses annee(*base, 2017);
  EXPECT_EQ(annee.Count(), 1);
  EXPECT_EQ(annee.ClasseDe(5), u"P3");
}

TEST(ElevesClasses, LaListeDUneAnneeDonneSonAnnee) {
  TBaseEssai base;
  const auto rangee = [](int annee) {
    auto inscription = std::make_unique<TEleveClasse>();
    inscription->EleveId = 1;
    inscription->AnneeScolaire = annee;
    return inscription;
  };
  TElevesClasses annee(*base, 2016);
  EXPECT_EQ(annee.AddEleveClasse(rangee(2012)).AnneeScolaire, 2016);
  TElevesClasses toutes(*base, 0);
  EXPECT_EQ(toutes.AddEleveClasse(rangee(2012)).AnneeScolaire, 2012);
}

TEST(ElevesClasses, CopieLocale) {
  TDataSet source({QStringLiteral("ELEVE_ID"), QStringLiteral("CLASSE"), QStringLiteral("SOUS_CLASSE")});
  source.Ajouter({3, QStringLiteral("M1"), QStringLiteral("A")});
  source.Ajouter({4, QStringLiteral("P6"), QStringLiteral("B")});
  source.Suivant();
  TElevesClasses locale(source, 2016);
  ASSERT_EQ(locale.Count(), 2);
  EXPECT_EQ(locale.ClasseDe(3) + locale.SousClasseDe(4), u"M1B");
  EXPECT_EQ(locale.ImplantationDe(3), QString());
  EXPECT_THROW(locale.Save(), EDistributor);
}

TEST(Implantations, UnCodeUnSite) {
  TBaseEssai base;
  TImplantations sites(*base);
  const auto site = [](const QString& code) {
    auto implantation = std::make_unique<TImplantation>();
    implantation->Code = code;
    return implantation;
  };
  EXPECT_EQ(sites.AddImplantation(site({})), nullptr);
  TImplantation* a1 = sites.AddImplantation(site(QStringLiteral("A1")));
  ASSERT_NE(a1, nullptr);
  sites.AddImplantation(site(QStringLiteral("B")));
  try {
    sites.AddImplantation(site(QStringLiteral(" a1 ")));
    ADD_FAILURE() << "deux sites ont le même code";
  } catch (const EImplantationExist& e) {
    EXPECT_EQ(e.Message, u"Un objet avec un code identique existe déjà dans le système");
  }
  EXPECT_EQ(sites.TrouverParCode(QStringLiteral(" a1 ")), a1);
  EXPECT_EQ(sites.TrouverParCode(QStringLiteral("A")), nullptr);

  a1->LibelleCourt = QStringLiteral("Centre");
  a1->Adresse = QStringLiteral("Rue Haute 1");
  a1->CodePostal = QStringLiteral("6000");
  a1->Localite = QStringLiteral("Charleroi");
  a1->Obsolete = true;
  EXPECT_EQ(a1->AdresseComplete(), u"Rue Haute 1 - 6000 Charleroi");
  sites.AddImplantation(*a1);  // its own code is no other's
  sites.Save();
  EXPECT_EQ(
      base.Rangees(QStringLiteral("SELECT CODE_IMPLANTATION, LIBELLE_COURT, OBSOLETE FROM IMPLANTATION")),
      (QStringList{QStringLiteral("A1;Centre;1"), QStringLiteral("B;;-")}));
  base.Sql(QStringLiteral("UPDATE IMPLANTATION SET OBSOLETE = 2 WHERE CODE_IMPLANTATION = 'B'"));
  TImplantations relus(*base);
  EXPECT_TRUE(relus[0].Obsolete);
  EXPECT_FALSE(relus[1].Obsolete);
  EXPECT_EQ(relus[0].Localite, u"Charleroi");
}
