#include "report/output/peintre.h"

#include <hb-ot.h>

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace {

constexpr double kPixelsParPouce = 96.0;

QPointF Point(float x, float y) { return {static_cast<qreal>(x), static_cast<qreal>(y)}; }

QColor Opaque(QRgb couleur) { return QColor(couleur | 0xFF000000); }

/// How an outline of the font becomes a path, upside down.
struct TTraceur {
  TTraceur() {
    hb_draw_funcs_set_move_to_func(
        Fonctions, [](auto*, void* trace, auto*, float x, float y, void*) { De(trace).moveTo(Point(x, -y)); },
        nullptr, nullptr);
    hb_draw_funcs_set_line_to_func(
        Fonctions, [](auto*, void* trace, auto*, float x, float y, void*) { De(trace).lineTo(Point(x, -y)); },
        nullptr, nullptr);
    hb_draw_funcs_set_quadratic_to_func(
        Fonctions,
        [](auto*, void* trace, auto*, float cx, float cy, float x, float y, void*) {
          De(trace).quadTo(Point(cx, -cy), Point(x, -y));
        },
        nullptr, nullptr);
    hb_draw_funcs_set_cubic_to_func(
        Fonctions,
        [](auto*, void* trace, auto*, float cx, float cy, float dx, float dy, float x, float y, void*) {
          De(trace).cubicTo(Point(cx, -cy), Point(dx, -dy), Point(x, -y));
        },
        nullptr, nullptr);
    hb_draw_funcs_set_close_path_func(
        Fonctions, [](auto*, void* trace, auto*, void*) { De(trace).closeSubpath(); }, nullptr, nullptr);
  }
  ~TTraceur() { hb_draw_funcs_destroy(Fonctions); }
  Q_DISABLE_COPY_MOVE(TTraceur)
  static QPainterPath& De(void* trace) { return *static_cast<QPainterPath*>(trace); }

  hb_draw_funcs_t* const Fonctions = hb_draw_funcs_create();
};

struct TPaire {
  std::size_t operator()(const std::pair<const TPolice*, std::uint32_t>& cle) const {
    return std::hash<const void*>()(cle.first) ^ (cle.second * 0x9E3779B9U);
  }
};

/// The shape of a glyph in units of its font. As many are kept as the papers' fonts have.
const QPainterPath& Trace(const TPolice& police, std::uint32_t glyphe) {
  thread_local const TTraceur traceur;
  thread_local std::unordered_map<std::pair<const TPolice*, std::uint32_t>, QPainterPath, TPaire> traces;
  const auto [place, nouveau] = traces.try_emplace({&police, glyphe});
  if (nouveau) {
    place->second.setFillRule(Qt::WindingFill);
    hb_font_get_glyph_shape(police.Fonte(), glyphe, traceur.Fonctions, &place->second);
  }
  return place->second;
}

class TPeintre {
 public:
  explicit TPeintre(QPainter& peintre) : peintre_(peintre) {}

  void operator()(const TElementTexte& element) {
    const TTexteForme& forme = *element.Forme;
    const QTransform repere = peintre_.transform();
    const qreal echelle =
        static_cast<qreal>(forme.Style.Taille * kPixelsParPoint / forme.Police->UnitesParEm());
    peintre_.setPen(Qt::NoPen);
    peintre_.setBrush(Opaque(element.Couleur));
    for (const TGlyphe& glyphe : forme.Glyphes) {
      const QPainterPath& trace = Trace(*forme.Police, glyphe.Id);
      if (trace.isEmpty()) continue;
      peintre_.translate(Point(element.X + glyphe.X, element.Base - glyphe.Y));
      peintre_.scale(echelle, echelle);
      peintre_.drawPath(trace);
      peintre_.setTransform(repere);
    }
    if (element.Souligne) Souligner(element);
  }
  void operator()(const TElementTrait& element) {
    Plume(element.Epaisseur, element.Tiret, element.Couleur);
    peintre_.drawLine(Point(element.X1, element.Y1), Point(element.X2, element.Y2));
  }
  void operator()(const TElementCadre& element) {
    if (qAlpha(element.Fond) > 0) {
      QBrush fond(Opaque(element.Fond));
      if (qAlpha(element.FondBas) > 0) {
        QLinearGradient degrade(element.Place.topLeft(), element.Place.bottomLeft());
        degrade.setColorAt(0, Opaque(element.Fond));
        degrade.setColorAt(1, Opaque(element.FondBas));
        fond = degrade;
      }
      peintre_.fillRect(element.Place, fond);
    }
    if (element.Epaisseur <= 0.0F) return;
    Plume(element.Epaisseur, 0.0F, element.Trait);
    peintre_.setBrush(Qt::NoBrush);
    peintre_.drawRect(element.Place);
  }
  void operator()(const TElementImage& element) {
    peintre_.drawImage(element.Place, *element.Image);
  }
  /// Edges stand on the device's dots, so that equal bars stay equal; the first bar's place decides.
  void operator()(const TElementBarres& element) {
    if (element.Barres.empty()) return;
    const QTransform repere = peintre_.transform();
    const QPointF premier = element.Barres.front().topLeft();
    const QPointF coin = repere.map(premier);
    const QPointF origine(std::round(coin.x()), std::round(coin.y()));
    const auto sur = [&](const QPointF& point) {
      const QPointF ecart = repere.map(point) - coin;
      return origine + QPointF(std::round(ecart.x()), std::round(ecart.y()));
    };
    peintre_.save();
    peintre_.resetTransform();
    peintre_.setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& barre : element.Barres)
      peintre_.fillRect(QRectF(sur(barre.topLeft()), sur(barre.bottomRight())), Qt::black);
    peintre_.restore();
  }

 private:
  void Plume(float epaisseur, float tiret, QRgb couleur) {
    QPen plume(Opaque(couleur), static_cast<qreal>(epaisseur), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    if (tiret > 0 && epaisseur > 0) {
      const auto longueur = static_cast<qreal>(tiret / epaisseur);  // of a pen, in its own widths
      plume.setDashPattern({longueur, longueur});
    }
    peintre_.setPen(plume);
  }
  void Souligner(const TElementTexte& element) {
    const TTexteForme& forme = *element.Forme;
    const float em = forme.Style.Taille * kPixelsParPoint;
    const float epaisseur = em * forme.Police->EpaisseurSouligne();
    const float haut = element.Base + em * forme.Police->BaseSouligne() - epaisseur / 2;
    peintre_.fillRect(QRectF(Point(element.X, haut),
                             QSizeF(static_cast<qreal>(forme.Largeur), static_cast<qreal>(epaisseur))),
                      Opaque(element.Couleur));
  }

  QPainter& peintre_;
};

}  // namespace

void PeindrePage(const TPagePreparee& page, QPainter& peintre) {
  peintre.save();
  peintre.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  TPeintre pinceau(peintre);
  for (const TElement& element : page.Elements) std::visit(pinceau, element);
  peintre.restore();
}

QImage Rasteriser(const TPagePreparee& page, double dpi) {
  const double echelle = dpi / kPixelsParPouce;
  const QSizeF taille = QSizeF(static_cast<qreal>(page.Largeur), static_cast<qreal>(page.Hauteur)) * echelle;
  QImage image(taille.toSize(), QImage::Format_RGB32);
  if (image.isNull()) return image;
  image.fill(Qt::white);
  const int pointsParMetre = static_cast<int>(std::lround(dpi / 0.0254));
  image.setDotsPerMeterX(pointsParMetre);
  image.setDotsPerMeterY(pointsParMetre);
  QPainter peintre(&image);
  peintre.scale(echelle, echelle);
  PeindrePage(page, peintre);
  return image;
}
