#include <gtest/gtest.h>

#include "core/data_set.h"
#include "pupils/eleves.h"
#include "support/affichage.h"
#include "support/ecole_essai.h"

namespace {

struct TElevesEssai : testing::Test {
  TBaseEssai base;
  TEcoleEssai ecole{base};

  static QStringList Noms(const TClasse& classe) {
    QStringList noms;
    for (const TEleve* eleve : classe.ListeEleves) noms += eleve->NomComplet();
    return noms;
  }
  static QStringList Libelles(const TEleves& eleves) {
    QStringList libelles;
    for (const auto& classe : eleves.Classes())
      libelles += classe->Libelle() % u'/' % classe->CodeImplantation;
    return libelles;
  }
};

}  // namespace

TEST(Classe, Categories) {
  const std::pair<const char*, TCategorie> cas[] = {
      {"M1", TCategorie::Maternelle},     {"MATERNELLE", TCategorie::Maternelle},
      {"M PROF", TCategorie::Maternelle}, {"PROFESSEURS", TCategorie::Personnel},
      {"PROF", TCategorie::Personnel},    {"AIDE PROF", TCategorie::Personnel},
      {"P1", TCategorie::Primaire},       {"p1", TCategorie::Autre},
      {"1P", TCategorie::Autre},          {"", TCategorie::Autre},
  };
  for (const auto& [nom, categorie] : cas)
    EXPECT_EQ(CategorieDeClasse(QString::fromLatin1(nom)), categorie) << nom;
}

TEST_F(TElevesEssai, LAnneeChargeSesClasses) {
  const QString a = QStringLiteral("A");
  ecole.unEleve()
      .nomme(QStringLiteral("Zoé"), QStringLiteral("B"))
      .enClasse(QStringLiteral("P1"), a, QStringLiteral("1"));
  ecole.unEleve()
      .nomme(QStringLiteral("Abel"), QStringLiteral("C"))
      .enClasse(QStringLiteral("P1"), a, QStringLiteral("1"));
  ecole.unEleve()
      .nomme(QStringLiteral("Abel"), QStringLiteral("C"))
      .enClasse(QStringLiteral("P1"), a, QStringLiteral("1"));
  ecole.unEleve().enClasse(QStringLiteral("P1"), a, QStringLiteral("2"));
  ecole.unEleve().enClasse(QStringLiteral("M1"), {}, QStringLiteral("2"));
  ecole.unEleve();  // not enrolled
  TEcoleEssai(base, 2015).unEleve().enClasse(QStringLiteral("P6"), a);

  TEleves eleves(*base, 2016);
  EXPECT_EQ(eleves.Count(), 5);
  EXPECT_EQ(eleves.NombreEleves(), 5);
  EXPECT_EQ(Libelles(eleves),
            (QStringList{QStringLiteral("M1 /2"), QStringLiteral("P1 A/1"), QStringLiteral("P1 A/2")}));
  EXPECT_EQ(eleves.ClassesParNom().front(), &eleves.GetClasse(1));  // the first site comes first
  EXPECT_EQ(Noms(eleves.GetClasse(1)),
            (QStringList{QStringLiteral("Abel C"), QStringLiteral("Abel C"), QStringLiteral("Zoé B")}));
  EXPECT_EQ(eleves[0].Classe, &eleves.GetClasse(1));
  EXPECT_EQ(eleves[0].LibelleClasse(), u"P1 A");

  TEleves tous(*base, 0);
  EXPECT_EQ(tous.Count(), 7);
  EXPECT_EQ(tous.TrouverParId(6)->LibelleClasse(), u" ");
  EXPECT_EQ(tous.TrouverParId(7)->CodeClasse, u"P6");
  EXPECT_EQ(tous[0].Nom, u"Abel");
}

TEST_F(TElevesEssai, Recherches) {
  ecole.unEleve().matricule(QStringLiteral("12-345")).enClasse(QStringLiteral("P1"), {});
  ecole.unEleve().matricule(QStringLiteral("678")).enClasse(QStringLiteral("P1"), {});
  ecole.unEleve().matricule(QStringLiteral("1-2-345")).enClasse(QStringLiteral("P2"), {});
  TEleves eleves(*base, 2016);
  TEleve* premier = eleves.TrouverParId(1);
  EXPECT_EQ(eleves.TrouverParId(9), nullptr);
  EXPECT_EQ(eleves.TrouverParMatricule(QStringLiteral("12-345")), premier);
  EXPECT_EQ(eleves.TrouverParMatricule(QStringLiteral("12345")), nullptr);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("12345")), premier);  // the first of two
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("12-345")), nullptr);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("678"))->Id, 2);

  // The look-ups follow a changed number, a new pupil and one that has left.
  premier->Matricule = QStringLiteral("9-9");
  eleves.AddEleve(*premier);
  EXPECT_EQ(eleves.TrouverParMatricule(QStringLiteral("12-345")), nullptr);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("12345"))->Id, 3);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("99")), premier);
  auto nouveau = std::make_unique<TEleve>();
  nouveau->Matricule = QStringLiteral("55");
  TEleve& entre = eleves.AddEleve(std::move(nouveau));
  EXPECT_EQ(entre.Eleves, &eleves);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("55")), &entre);
  eleves.Save();
  EXPECT_EQ(entre.Id, 4);
  EXPECT_EQ(eleves.TrouverParId(4), &entre);
  eleves.RemoveEleve(*premier);
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("99")), nullptr);
  EXPECT_EQ(eleves.NombreEleves(), 2);
  eleves.Save();
  EXPECT_EQ(base.Rangees(QStringLiteral("SELECT ELEVE_ID, MATRICULE FROM ELEVES ORDER BY 1")),
            (QStringList{QStringLiteral("2;678"), QStringLiteral("3;1-2-345"), QStringLiteral("4;55")}));
}

TEST_F(TElevesEssai, UneRangeeRevientCommeElleEstPartie) {
  TEleves eleves(*base, 0);
  auto nouveau = std::make_unique<TEleve>();
  nouveau->Nom = QStringLiteral("D'Haese");
  nouveau->DateNaissance = EncodeDate(2009, 3, 10);
  nouveau->CodeClasse = QStringLiteral("P3");
  nouveau->SousClasse = QStringLiteral("B");
  nouveau->CodePostal2 = 6001;
  nouveau->Localite2 = QStringLiteral("Marcinelle");
  nouveau->Flg3eEnfant = nouveau->FlgImpotRespons2 = nouveau->FlgRadie = true;
  eleves.AddEleve(std::move(nouveau));
  eleves.Save();
  EXPECT_EQ(
      base.Rangees(QStringLiteral(
          "SELECT NOM, CLASSE, SOUS_CLASSE, DATE_NAISSANCE, CODE_POSTAL2, FLG_3E_ENFANT, FLG_2E_ENFANT, "
          "FLG_RADIE, FLG_DOMICILIATION, NUM_ATTEST_2015 FROM ELEVES")),
      QStringList{QStringLiteral("D'Haese;P3;B;2009-03-10;6001;1;-;1;-;-")});
  base.Sql(QStringLiteral("UPDATE ELEVES SET FLG_2E_ENFANT = 2, FLG_PARENT_SEPARE = 1"));
  TEleves relus(*base, 0);
  const TEleve& eleve = relus[0];
  EXPECT_EQ(eleve.DateNaissance, EncodeDate(2009, 3, 10));
  EXPECT_EQ(eleve.Localite2, u"Marcinelle");
  EXPECT_TRUE(eleve.Flg3eEnfant && eleve.FlgImpotRespons2 && eleve.FlgRadie && eleve.FlgParentSepare);
  EXPECT_FALSE(eleve.Flg2eEnfant || eleve.FlgFactureDetail || eleve.FlgDomiciliation);
}

TEST_F(TElevesEssai, LeNumeroDAttestationNeChangePlus) {
  ecole.unEleve().enClasse(QStringLiteral("P1"), {});
  ecole.unEleve().enClasse(QStringLiteral("P1"), {});
  TEleves ici(*base, 2016);
  TEleves ailleurs(*base, 2016);
  EXPECT_EQ(ici[0].GetNumAttestation(), 1);
  EXPECT_EQ(ici[0].GetNumAttestation(), 1);
  EXPECT_EQ(ici[1].GetNumAttestation(), 2);
  // Another workstation neither takes the number away nor gives a second one.
  ailleurs[0].Nom = QStringLiteral("Autre");
  ailleurs.AddEleve(ailleurs[0]);
  ailleurs.Save();
  EXPECT_EQ(ailleurs[0].GetNumAttestation(), 1);
  EXPECT_EQ(base.Rangees(QStringLiteral("SELECT NOM, NUM_ATTEST_2015 FROM ELEVES ORDER BY ELEVE_ID")),
            (QStringList{QStringLiteral("Autre;1"), QStringLiteral("Eleve2;2")}));
  EXPECT_EQ(
      base.Valeur(QStringLiteral("SELECT VALEUR FROM COUNTERS WHERE TABLE_NAME='VIRTUAL_ATTESTATION_2015'")),
      u"2");
}

TEST_F(TElevesEssai, LesSitesDesElevesSontCrees) {
  ecole.unEleve().enClasse(QStringLiteral("P1"), {}, QStringLiteral("A1"));
  ecole.unEleve().enClasse(QStringLiteral("P2"), {}, QStringLiteral("a1"));
  ecole.unEleve().enClasse(QStringLiteral("P3"), {}, QStringLiteral(" B "));
  ecole.unEleve().enClasse(QStringLiteral("P4"), {}, QStringLiteral(" "));
  TEleves eleves(*base, 2016);
  EXPECT_FALSE(eleves.PlusieursImplantations());
  eleves.SynchroniserImplantations();
  eleves.SynchroniserImplantations();
  EXPECT_TRUE(eleves.PlusieursImplantations());
  EXPECT_EQ(base.Rangees(QStringLiteral("SELECT CODE_IMPLANTATION FROM IMPLANTATION ORDER BY 1")),
            (QStringList{QStringLiteral("A1"), QStringLiteral("B")}));
  EXPECT_EQ(eleves.TrouverParId(2)->LibelleImplantation(), u"a1");
  eleves.Implantations->TrouverParCode(QStringLiteral("A1"))->LibelleCourt = QStringLiteral("Centre");
  EXPECT_EQ(eleves.TrouverParId(2)->LibelleImplantation(), u"Centre");
  EXPECT_EQ(eleves.TrouverParId(2)->Classe->LibelleImplantation(), u"Centre");
}

TEST_F(TElevesEssai, MouvementsEtDonneurs) {
  ecole.unEleve().enClasse(QStringLiteral("P1"), {});
  const auto mouvement = [&](int extrait, int eleve, int annee, const QString& compte) {
    const QString n = QString::number(extrait);
    base.Sql(
        u"INSERT INTO EXTRAITS (EXTRAIT_ID, DONNEUR_ORDRE, DATE_VIREMENT, MONTANT, NUM_CPT_DONNEUR) VALUES "
        u"(" %
        n % u", 'Payeur " % compte % u"', '2016-10-03', 5, '" % compte % u"')");
    base.Sql(u"INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, EXTRAIT_ID) VALUES (" % n %
             u", " % QString::number(annee) % u", " % QString::number(eleve) % u", " % n % u")");
  };
  mouvement(11, 1, 2016, QStringLiteral("BE1"));
  mouvement(12, 1, 2016, QStringLiteral("BE2"));
  mouvement(13, 1, 2016, QStringLiteral("BE1"));
  mouvement(14, 1, 2015, QStringLiteral("BE3"));
  mouvement(15, 2, 2016, QStringLiteral("BE4"));

  TEleves eleves(*base, 2016);
  QStringList numeros, noms;
  eleves.ComptesDonneurs(1, numeros, noms);
  EXPECT_EQ(numeros, (QStringList{QStringLiteral("BE1"), QStringLiteral("BE2")}));
  EXPECT_EQ(noms, (QStringList{QStringLiteral("Payeur BE1"), QStringLiteral("Payeur BE2")}));

  EXPECT_EQ(eleves.ExtraitVersEleve(15), 2);
  EXPECT_EQ(eleves.ExtraitVersEleve(14), 1);  // whatever the year
  mouvement(16, 3, 2016, QStringLiteral("BE5"));
  EXPECT_EQ(eleves.ExtraitVersEleve(16), 0);
  eleves.ChargerExtraits = true;
  EXPECT_EQ(eleves.ExtraitVersEleve(16), 3);
  EXPECT_EQ(eleves.ExtraitVersEleve(0), 0);
}

TEST_F(TElevesEssai, UnTicketChangeDEleve) {
  base.Sql(QStringLiteral("INSERT INTO TICKET (TICKET_ID, ELEVE_ID, VALEUR) VALUES (1, 7, 2.5)"));
  base.Sql(QStringLiteral("INSERT INTO TICKET (TICKET_ID, ELEVE_ID, VALEUR) VALUES (2, 7, 2.5)"));
  TEleves eleves(*base, 2016);
  eleves.DeplacerTicket(7, 8, 2);
  eleves.DeplacerTicket(9, 8, 1);  // not his
  EXPECT_EQ(base.Rangees(QStringLiteral("SELECT TICKET_ID, ELEVE_ID FROM TICKET ORDER BY 1")),
            (QStringList{QStringLiteral("1;7"), QStringLiteral("2;8")}));
}

TEST_F(TElevesEssai, AnneeDuMois) {
  const TEleves eleves(*base, 2016);
  for (const auto& [mois, annee] : {std::pair{7, 2016}, {8, 2016}, {12, 2016}, {6, 2017}, {1, 2017}})
    EXPECT_EQ(eleves.AnneeDuMois(mois), annee) << mois;
}

TEST(ElevesHorsLigne, CopiesLocales) {
  TDataSet inscriptions(
      {QStringLiteral("ELEVE_ID"), QStringLiteral("CLASSE"), QStringLiteral("SOUS_CLASSE")});
  inscriptions.Ajouter({2, QStringLiteral("P1"), QStringLiteral("A")});
  inscriptions.Ajouter({1, QStringLiteral("M2"), QStringLiteral("B")});
  TDataSet copie({QStringLiteral("ELEVE_ID"), QStringLiteral("MATRICULE"), QStringLiteral("NOM"),
                  QStringLiteral("PRENOM")});
  copie.Ajouter({2, QStringLiteral("1-2"), QStringLiteral("Noël"), QStringLiteral("Léa")});
  copie.Ajouter({1, QStringLiteral("3-4"), QStringLiteral("Adam"), QStringLiteral("Tom")});
  copie.Ajouter({5, QStringLiteral("5-6"), QStringLiteral("Sans"), QStringLiteral("Classe")});
  TEleves eleves(2016, inscriptions, copie);
  ASSERT_EQ(eleves.Count(), 3);
  EXPECT_TRUE(eleves.HorsLigne);
  EXPECT_EQ(eleves.GetClasse(1).Libelle(), u"M2 B");
  EXPECT_EQ(eleves.TrouverParCode(QStringLiteral("12"))->NomComplet(), u"Noël Léa");
  EXPECT_EQ(eleves.TrouverParId(1)->Classe, &eleves.GetClasse(1));
  EXPECT_EQ(eleves.TrouverParId(5)->LibelleClasse(), u" ");
  EXPECT_FALSE(eleves.PlusieursImplantations());
  EXPECT_EQ(eleves[0].GetAllFrais(), nullptr);
  EXPECT_TRUE(eleves[0].GetPhoto().isNull());
  EXPECT_THROW(eleves.ExtraitVersEleve(1), Exception);
  EXPECT_THROW(eleves.Save(), EDistributor);
}
