#include "workflows/annee_revenus.h"

#include <algorithm>

#include "core/query_internal.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

int AnneeRevenus(int ecole, int anneeTravail, TDateTime aujourdhui) {
  return ecole < anneeTravail && ecole + 1 < DecodeDate(aujourdhui).Annee ? ecole + 1 : ecole;
}

std::vector<int> AnneesRevenus(TDataModule1& base, int usuelle, TDateTime aujourdhui) {
  const int derniere = DecodeDate(aujourdhui).Annee;
  std::set<int, std::greater<>> annees{usuelle};
  TCurseur ligne(base, u"SELECT DISTINCT ANNEE_SCOLAIRE FROM ELEVES_CLASSES"_s);
  while (ligne.Suivant())
    for (const int annee : {ligne.Entier("ANNEE_SCOLAIRE"), ligne.Entier("ANNEE_SCOLAIRE") + 1})
      if (annee <= derniere) annees.insert(annee);
  return {annees.begin(), annees.end()};
}

TElevesHorsAnnee::TElevesHorsAnnee(const TEleves& affichee, int anneeRevenus) {
  std::set<int> vus;
  for (const int ecole : {anneeRevenus, anneeRevenus - 1}) {  // the last class first
    if (ecole == affichee.AnneeScolaire) continue;
    for (const TEleveClasse& inscription : TElevesClasses(affichee.BaseDeDonnees(), ecole)) {
      const bool personnel = CategorieDeClasse(inscription.Classe) == TCategorie::Personnel;
      if (personnel || affichee.TrouverParId(inscription.EleveId) != nullptr) continue;
      if (vus.insert(inscription.EleveId).second)
        places_.push_back(
            {inscription.EleveId, inscription.Classe, inscription.SousClasse, inscription.CodeImplantation});
    }
  }
}

std::set<int> TElevesHorsAnnee::Cles(const std::vector<const TClasse*>& classes, bool touteLEcole) const {
  std::set<int> cles;
  for (const TPlace& place : places_)
    if (touteLEcole || std::ranges::any_of(classes, [&](const TClasse* classe) {
          return classe->CodeClasse == place.Classe && classe->SousClasse == place.SousClasse &&
                 classe->CodeImplantation == place.CodeImplantation;
        }))
      cles.insert(place.EleveId);
  return cles;
}
