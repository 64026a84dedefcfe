#include "report/layout/papier_modele.h"

#include <algorithm>
#include <cmath>

namespace {

void Suivre(TObjetModele& objet, float avant, float plus) {
  if (std::abs(objet.X + objet.Largeur - avant) > 1) return;
  float& bouge = objet.X > 0 ? objet.X : objet.Largeur;
  bouge = std::max(0.0F, bouge + plus);
}

void SuivreLargeur(TPageModele& page, float avant) {
  const float plus = page.Largeur - 2 * page.Marge - avant;
  const bool liste = std::ranges::count(page.Bandes, TSorteBande::Colonnes, &TBandeModele::Sorte) > 0;
  if (!liste && plus <= 0) return;
  for (TBandeModele& bande : page.Bandes)
    if (bande.Colonnes == 1)
      for (TObjetModele& objet : bande.Objets) Suivre(objet, avant, plus);
}

}  // namespace

void MettreSurPapier(TModele& modele, const TPapierPixels& papier) {
  for (TPageModele& page : modele.Pages) {
    const float avant = page.Largeur - 2 * page.Marge;
    page.Largeur = papier.Largeur;
    page.Hauteur = papier.Hauteur;
    page.Marge = papier.Marge;
    SuivreLargeur(page, avant);
  }
}
