#include "demo/annee_suivante.h"

#include <algorithm>

#include "demo/catalogue.h"
#include "demo/tirage.h"

namespace {

constexpr int kDernierNiveau = kNiveaux - 1;

bool EstAutomne(int mois) { return mois >= 9; }

/// Who stays, a class higher; the answer is their new index by the old one, -1 for who leaves.
std::vector<int> Monter(const TEcoleExemple& ecole, TEcoleExemple& suite) {
  std::vector<int> rangs;
  for (TEleveExemple eleve : ecole.Eleves) {
    const bool reste = !eleve.Radie && eleve.Niveau < kDernierNiveau;
    rangs.push_back(reste ? static_cast<int>(suite.Eleves.size()) : -1);
    if (!reste) continue;
    ++eleve.Niveau;
    eleve.Classe = QString::fromUtf16(kNomsNiveaux[static_cast<std::size_t>(eleve.Niveau)]);
    suite.Eleves.push_back(std::move(eleve));
  }
  return rangs;
}

void FeterDouzeAns(TEcoleExemple& suite) {
  for (TEleveExemple& eleve : suite.Eleves) {
    const auto& soirs = suite.Familles[static_cast<std::size_t>(eleve.Famille)].Habitudes.Soir;
    if (eleve.Niveau < kDernierNiveau || eleve.Rang > 2 || soirs[0] < 500) continue;
    eleve.DateNaissance = QDate(suite.Annee - 12, 11, 10);
    return;
  }
}

void AttribuerFraisAutomne(TEcoleExemple& suite) {
  TTirage tirage(suite.Graine, 4);
  AttribuerFrais(suite, tirage);
  const auto premier = std::ranges::find_if(suite.Frais, [](const auto& f) { return !EstAutomne(f.Mois); });
  const auto nombre = static_cast<int>(premier - suite.Frais.begin());
  suite.Frais.erase(premier, suite.Frais.end());
  std::erase_if(suite.LignesFrais, [&](const auto& ligne) { return ligne.Frais >= nombre; });
}

}  // namespace

TEcoleExemple AnneeSuivante(const TEcoleExemple& ecole) {
  TEcoleExemple suite;
  suite.Graine = ecole.Graine + 1;
  suite.Annee = ecole.Annee + 1;
  suite.DateRegistre = QDate(suite.Annee, 10, 2);
  suite.Sites = ecole.Sites;
  suite.Familles = ecole.Familles;
  suite.Professeurs = ecole.Professeurs;
  const std::vector<int> rangs = Monter(ecole, suite);
  for (TMarqueExemple marque : ecole.Marques) {
    marque.Eleve = rangs[static_cast<std::size_t>(marque.Eleve)];
    if (marque.Eleve >= 0 && EstAutomne(marque.Mois)) suite.Marques.push_back(marque);
  }
  AttribuerFraisAutomne(suite);
  FeterDouzeAns(suite);
  return suite;
}
