#include "screens/payments/lignes_virement.h"

#include "application/globals.h"

using namespace Qt::StringLiterals;

std::vector<TEtatGrille> EtatsMouvement() {
  static const std::pair<TEtatMouvement, QString> icones[] = {
      {TEtatMouvement::Nouveau, u"list-add"_s},
      {TEtatMouvement::Inconnu, u"data-warning"_s},
      {TEtatMouvement::Comptabilise, u"dialog-ok-apply"_s},
      {TEtatMouvement::AnneePrecedente, u"data-information"_s},
      {TEtatMouvement::Cache, u"list-remove"_s},
      {TEtatMouvement::Illisible, u"data-error"_s},
      {TEtatMouvement::DejaImporte, u"data-warning"_s},
      {TEtatMouvement::Partiel, u"data-information"_s}};
  std::vector<TEtatGrille> etats;
  for (const auto& [etat, icone] : icones) etats.push_back({Texte(etat), icone});
  return etats;
}

std::vector<TColonneGrille> ColonnesMouvement() {
  return {{u"Nom du donneur d'ordre"_s, 160},
          {u"Date du virement"_s, 96, TGenre::Date},
          {u"Montant"_s, 88, TGenre::Montant},
          {u"Communication"_s, 184},
          {u"N° de compte"_s, 116},
          {u"Nom de l'élève"_s, 188},
          {u"Classe"_s, 64}};
}

TCellules CellulesMouvement(const TMouvement& m) {
  return {m.Donneur, m.Date, m.Montant, m.Communication, m.Compte};
}

TCellules CellulesMouvement(const TExtrait& e) {
  return {e.DonneurOrdre, e.DateVirement, e.Montant, e.Communication, e.NumCptDonneur};
}

void AjouterEleve(TCellules& cellules, int eleveId) {
  const TEleve* eleve = eleveId == 0 ? nullptr : Globals.Eleves->TrouverParId(eleveId);
  if (eleve != nullptr) {
    cellules.insert(cellules.end(), {eleve->NomComplet(), eleve->LibelleClasse()});
    return;
  }
  cellules.insert(cellules.end(), {eleveId == 0 ? QString() : u"élève d'une autre année"_s, QString()});
}
