#include <gtest/gtest.h>

#include "forms/grille.h"
#include "report/parcours.h"

namespace {

/// What a banded engine does; the cursor at each printed band.
std::vector<int> Imprimer(TParcours& parcours) {
  std::vector<int> bandes;
  const auto noter = [&] { bandes.push_back(parcours.Position().Curseur); };
  for (parcours.Premier(TJeu::Maitre); !parcours.Fini(TJeu::Maitre); parcours.Suivant(TJeu::Maitre)) {
    noter();
    for (parcours.Premier(TJeu::Detail); !parcours.Fini(TJeu::Detail); parcours.Suivant(TJeu::Detail)) {
      noter();
      for (parcours.Premier(TJeu::SousDetail); !parcours.Fini(TJeu::SousDetail);
           parcours.Suivant(TJeu::SousDetail))
        noter();
    }
  }
  return bandes;
}

/// A pupil by the number of lines of each section: "201" has three sections, the second empty.
TNoeudRapport Eleve(const std::string& sections) {
  TNoeudRapport eleve;
  for (const char lignes : sections) eleve.Ajouter({}).Enfants.resize(static_cast<size_t>(lignes - '0'));
  return eleve;
}

}  // namespace

TEST(Parcours, VisiteChaqueNoeudUneFoisDansLOrdre) {
  const std::vector<std::string> eleves = {"", "0", "2", "20", "02", "00", "102", "021", "111"};
  const std::vector<std::string> derniers = {"", "1", "01"};
  for (const std::string& premier : eleves)
    for (const std::string& second : eleves)
      for (const std::string& dernier : derniers) {
        TRapport rapport({}, {});
        TArbreRapport arbre;
        for (const std::string& eleve : {premier, second, dernier}) arbre.push_back(Eleve(eleve));
        rapport.CopierArbre(std::move(arbre));
        std::vector<int> attendu(rapport.Plat().size());
        for (size_t i = 0; i < attendu.size(); ++i) attendu[i] = static_cast<int>(i);
        TParcours parcours(rapport);
        EXPECT_EQ(Imprimer(parcours), attendu) << premier << '|' << second << '|' << dernier;
        EXPECT_EQ(Imprimer(parcours), attendu) << "built twice";
      }
}

TEST(Parcours, UnSousDetailDemandeAvantSonDetail) {
  TRapport rapport({}, {});
  rapport.CopierArbre({Eleve("2"), Eleve("")});
  TParcours parcours(rapport);
  parcours.Premier(TJeu::Maitre);
  parcours.Premier(TJeu::SousDetail);
  EXPECT_EQ(parcours.NombreLignes(TJeu::SousDetail), 2);
  EXPECT_EQ(parcours.Position().Curseur, 1);
}

TEST(Parcours, ColonnesSansLaReference) {
  TGrille grille({{QStringLiteral("A")}, {QStringLiteral("B")}, {QStringLiteral("C")}});
  grille.Ajouter({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  grille.Ajouter({QStringLiteral("d"), QStringLiteral("e"), QStringLiteral("f")});
  TRapport rapport({}, {});
  rapport.ChargerColonnesListe(grille);
  TParcours parcours(rapport);
  QString lu;
  for (parcours.Premier(TJeu::Maitre); !parcours.Fini(TJeu::Maitre); parcours.Suivant(TJeu::Maitre)) {
    lu += *rapport.Valeur(u"COLREF", parcours.Position());
    for (parcours.Premier(TJeu::Colonne); !parcours.Fini(TJeu::Colonne); parcours.Suivant(TJeu::Colonne))
      lu += *rapport.Valeur(u"COL", parcours.Position());
  }
  EXPECT_EQ(lu, QStringLiteral("abcdef"));

  TGrille seule({{QStringLiteral("A")}});
  seule.Ajouter({QStringLiteral("a")});
  rapport.ChargerColonnesListe(seule);
  parcours.Premier(TJeu::Maitre);
  parcours.Premier(TJeu::Colonne);
  EXPECT_TRUE(parcours.Fini(TJeu::Colonne));
  EXPECT_FALSE(parcours.Fini(TJeu::Maitre));
}
