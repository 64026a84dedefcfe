#pragma once
#include <QImage>

enum class TModeRedimension {
  Lissage,    ///< average where an axis shrinks, linear interpolation where it grows
  Etirement,  ///< plain stretch by the drawing layer
};

/// Fills `cible` with the picture of `source`. The target keeps its size and its format; the ratio of
/// the picture is not kept. Nothing happens when one of the two is empty.
void Redimensionner(const QImage& source, QImage& cible, TModeRedimension mode = TModeRedimension::Lissage);
