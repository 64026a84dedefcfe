#include "services/lignes_extrait.h"

#include "core/curseur.h"

using namespace Qt::StringLiterals;

std::vector<TLigneExtrait> LireLignesExtrait(TDataModule1& base, std::optional<int> extrait) {
  std::vector<TLigneExtrait> lignes;
  TCurseur ligne(base,
                 u"SELECT FRAIS_ELEVE_ID, ELEVE_ID, EXTRAIT_ID, MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS, "
                 "FLG_PART FROM FRAIS_ELEVE WHERE EXTRAIT_ID "_s %
                     (extrait ? u"= ?" : u"> 0"),
                 extrait ? std::vector<TValeur>{*extrait} : std::vector<TValeur>());
  while (ligne.Suivant())
    lignes.push_back({.Id = ligne.Entier("FRAIS_ELEVE_ID"),
                      .EleveId = ligne.Entier("ELEVE_ID"),
                      .ExtraitId = ligne.Entier("EXTRAIT_ID"),
                      .Montant = ligne.Montant("MONTANT_VERSE"),
                      .Mois = ligne.Entier("MOIS"),
                      .Famille = static_cast<TTypeFamilleFrais>(ligne.Entier("TYPE_FAMILLE_FRAIS")),
                      .FlgPart = ligne.EstVrai("FLG_PART")});
  return lignes;
}
