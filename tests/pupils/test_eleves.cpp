#include "core/data_set.h"
#include "pupils/eleves.h"
#include "support/ecole_essai.h"

using TElevesEssai = TEssaiEcole;

TEST(Classe, Categories) {
  const std::pair<const char*, int> cas[] = {
      {"M1", 1},        {"MATERNELLE", 1}, {"M PROF", 1}, {"PROFESSEURS", 3}, {"PROF", 3},
      {"AIDE PROF", 3}, {"P1", 2},         {"p1", 0},     {"1P", 0},          {"", 0}};
  for (const auto& [nom, categorie] : cas)
    EXPECT_EQ(CategorieDeClasse(nom), static_cast<TCategorie>(categorie)) << nom;
}

TEST_F(TElevesEssai, LAnneeChargeSesClasses) {
  ecole.unEleve().nomme("Zoé", "B").enClasse("P1", "A", "1");
  for (int i = 0; i < 2; ++i) ecole.unEleve().nomme("Abel", "C").enClasse("P1", "A", "1");
  ecole.unEleve().enClasse("P1", "A", "2");
  ecole.unEleve().enClasse("M1", {}, "2");
  ecole.unEleve();  // not enrolled
  TEcoleEssai(base, 2015).unEleve().enClasse("P6", "A");
  ecole.unEleve().nomme("Émile", "D").enClasse("P1", "A", "1");

  TEleves eleves(*base, 2016);
  EXPECT_EQ(eleves.NombreEleves(), 6);
  QStringList contenu;
  for (const auto& classe : eleves.Classes()) {
    contenu += classe->Libelle() % u'/' % classe->CodeImplantation;
    for (const TEleve* eleve : classe->ListeEleves) contenu += eleve->NomComplet();
  }
  EXPECT_EQ(contenu.join(u';'),
            u"M1 /2;Eleve5 Prenom5;P1 A/1;Abel C;Abel C;Émile D;Zoé B;P1 A/2;Eleve4 Prenom4");
  EXPECT_EQ(eleves.ClassesParNom().front(), &eleves.GetClasse(1));  // the first site comes first
  EXPECT_EQ(eleves[0].Classe, &eleves.GetClasse(1));

  TEleves tous(*base, 0);
  EXPECT_EQ(tous.Count(), 8);
  EXPECT_EQ(tous.TrouverParId(6)->LibelleClasse(), u" ");
  EXPECT_EQ(tous.TrouverParId(7)->CodeClasse, u"P6");
  EXPECT_EQ(tous[0].Nom, u"Abel");
}

TEST_F(TElevesEssai, LesRecherchesSuiventLesEleves) {
  for (const char* matricule : {"12-345", "678", "1-2-345"})
    ecole.unEleve().matricule(matricule).enClasse("P1", {});
  TEleves eleves(*base, 2016);
  TEleve* premier = eleves.TrouverParId(1);
  EXPECT_EQ(eleves.TrouverParId(9), nullptr);
  EXPECT_EQ(eleves.TrouverParMatricule("12-345"), premier);
  EXPECT_EQ(eleves.TrouverParMatricule("12345"), nullptr);
  EXPECT_EQ(eleves.TrouverParCode("12345"), premier);  // the first of two
  EXPECT_EQ(eleves.TrouverParCode("12-345"), nullptr);

  premier->Matricule = "9-9";
  eleves.AddEleve(*premier);
  EXPECT_EQ(eleves.TrouverParMatricule("12-345"), nullptr);
  EXPECT_EQ(eleves.TrouverParCode("12345")->Id, 3);
  EXPECT_EQ(eleves.TrouverParCode("99"), premier);
  TEleve& nouveau = eleves.AddEleve(std::make_unique<TEleve>());
  EXPECT_EQ(nouveau.Eleves, &eleves);
  eleves.Save();
  EXPECT_EQ(eleves.TrouverParId(4), &nouveau);
  eleves.RemoveEleve(*premier);
  EXPECT_EQ(eleves.TrouverParCode("99"), nullptr);
  EXPECT_EQ(eleves.NombreEleves(), 2);
}

TEST_F(TElevesEssai, UneRangeeRevientCommeElleEstPartie) {
  TEleves eleves(*base, 0);
  TEleve& parti = eleves.AddEleve(std::make_unique<TEleve>());
  parti.Nom = "D'Haese";
  parti.DateNaissance = EncodeDate(2009, 3, 10);
  parti.CodeClasse = "P3";
  parti.CodePostal2 = 6001;
  parti.Localite2 = "Marcinelle";
  parti.Flg3eEnfant = parti.FlgImpotRespons2 = parti.FlgRadie = true;
  eleves.Save();
  EXPECT_EQ(base.Rangees("SELECT NOM, CLASSE, DATE_NAISSANCE, CODE_POSTAL2, FLG_3E_ENFANT, FLG_2E_ENFANT, "
                         "NUM_ATTEST_2015 FROM ELEVES"),
            QStringList{"D'Haese;P3;2009-03-10;6001;1;-;-"});
  base.Sql("UPDATE ELEVES SET FLG_2E_ENFANT = 2, FLG_PARENT_SEPARE = 1");
  TEleves relus(*base, 0);
  const TEleve& eleve = relus[0];
  EXPECT_EQ(eleve.DateNaissance, EncodeDate(2009, 3, 10));
  EXPECT_EQ(eleve.Localite2, u"Marcinelle");
  EXPECT_TRUE(eleve.Flg3eEnfant && eleve.FlgImpotRespons2 && eleve.FlgRadie && eleve.FlgParentSepare);
  EXPECT_FALSE(eleve.Flg2eEnfant || eleve.FlgFactureDetail || eleve.FlgDomiciliation);
}

TEST_F(TElevesEssai, LeNumeroDAttestationNeChangePlus) {
  for (int i = 0; i < 2; ++i) ecole.unEleve().enClasse("P1", {});
  TEleves ici(*base, 2016), ailleurs(*base, 2016);
  EXPECT_EQ(ici[0].GetNumAttestation(), 1);
  EXPECT_EQ(ici[0].GetNumAttestation(), 1);
  EXPECT_EQ(ici[1].GetNumAttestation(), 2);
  // Another workstation neither takes the number away nor gives a second one.
  ailleurs.AddEleve(ailleurs[0]);
  ailleurs.Save();
  EXPECT_EQ(ailleurs[0].GetNumAttestation(), 1);
  EXPECT_EQ(base.Rangees("SELECT NUM_ATTEST_2015 FROM ELEVES ORDER BY ELEVE_ID"), (QStringList{"1", "2"}));
}

TEST_F(TElevesEssai, LesSitesDesElevesSontCrees) {
  for (const char* site : {"A1", "a1", " B ", " "}) ecole.unEleve().enClasse("P1", {}, site);
  TEleves eleves(*base, 2016);
  EXPECT_FALSE(eleves.PlusieursImplantations());
  for (int i = 0; i < 2; ++i) eleves.SynchroniserImplantations();
  EXPECT_TRUE(eleves.PlusieursImplantations());
  EXPECT_EQ(base.Rangees("SELECT CODE_IMPLANTATION FROM IMPLANTATION ORDER BY 1"), (QStringList{"A1", "B"}));
  EXPECT_EQ(eleves.TrouverParId(2)->LibelleImplantation(), u"a1");
  eleves.Implantations->TrouverParCode("A1")->LibelleCourt = "Centre";
  EXPECT_EQ(eleves.TrouverParId(2)->Classe->LibelleImplantation(), u"Centre");
}

TEST_F(TElevesEssai, MouvementsDonneursEtTickets) {
  const auto mouvement = [&](int extrait, int eleve, int annee, const QString& compte) {
    const QString n = QString::number(extrait);
    base.Sql(
        u"INSERT INTO EXTRAITS (EXTRAIT_ID, DONNEUR_ORDRE, DATE_VIREMENT, MONTANT, NUM_CPT_DONNEUR) "
        u"VALUES (%1, 'De %2', '2016-10-03', 5, '%2')"_s.arg(n, compte));
    ecole.Ajouter("FRAIS_ELEVE", "FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, EXTRAIT_ID",
                  {QString::number(annee), QString::number(eleve), n});
  };
  for (const int extrait : {11, 12, 13}) mouvement(extrait, 1, 2016, extrait == 12 ? "BE2" : "BE1");
  mouvement(14, 1, 2015, "BE3");
  mouvement(15, 2, 2016, "BE4");
  TEleves eleves(*base, 2016);
  QStringList numeros, noms;
  eleves.ComptesDonneurs(1, numeros, noms);
  EXPECT_EQ(numeros + noms, (QStringList{"BE1", "BE2", "De BE1", "De BE2"}));

  EXPECT_EQ(eleves.ExtraitVersEleve(15), 2);
  EXPECT_EQ(eleves.ExtraitVersEleve(14), 1);  // whatever the year
  mouvement(16, 3, 2016, "BE5");
  EXPECT_EQ(eleves.ExtraitVersEleve(16), 0);
  eleves.ChargerExtraits = true;
  EXPECT_EQ(eleves.ExtraitVersEleve(16), 3);

  base.Sql("INSERT INTO TICKET (TICKET_ID, ELEVE_ID, VALEUR) VALUES (5, 7, 2.5)");
  EXPECT_THROW(eleves.DeplacerTicket(9, 8, 5), Exception) << "not his";
  EXPECT_EQ(base.Valeur("SELECT ELEVE_ID FROM TICKET"), u"7");
  eleves.DeplacerTicket(7, 8, 5);
  EXPECT_EQ(base.Valeur("SELECT ELEVE_ID FROM TICKET"), u"8");
}

// What they show: in the tests of the tablet's transfer.
TEST(ElevesHorsLigne, RienNeSEnregistre) {
  TDataSet inscriptions({"ELEVE_ID", "CLASSE", "SOUS_CLASSE"}), copie({"ELEVE_ID"});
  inscriptions.Ajouter({2, "P1", "A"});
  for (const int id : {2, 5}) copie.Ajouter({id});
  TEleves eleves(2016, inscriptions, copie);
  EXPECT_EQ(eleves.TrouverParId(5)->LibelleClasse(), u" ");
  EXPECT_EQ(eleves[0].GetAllFrais(), nullptr);
  EXPECT_THROW(eleves.ElevesClasses.Save(), EDistributor);
  EXPECT_THROW(eleves.ExtraitVersEleve(1), Exception);
  EXPECT_THROW(eleves.Save(), EDistributor);
}
