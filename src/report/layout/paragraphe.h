#pragma once
#include "report/layout/texte_modele.h"
#include "report/template/modele.h"

/// A run of one style on a line.
struct TSegment {
  std::shared_ptr<const TTexteForme> Forme;
  float X = 0.0F;  ///< from the left of the box, px
  bool Souligne = false;
};

/// A text broken into lines for a box.
struct TParagraphe {
  std::vector<std::vector<TSegment>> Lignes;
  float Premiere = 0;     ///< height of the place in which the first line stands in the middle, px
  float Interligne = 0;   ///< px
  float Em = 0;           ///< size of the type, px
  bool MotCoupe = false;  ///< a word alone was wider than the box
  bool Deborde = false;   ///< wider or higher than the box

  float Hauteur() const {
    return Lignes.empty() ? 0 : Premiere + Interligne * static_cast<float>(Lignes.size() - 1);
  }
  /// y of a baseline from the top of the box: capitals stand in the middle of the line.
  float Base(std::size_t ligne) const {
    return Premiere / 2 + 0.30F * Em + Interligne * static_cast<float>(ligne);
  }
};

/// Lines for a box of `largeur` (0: no limit). A box of one line that does not stretch never breaks its
/// text: a name goes over the edge rather than being cut.
TParagraphe MettreEnLignes(const std::vector<TMorceau>& morceaux, const TObjetModele& objet, float largeur,
                           float hauteur);
