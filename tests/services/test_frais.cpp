#include "services/frais_eleve.h"
#include "services/groupes_frais.h"
#include "support/ecole_essai.h"

using TFraisEssai = TEssaiEcole;

TEST_F(TFraisEssai, CatalogueEtElevesQuiDoivent) {
  const int piscine = ecole.frais("Piscine", "10.5", 10);
  const int estimation = ecole.frais("Estimation", "100", 5, "previsionnel");
  ecole.unEleve().doit(piscine).doit(estimation);
  ecole.unEleve().doit(piscine, "10.5");
  TListeFrais liste(*base, 2016);
  TFrais& frais = *liste.ParCle(piscine);
  EXPECT_EQ(frais.ElevesFrais(), (std::vector{1, 2}));
  ecole.unEleve().doit(piscine);
  // The list stays as read until it is told; the number never does.
  EXPECT_EQ(frais.ElevesFrais(), (std::vector{1, 2}));
  EXPECT_EQ(frais.NombreElevesFrais(), 3);
  EXPECT_EQ(Euros(frais.TotalFrais()), "31.5000");
  frais.InvalideElevesFrais();
  EXPECT_EQ(frais.ElevesFrais(), (std::vector{1, 2, 3}));
  EXPECT_EQ(liste.ParCle(estimation)->NombreElevesFrais(), 1);
  EXPECT_EQ(Euros(liste.ParCle(estimation)->TotalFrais()), "0.0000");

  auto nouveau = std::make_unique<TFrais>();
  nouveau->Libelle = u"Théâtre"_s;
  nouveau->TypeFrais = TTypeFrais::Eleves;
  nouveau->FlgService = true;
  TFrais& theatre = liste.Add(std::move(nouveau));
  EXPECT_EQ(theatre.NombreElevesFrais(), 0);
  liste.Save();
  EXPECT_EQ(base.Rangees(
                "SELECT LISTEFRAIS_ID, LIBELLE, COUT, TYPE_FRAIS, FLG_RECURENT, MOIS, FLG_PREVISIONNEL, "
                "FLG_NON_OBLIGATOIRE, ANNEE_SCOLAIRE, FLG_SERVICE FROM LISTE_FRAIS WHERE LISTEFRAIS_ID = 3"),
            QStringList("3;Théâtre;0.0000;2;0;0;-;-;2016;1"));
  EXPECT_EQ(liste.ParCle(3), &theatre);
  EXPECT_EQ(TListeFrais(*base, 2015).Count(), 0);
}

TEST_F(TFraisEssai, GroupesDePaiement) {
  base.Sql("INSERT INTO GROUPE_FRAIS VALUES (1, 'Galettes')");
  ecole.unEleve().paie("7", 11, 1, "Vente").paie("14", 12, 1, "Vente 2").paie("5", 12, 1, "Autre");
  ecole.unEleve().paie("3", 11, 1, "Vente");
  base.Sql("UPDATE FRAIS_ELEVE SET GROUPE_FRAIS_ID = 1 WHERE REMARQUE <> 'Autre'");
  TGroupesFrais groupes(*base);
  TGroupeFrais& galettes = *groupes.ParCle(1);
  TGroupeFrais::TDetails details;
  EXPECT_EQ(galettes.DetailsPaiement(details, 1), 2);
  EXPECT_EQ(details[1]->Remarque, u"Vente 2");
  // What was read once is not read again, whoever the pupil is.
  base.Sql("UPDATE FRAIS_ELEVE SET MONTANT_VERSE = 100, GROUPE_FRAIS_ID = 1");
  EXPECT_EQ(Euros(galettes.TotalPaiement(1)), "21.0000");
  EXPECT_EQ(Euros(galettes.TotalPaiement(2)), "3.0000");
  EXPECT_EQ(galettes.DetailsPaiement(details, 3), 0);
  EXPECT_TRUE(details.empty());
  EXPECT_EQ(Euros(TGroupesFrais(*base)[0].TotalPaiement(1)), "300.0000");

  std::vector<TLibelleGroupe> libelles(3);
  groupes.LibellesGroupes(libelles);
  ASSERT_EQ(libelles.size(), 1U);
  EXPECT_EQ(libelles[0].Libelle, u"Galettes");
  EXPECT_EQ(libelles[0].Groupe, &galettes);
}

TEST_F(TFraisEssai, LignesDUnEleve) {
  const int piscine = ecole.frais("Piscine", "10", 10, "non_obligatoire");
  ecole.unEleve().doit(piscine, "0.01").paie("-5", 10, 2, "Caisse");
  TListeFrais catalogue(*base, 2016);
  TAllFraisEleve lignes(*base, 1, 2016, &catalogue);
  TFraisEleve& fee = *lignes.LigneFrais(piscine);
  EXPECT_TRUE(fee.EstPaye() && !fee.EstLibre() && fee.NonObligatoire() && !fee.FraisService());
  fee.MarquePaye();
  EXPECT_EQ(Euros(fee.MontantVerse), "10.0000");
  fee.MarqueImpaye();
  EXPECT_FALSE(fee.EstPaye());
  std::vector<TFraisEleve*> libres(5);
  EXPECT_EQ(lignes.PaiementsLibres(libres), 1);
  EXPECT_EQ(libres.at(0)->TypeFamilleFrais, TTypeFamilleFrais::Services);
  EXPECT_TRUE(libres[0]->EstLibre() && libres[0]->EstPaye());
  EXPECT_EQ(libres[0]->MoisFrais(), 0);
  EXPECT_EQ(lignes.LigneFrais(99), nullptr);

  auto virement = std::make_unique<TFraisEleve>();
  virement->Remarque = u"Votre virement"_s;
  virement->MontantVerse = Currency::Brut(123456);
  virement->DateVersement = J("2016-10-04");
  virement->ExtraitId = 12;
  lignes.Add(std::move(virement));
  EXPECT_TRUE(lignes.ExisteExtrait(12));
  EXPECT_FALSE(lignes.ExisteExtrait(13));
  lignes.Save();
  EXPECT_EQ(
      base.Rangees("SELECT FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, LISTEFRAIS_ID, REMARQUE, MONTANT_VERSE, "
                   "DATE_VERSEMENT, MOIS, EXTRAIT_ID, TYPE_FAMILLE_FRAIS, GROUPE_FRAIS_ID FROM FRAIS_ELEVE "
                   "WHERE FRAIS_ELEVE_ID = 3"),
      QStringList("3;2016;1;-;Votre virement;12.3456;2016-10-04;0;12;0;-"));
  // Without a catalogue every line is as if it had no fee.
  const TAllFraisEleve seules(*base, 1, 2016, nullptr);
  EXPECT_EQ(seules.Count(), 3);
  EXPECT_EQ(seules[0].LibelleFrais(), QString());
  EXPECT_EQ(Euros(seules.TotalFrais()), "0.0000");
  EXPECT_EQ(Euros(seules.TotalVerse()), "7.3556");
}

TEST_F(TFraisEssai, TotauxDUnEleve) {
  const int oblig = ecole.frais("Oblig", "10", 10);
  const int libre = ecole.frais("Libre", "20", 3, "non_obligatoire");
  const int service = ecole.frais("Service", "40", 10, "service");
  const int deux = ecole.frais("Deux", "80", 10, "service non_obligatoire");
  const int prevu = ecole.frais("Prevu", "160", 10, "previsionnel");
  const int sansMois = ecole.frais("Sans mois", "320", 0);
  const int enleve = ecole.frais("Enleve", "640", 10);
  auto eleve = ecole.unEleve();
  eleve.doit(oblig, "1").doit(libre, "2").doit(service, "4").doit(deux).doit(prevu, "8").doit(sansMois, "16");
  eleve.doit(enleve, "32").paie("64", 10, 2, "a").paie("128", 0, 1, "b").paie("256", 2, 0, "c");
  // A fee with a month of its own as well; a fee that leaves the catalogue.
  base.Sql("UPDATE FRAIS_ELEVE SET MOIS = 10 WHERE LISTEFRAIS_ID IN (1, 5)");
  TListeFrais catalogue(*base, 2016);
  catalogue.Remove(*catalogue.ParCle(enleve));
  const TAllFraisEleve l(*base, eleve.Id, 2016, &catalogue);

  EXPECT_EQ(Euros(l.TotalFrais()), "350.0000");         // 10 + 20 + 320
  EXPECT_EQ(Euros(l.TotalObligatoires()), "330.0000");  // 10 + 320
  EXPECT_EQ(Euros(l.TotalNonObligatoires()), "20.0000");
  EXPECT_EQ(Euros(l.TotalVerse()), "503.0000");  // all but 8
  EXPECT_EQ(Euros(l.SoldeFrais()), "153.0000");

  const TPeriode octobre = BornesMois(10, 2016), mars = BornesMois(3, 2016), annee = BornesAnnee(2016);
  EXPECT_EQ(Euros(l.TotalFraisPeriode(octobre)), "10.0000");
  EXPECT_EQ(Euros(l.TotalFraisPeriode({J("2017-03-10"), J("2017-03-10")})), "20.0000");
  EXPECT_EQ(Euros(l.TotalFraisPeriode(annee)), "0.0000");  // no month contains a year
  EXPECT_EQ(Euros(l.TotalFraisPeriode({octobre.Premier, octobre.Dernier + 1})), "0.0000");
  EXPECT_EQ(Euros(l.TotalFraisMoisPeriode(annee)), "150.0000");  // 10 + 20 + 40 + 80
  EXPECT_EQ(Euros(l.TotalFraisMoisPeriode({octobre.Premier, octobre.Dernier - 1})), "0.0000");
  EXPECT_EQ(Euros(l.TotalServicesPeriode(annee)), "120.0000");
  // 1 by its fee's month and again by its own, 4 by its fee's, 64 by its own; 8 is of a forecast.
  EXPECT_EQ(Euros(l.TotalVersePeriode(octobre)), "70.0000");
  EXPECT_EQ(Euros(l.TotalVersePeriode(mars)), "2.0000");
  EXPECT_EQ(Euros(l.TotalVersePeriode(annee)), "0.0000");
  EXPECT_EQ(Euros(l.SoldeFraisMois(10, 2016)), "60.0000");
  EXPECT_EQ(Euros(l.TotalCumuleVerse(2016, J("2016-09-30"))), "0.0000");
  EXPECT_EQ(Euros(l.TotalCumuleVerse(2016, J("2016-10-01"))), "70.0000");
  EXPECT_EQ(Euros(l.TotalCumuleVerse(2016, J("2017-06-30"))), "328.0000");  // 70 + 256 + 2
  EXPECT_EQ(Euros(l.TotalLibresPeriode(annee, 2016)), "320.0000");          // 64 + 256
  EXPECT_EQ(Euros(l.TotalLibresPeriode({J("2016-10-01"), J("2016-10-01")}, 2016)), "64.0000");
  EXPECT_EQ(Euros(l.TotalLibresPeriode({J("2016-10-02"), J("2016-10-31")}, 2016)), "0.0000");
}
