#pragma once
#include "report/layout/document_prepare.h"
#include "report/template/modele.h"

// Bar codes as filled boxes whose widths are whole numbers of dots at 300 dpi, which they stay at 600.
// A place is that of the bars alone: the page leaves ten modules of white left and right of them, four
// around a QR code.

/// A dot at 300 dpi, px.
constexpr double kPoint300 = 0.32;

/// A code, or why there is none.
struct TCodeDessine {
  TElementBarres Barres;
  QString Defaut;  ///< French, a whole sentence; "" when the code was drawn
};

/// The bars of a text in a place without its quiet zones. Dashes are left out, though both types could
/// hold them: a scan must give the register number as pupils are looked up by it. `module` is the width
/// of a narrow bar in px, rounded to dots; a code that does not fit is tried with narrower bars down to
/// three dots. Start and stop are added and are no part of `texte`.
TCodeDessine DessinerCode(TTypeCode type, const QString& texte, const QRectF& place, float module,
                          TAlignementTexte alignement);

/// A QR code of level M, as large as whole dots allow, in the middle of a place without its quiet zone.
TCodeDessine DessinerQr(const QString& texte, const QRectF& place);
