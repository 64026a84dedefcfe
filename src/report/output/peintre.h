#pragma once
#include <QImage>

#include "report/layout/document_prepare.h"

class QPainter;

/// Draws a page where the painter's origin is, in px as the painter scales them. Glyphs are drawn as
/// shapes, so that a page looks the same on every device and needs no fonts of a graphic session.
void PeindrePage(const TPagePreparee& page, QPainter& peintre);

/// The page on white paper; null when it is too large for the memory.
QImage Rasteriser(const TPagePreparee& page, double dpi);
