#include "documents/sections_frais.h"

#include "pupils/eleve.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

std::vector<const TFraisEleve*> FraisDuCatalogue(const TEleve& eleve, const TPeriodeDocument& periode) {
  std::vector<const TFraisEleve*> frais;
  if (const TAllFraisEleve* lignes = eleve.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes)
      if (ligne.Frais() && periode.Contient(ligne.MoisFrais())) frais.push_back(&ligne);
  return frais;
}

TSectionsFrais::TSectionsFrais()
    : obligatoires_(u"Frais Obligatoire"_s, u"Frais obligatoires"_s),
      nonObligatoires_(u"Frais Non Obligatoire"_s, u"Frais non obligatoires"_s) {}

void TSectionsFrais::Ajouter(const TFraisEleve& frais) {
  (frais.NonObligatoire() ? nonObligatoires_ : obligatoires_)
      .Ajouter(frais.LibelleFrais(), frais.MontantFrais());
}

void TSectionsFrais::Terminer(TNoeudRapport& eleve) {
  eleve.Enfants.push_back(obligatoires_.Terminer());
  eleve.Enfants.push_back(nonObligatoires_.Terminer());
}
