#include "screens/pupils/groupes_mois.h"

#include <algorithm>

#include "core/mois.h"

using namespace Qt::StringLiterals;

bool TGroupeMois::Tous() const {
  return std::ranges::all_of(Mois, [](bool coche) { return coche; });
}

std::array<TGroupeMois, 3> GroupesMois() {
  return {{{TTypeMarque::Midi, u"Rentre à son domicile pendant midi"_s},
           {TTypeMarque::Etude, u"Participe à l'étude"_s},
           {TTypeMarque::Forfait, u"Paiement forfaitaire"_s}}};
}

void LireMarques(std::array<TGroupeMois, 3>& groupes, const TPresencesParticulieres& marques, int eleve) {
  for (TGroupeMois& groupe : groupes)
    for (std::size_t i = 0; i < kMoisScolaires.size(); ++i)
      groupe.Mois[i] = marques.Marque(groupe.Type, eleve, kMoisScolaires[i]) != nullptr;
}
