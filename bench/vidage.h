#pragma once
#include "report/layout/document_prepare.h"

/// The drawing items of a document for a drawing script, as JSON: {"polices": {name: file}, "pages":
/// [[width, height, [item...]]...]} in points from the lower left, colours as three numbers to 1 or null:
/// ["t", x, baseline, font, size, colour, text], ["l", x1, y1, x2, y2, thickness, colour, dash],
/// ["r", x, y, width, height, thickness (0: no border), colour, filling]. Raises Exception for an item
/// that the script could not draw just the same.
QByteArray Vider(const TDocumentPrepare& document);
