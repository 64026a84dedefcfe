#include "pupils/eleves.h"
#include "support/ecole_essai.h"
#include "support/refus.h"

TEST(Inscriptions, UnEleveInscritDeuxFoisLaMemeAnnee) {
  TBaseEssai base;
  TEcoleEssai ecole(base);
  auto eleve = ecole.unEleve();
  eleve.enClasse(u"P1"_s, u"A"_s).enClasse(u"P2"_s, u"B"_s);
  TEleves eleves(*base, 2016);
  ASSERT_EQ(eleves.Count(), 2);
  EXPECT_EQ(eleves[1].CodeClasse, u"P1") << "both are in the class of the first row";
  EXPECT_EQ(eleves[1].GetAllFrais(), eleves[0].GetAllFrais()) << "what is paid on one shows on the other";
  eleves.AddClasseEleve(eleve.Id, u"P3"_s, 2016, {}, u"C"_s);
  EXPECT_EQ(base.Rangees(u"SELECT CLASSE FROM ELEVES_CLASSES ORDER BY ELEVE_CLASSE_ID"_s),
            (QStringList{"P1", "P3"}))
      << "the last row of the year is the one that changes";
  EXPECT_EQ(eleves.ElevesClasses.ClasseDe(eleve.Id), u"P1");
}

TEST(ElevesClasses, UneInscriptionParEleveEtParAnnee) {
  TBaseEssai base;
  TElevesClasses toutes(*base, 0);
  toutes.Inscrire(5, u"P1"_s, 2016, u"A1"_s, u"A"_s);
  toutes.Inscrire(5, u"P2"_s, 2016, u"B"_s, u"C"_s);
  toutes.Inscrire(5, u"P3"_s, 2017, {}, {});
  EXPECT_EQ(base.Rangees(u"SELECT ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION "
                         u"FROM ELEVES_CLASSES ORDER BY ELEVE_CLASSE_ID"_s),
            (QStringList{u"5;2016;P2;C;B"_s, u"5;2017;P3;;"_s}));
  // The first row in the order of the database, not the latest year.
  EXPECT_EQ(toutes.ClasseDe(5) + toutes.SousClasseDe(5) + toutes.ImplantationDe(5), u"P2CB");
  EXPECT_EQ(toutes.ClasseDe(99), u"");

  TElevesClasses annee(*base, 2017);
  EXPECT_EQ(annee.Count(), 1);
  annee.Inscrire(6, u"M1"_s, 2012, {}, {});  // the list of a year gives its year
  EXPECT_EQ(base.Valeur(u"SELECT ANNEE_SCOLAIRE FROM ELEVES_CLASSES WHERE ELEVE_ID = 6"_s), u"2017");
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
  TImplantation* a1 = sites.AddImplantation(site(u"A1"_s));
  sites.AddImplantation(site(u"B"_s));
  EXPECT_EQ(Refus<EImplantationExist>([&] { sites.AddImplantation(site(u" a1 "_s)); }),
            u"Un objet avec un code identique existe déjà dans le système");
  EXPECT_EQ(sites.TrouverParCode(u" a1 "_s), a1);
  EXPECT_EQ(sites.TrouverParCode(u"A"_s), nullptr);

  a1->Adresse = u"Rue Haute 1"_s;
  a1->CodePostal = u"6000"_s;
  a1->Localite = u"Charleroi"_s;
  a1->Obsolete = true;
  sites.AddImplantation(*a1);  // its own code is no other's
  sites.Save();
  EXPECT_EQ(base.Rangees(u"SELECT CODE_IMPLANTATION, OBSOLETE FROM IMPLANTATION"_s),
            (QStringList{u"A1;1"_s, u"B;-"_s}));
  base.Sql(u"UPDATE IMPLANTATION SET OBSOLETE = 2 WHERE CODE_IMPLANTATION = 'B'"_s);
  TImplantations relus(*base);
  EXPECT_EQ(relus[0].AdresseComplete(), u"Rue Haute 1 - 6000 Charleroi");
  EXPECT_TRUE(relus[0].Obsolete);
  EXPECT_FALSE(relus[1].Obsolete);
}
