#pragma once
#include <QRect>

#include "ui/commun/bouton.h"

class QPainter;
class QStyleOption;
class QStyleOptionHeader;

/// The strokes of StyleCalpenne, each on the rectangle of its option.
namespace DessinStyle {

void Champ(QPainter& peintre, const QStyleOption& option, const QWidget* widget);
void Contour(QPainter& peintre, const QStyleOption& option);
void Bouton(QPainter& peintre, const QStyleOption& option, TGenreBouton genre);
void Foyer(QPainter& peintre, const QStyleOption& option, const QWidget* widget);
void Case(QPainter& peintre, const QStyleOption& option);
/// A box without words stands in the middle of its cell, and so does the focus.
void CaseSeule(QPainter& peintre, const QStyleOptionButton& option, const QWidget* widget);
void Choix(QPainter& peintre, const QStyleOption& option);
/// `demi` is half the width of the arrow, at 10 points.
void Fleche(QPainter& peintre, const QStyleOption& option, const QRect& place, Qt::ArrowType sens,
            int demi = 4);
/// The ground of a cell, or with `rangee` of what stands left of the first one.
void LigneDeListe(QPainter& peintre, const QStyleOption& option, const QWidget* widget, bool rangee);
void Tete(QPainter& peintre, const QStyleOption& option);
void TexteDeTete(QPainter& peintre, const QStyleOptionHeader& option);

}  // namespace DessinStyle
