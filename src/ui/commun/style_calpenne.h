#pragma once
#include <QProxyStyle>

using namespace Qt::StringLiterals;

/// Fusion with outlines, focus and selection of our own: Fusion derives them from the window's
/// colour, and in dark they vanish. A field whose property `faute` is true is drawn as faulty.
class StyleCalpenne : public QProxyStyle {
  Q_OBJECT
 public:
  StyleCalpenne() : QProxyStyle(u"Fusion"_s) {}

  void polish(QWidget* widget) override;
  using QProxyStyle::polish;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl element, const QStyleOptionComplex* option, QPainter* peintre,
                          const QWidget* widget) const override;
  int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint conseil, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* retour) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
};
