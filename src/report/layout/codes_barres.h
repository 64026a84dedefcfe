#pragma once
#include "report/layout/document_prepare.h"
#include "report/template/modele.h"

// Bar codes as filled boxes whose widths are whole numbers of dots at 300 dpi, which they stay at 600.

/// A dot at 300 dpi, px.
constexpr double kPoint300 = 0.32;
/// White left and right of a bar code, in modules.
constexpr int kZoneCalme = 10;

/// A code, or why there is none.
struct TCodeDessine {
  TElementBarres Barres;
  QString Defaut;  ///< French, a whole sentence; "" when the code was drawn
};

/// The bars of a text in a place that holds its quiet zones as well: flush left, they begin
/// `kZoneCalme` modules from its left edge. `module` is the width of a narrow bar in px, rounded to
/// dots; a code that does not fit is tried with narrower bars down to three dots. Start and stop are
/// added and are no part of `texte`.
TCodeDessine DessinerCode(TTypeCode type, const QString& texte, const QRectF& place, float module,
                          TAlignementTexte alignement);

/// A QR code of level M, as large as whole dots allow, in the middle of a place without its quiet zone:
/// four modules of white must surround the place.
TCodeDessine DessinerQr(const QString& texte, const QRectF& place);
