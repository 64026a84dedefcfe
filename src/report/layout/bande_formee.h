#pragma once
#include "report/layout/document_prepare.h"
#include "report/rapport.h"
#include "report/template/modele.h"

/// A text with numbers of pages or columns, made for good when all pages are there.
struct TNumeros {
  std::size_t Element = 0;  ///< its place in the list of items
  QString Texte;            ///< with marks
  TStyle Style;
  TAlignementTexte Alignement = TAlignementTexte::Gauche;
  float X = 0, Largeur = 0;  ///< of its box
};

/// A band with its values in place, ready to stand anywhere on a page.
struct TBandeFormee {
  /// What it is to the rows around it.
  enum class TRole { Tete, Ligne, Pied, Seule };

  const TBandeModele* Modele = nullptr;
  TRole Role = TRole::Seule;
  int Niveau = 0;  ///< 0 master, 1 detail, 2 subdetail: the rows to which it belongs
  float X = 0;     ///< from the left margin
  float Hauteur = 0;
  std::vector<TElement> Elements;  ///< from the band's upper left corner
  std::vector<TNumeros> Numeros;
  std::vector<TSignet> Signets;
  std::vector<std::size_t> AuPied;  ///< places of the items that stay at the foot
  bool Fond = false;                ///< the first item is the band's own ground
  TPosition Position;               ///< of the walk when it was made

  /// Makes it higher; what stays at the foot goes down.
  void Agrandir(float hauteur);
  /// Takes the items of another band, `x` to the right.
  void Joindre(TBandeFormee autre, float x);
};

/// Moves an item.
void Deplacer(TElement& element, float dx, float dy);
