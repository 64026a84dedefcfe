#include "services/frais_eleve.h"
#include "support/controleur_essai.h"
#include "workflows/attribution_frais.h"

namespace {

/// Five pupils of a class; the first three owe the fee of 12.50, the first has paid it.
struct TAttribution : TEssaiControleur {
  void SetUp() override {
    frais_ = ecole.frais("Piscine", "12.5", 10);
    for (int i = 0; i < 5; ++i) {
      TEleveEssai eleve = ecole.unEleve().enClasse("P1", "A");
      if (i < 3) eleve.doit(frais_, i == 0 ? "12.5" : "0");
    }
    essai.Charger();
    attribution_.Ouvrir(&Frais());
  }
  TFrais& Frais() { return *Globals.ListeFrais->ParCle(frais_); }
  void Cocher(int id, bool coche = true) { attribution_.Cocher(Eleve(id), coche); }
  /// "1:12.5000 2:0.0000"
  QString Rangees() {
    const QString sql =
        "SELECT ELEVE_ID || ':' || MONTANT_VERSE FROM FRAIS_ELEVE WHERE LISTEFRAIS_ID = %1 ORDER BY 1";
    return base.Rangees(sql.arg(frais_)).join(u' ');
  }

  TAttributionFrais attribution_{essai.Controleur};
  int frais_ = 0;
};

}  // namespace

TEST_F(TAttribution, GivesAndTakesByHandOnly) {
  EXPECT_EQ(attribution_.NombreCoches(), 3);
  EXPECT_TRUE(attribution_.EstPaye(Eleve(1)));
  EXPECT_FALSE(attribution_.EstPaye(Eleve(2)));
  attribution_.Enregistrer(Frais());
  EXPECT_EQ(base.Dialogues.Progressions, 1) << "nothing to do but to hide the progress";
  Cocher(2, false);
  Cocher(4);
  // Meanwhile another workstation gave it to the fourth and the fifth, and took it from the third.
  base.Sql("DELETE FROM FRAIS_ELEVE WHERE ELEVE_ID = 3");
  TEleveEssai(ecole, 4).doit(frais_);
  TEleveEssai(ecole, 5).doit(frais_);
  attribution_.Enregistrer(Frais());
  EXPECT_EQ(Rangees(), "1:12.5000 3:0.0000 4:0.0000 5:0.0000")
      << "the third is ticked, so owes it again; nobody has two lines; the fifth was not unticked by hand";
  EXPECT_EQ(Frais().ElevesFrais().size(), 4U) << "read again after a change";
  EXPECT_EQ(Eleve(3).GetAllFrais()->Count(), 1);
  EXPECT_FALSE(attribution_.EstModifiee());
}

TEST_F(TAttribution, PaidModeHoldsAtTheSave) {
  attribution_.DefinirModePaye(true);
  Cocher(4);
  Cocher(2, false);
  Cocher(2);
  EXPECT_TRUE(attribution_.EstPaye(Eleve(4)));
  EXPECT_FALSE(attribution_.EstPaye(Eleve(2))) << "whose line is stored and stays unpaid";
  attribution_.DefinirModePaye(false);
  EXPECT_FALSE(attribution_.EstPaye(Eleve(4))) << "what is shown is what would be stored";
  EXPECT_TRUE(attribution_.EstPaye(Eleve(1)));
  attribution_.DefinirModePaye(true);
  Cocher(5);
  attribution_.Enregistrer(Frais());
  EXPECT_EQ(Rangees(), "1:12.5000 2:0.0000 3:0.0000 4:0.0000 5:12.5000");
  EXPECT_TRUE(attribution_.EstPaye(Eleve(5)));
  // Who has paid and is unticked loses line and amount, without a question.
  Eleve(1).GetAllFrais()->LigneFrais(frais_)->ExtraitId = 7;
  Globals.Eleves->ChargerExtraits = false;
  Cocher(1, false);
  attribution_.Enregistrer(Frais());
  EXPECT_EQ(Rangees(), "2:0.0000 3:0.0000 4:0.0000 5:12.5000");
  EXPECT_TRUE(Globals.Eleves->ChargerExtraits) << "the movement that paid it is free again";
}

TEST_F(TAttribution, RefusedHalfWayItGoesOnFromThere) {
  base.Sql(
      "CREATE TRIGGER REFUS FOR FRAIS_ELEVE BEFORE INSERT AS BEGIN IF (NEW.ELEVE_ID = 5) THEN "
      "NEW.ELEVE_ID = NULL; END");
  Cocher(4);
  Cocher(5);
  Cocher(3, false);
  EXPECT_THROW(attribution_.Enregistrer(Frais()), Exception);
  EXPECT_EQ(Rangees(), "1:12.5000 2:0.0000 3:0.0000 4:0.0000");
  EXPECT_EQ(Eleve(5).GetAllFrais()->Count(), 0) << "memory is what the table holds";
  EXPECT_TRUE(attribution_.EstModifiee());
  Cocher(4, false);  // stored, so this takes it away
  base.Sql("DROP TRIGGER REFUS");
  attribution_.Enregistrer(Frais());
  EXPECT_EQ(Rangees(), "1:12.5000 2:0.0000 5:0.0000");
}

TEST_F(TAttribution, TakenFromAllAndGivenBack) {
  const int absent = ecole.unEleve().Id;  // enrolled nowhere
  TEleveEssai(ecole, absent).doit(frais_);
  base.Sql("UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 8 WHERE ELEVE_ID = " + QString::number(absent));
  Eleve(1).GetAllFrais()->LigneFrais(frais_)->GroupeFraisId = 3;
  Frais().InvalideElevesFrais();
  Globals.Eleves->PartsExtrait(8);
  const TGroupesFrais* groupes = Globals.GroupesFrais.get();
  TAttributionFrais::TLignesRetirees lignes;
  attribution_.RetirerATous(Frais(), lignes);
  EXPECT_TRUE(Globals.Eleves->PartsExtrait(8).empty()) << "free again";
  EXPECT_NE(Globals.GroupesFrais.get(), groupes) << "what the groups have received is read again";
  lignes[1].Ligne->ExtraitId = 9;
  lignes.push_back({999, u"PARTI Paul"_s, CopieDe(*lignes[0].Ligne)});
  TEleveEssai(ecole, 4).paie("5", 0, 0, "x");
  base.Sql("UPDATE FRAIS_ELEVE SET EXTRAIT_ID = 9");
  base.Dialogues.Attend("Le frais n'est pas rendu tout entier :\n" + Eleve(2).NomComplet() +
                        ", sans son paiement : Le mouvement de la banque a été attribué autrement "
                        "entre-temps.\nPARTI Paul : n'est plus dans l'année affichée");
  EXPECT_EQ(Rangees(), "");
  EXPECT_EQ(Eleve(1).GetAllFrais()->Count(), 0);
  attribution_.Rendre(Frais(), lignes);
  EXPECT_EQ(Rangees(), "1:12.5000 2:0.0000 3:0.0000") << "with what was paid";
}
