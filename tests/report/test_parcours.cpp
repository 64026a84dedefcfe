#include <gtest/gtest.h>

#include <numeric>

#include "forms/grille.h"
#include "report/parcours.h"

using namespace Qt::StringLiterals;

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

/// Pupils by the number of lines of each section: "201 0" has three sections, the second empty, and one.
TRapport Rapport(const QString& eleves) {
  TArbreRapport arbre;
  for (const QString& sections : eleves.split(u' ')) {
    TNoeudRapport& eleve = arbre.emplace_back();
    for (const QChar lignes : sections)
      eleve.Ajouter({}).Enfants.resize(static_cast<size_t>(lignes.digitValue()));
  }
  TRapport rapport({}, {});
  rapport.CopierArbre(std::move(arbre));
  return rapport;
}

}  // namespace

TEST(Parcours, VisiteChaqueNoeudUneFoisDansLOrdre) {
  const QStringList eleves{u""_s, u"0"_s, u"2"_s, u"20"_s, u"02"_s, u"00"_s, u"102"_s, u"021"_s, u"111"_s};
  for (const QString& premier : eleves)
    for (const QString& second : eleves)
      for (const QString& dernier : {u""_s, u"1"_s, u"01"_s}) {
        const TRapport rapport = Rapport(QStringList{premier, second, dernier}.join(u' '));
        std::vector<int> attendu(rapport.Plat().size());
        std::iota(attendu.begin(), attendu.end(), 0);
        TParcours parcours(rapport);
        EXPECT_EQ(Imprimer(parcours), attendu) << qPrintable(premier % u' ' % second % u' ' % dernier);
        EXPECT_EQ(Imprimer(parcours), attendu) << "built twice";
      }
}

TEST(Parcours, UnSousDetailDemandeAvantSonDetail) {
  const TRapport rapport = Rapport(u"2 "_s);
  TParcours parcours(rapport);
  parcours.Premier(TJeu::Maitre);
  parcours.Premier(TJeu::SousDetail);
  EXPECT_EQ(parcours.NombreLignes(TJeu::SousDetail), 2);
  EXPECT_EQ(parcours.Position().Curseur, 1);
}

TEST(Parcours, ColonnesSansLaReference) {
  for (const int colonnes : {3, 1}) {
    TGrille grille{std::vector<TColonneGrille>(static_cast<size_t>(colonnes))};
    grille.Ajouter({u"a"_s, u"b"_s, u"c"_s});
    grille.Ajouter({u"d"_s, u"e"_s, u"f"_s});
    TRapport rapport({}, {});
    rapport.ChargerColonnesListe(grille);
    TParcours parcours(rapport);
    QString lu;
    for (parcours.Premier(TJeu::Maitre); !parcours.Fini(TJeu::Maitre); parcours.Suivant(TJeu::Maitre)) {
      lu += *rapport.Valeur(u"COLREF", parcours.Position());
      for (parcours.Premier(TJeu::Colonne); !parcours.Fini(TJeu::Colonne); parcours.Suivant(TJeu::Colonne))
        lu += *rapport.Valeur(u"COL", parcours.Position());
    }
    EXPECT_EQ(lu, colonnes == 3 ? u"abcdef"_s : u"ad"_s);
  }
}
