#pragma once
#include "forms/grille.h"

/// What a list shows: its rows, the columns joined by "|", a head marked by "#".
inline QStringList Lignes(const TGrille& grille) {
  QStringList lignes;
  for (int i = 0; i < grille.NombreLignes(); ++i)
    lignes += (grille.Ligne(i).Tete ? u"#" : u"") + grille.Textes(i).join(u'|');
  return lignes;
}

/// One of its columns, from top to bottom.
inline QStringList TextesColonne(const TGrille& grille, int colonne) {
  QStringList textes;
  for (int i = 0; i < grille.NombreLignes(); ++i) textes += grille.Texte(i, colonne);
  return textes;
}
