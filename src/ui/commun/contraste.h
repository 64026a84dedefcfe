#pragma once
#include <QColor>
#include <cmath>

/// Relative luminance, 0 to 1.
inline double Luminance(const QColor& couleur) {
  const auto lineaire = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineaire(couleur.redF()) + 0.7152 * lineaire(couleur.greenF()) +
         0.0722 * lineaire(couleur.blueF());
}

/// How well two colours stand apart, from 1 to 21.
inline double Contraste(const QColor& a, const QColor& b) {
  const double la = Luminance(a), lb = Luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}
