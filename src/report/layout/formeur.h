#pragma once
#include <unordered_set>

#include "report/layout/bande_formee.h"
#include "report/layout/colonnes.h"
#include "report/layout/contexte_impression.h"
#include "report/layout/paragraphe.h"

/// Makes bands: runs their procedures, puts values in, breaks texts and stretches.
class TFormeur {
 public:
  explicit TFormeur(TContexteImpression& contexte) : contexte_(contexte) {}

  /// None when the band is hidden, perhaps by its own procedure.
  std::optional<TBandeFormee> Former(const TBandeModele& bande);
  /// The same for a column of a list: a text without a width takes the column's, and its side.
  std::optional<TBandeFormee> Former(const TBandeModele& bande, const TPlaceColonne& colonne);

 private:
  struct TObjetPret;
  std::vector<TObjetPret> Preparer(const TBandeModele& bande);
  void ChoisirAjustes(std::vector<TObjetPret>& objets) const;
  static float Croissance(const TObjetPret& objet);
  float Etirer(const TBandeModele& bande, std::vector<TObjetPret>& objets) const;
  float EtirerCadres(std::vector<TObjetPret>& objets, float bas) const;
  void Dessiner(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee);
  void DessinerTexte(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee);
  void DessinerImage(const TObjetPret& objet, TBandeFormee& formee) const;
  void DessinerCode(const TBandeModele& bande, const TObjetPret& objet, TBandeFormee& formee);
  void NoterTexte(const TBandeModele& bande, const TObjetModele& objet, const TParagraphe& paragraphe);
  TParagraphe Composer(const TObjetModele& objet, const TEtatObjet& etat) const;
  QString Texte(const TObjetModele& objet, const TEtatObjet& etat) const;
  TResolveur Resolveur() const;

  TContexteImpression& contexte_;
  const TPlaceColonne* colonne_ = nullptr;              ///< in hand
  std::unordered_set<const TObjetModele*> illisibles_;  ///< that showed a character of no font
};
