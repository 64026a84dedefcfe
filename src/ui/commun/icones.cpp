#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <cmath>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// The drawing made for that size, or the next one; empty for an unknown name.
QByteArray Dessin(const QString& nom, int taille) {
  static constexpr int kTailles[] = {16, 22, 32};
  int voulue = taille >= 32 ? 2 : taille >= 22 ? 1 : 0;
  for (const int rang : {voulue, 1, 0}) {
    QFile fichier(u":/icones/%1/%2.svg"_s.arg(kTailles[rang]).arg(nom));
    if (fichier.open(QIODevice::ReadOnly)) return fichier.readAll();
  }
  return {};
}

/// Draws the file at each painting in the colour that the role has then.
class MoteurIcone : public QIconEngine {
 public:
  MoteurIcone(QString nom, TRole role) : nom_(std::move(nom)), role_(role) {}

  void paint(QPainter* peintre, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const int cote = std::min(place.width(), place.height());
    const double echelle = peintre->device()->devicePixelRatioF();
    const QRect carre(place.x() + (place.width() - cote) / 2, place.y() + (place.height() - cote) / 2, cote,
                      cote);
    peintre->drawPixmap(carre, Image(cote, echelle, mode));
  }

  QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State) override {
    return Image(std::min(taille.width(), taille.height()), 1.0, mode);
  }

  QPixmap scaledPixmap(const QSize& taille, QIcon::Mode mode, QIcon::State, qreal echelle) override {
    const int cote = std::min(taille.width(), taille.height());
    return Image(static_cast<int>(std::lround(cote / echelle)), echelle, mode);
  }

  QIconEngine* clone() const override { return new MoteurIcone(*this); }

 private:
  QPixmap Image(int cote, double echelle, QIcon::Mode mode) const {
    const bool pale = mode == QIcon::Disabled;  // what it then stands on is pale too
    const QColor couleur = Theme::Couleur(pale && role_ == TRole::SurAccent ? TRole::Texte : role_);
    const QString cle = u"icone/%1/%2/%3/%4/%5"_s.arg(nom_, couleur.name(), Theme::EstSombre() ? u"s" : u"c")
                            .arg(cote)
                            .arg(echelle) %
                        (pale ? u"/pale" : u"");
    QPixmap image;
    if (QPixmapCache::find(cle, &image)) return image;
    image = QPixmap(QSize(cote, cote) * echelle);
    image.fill(Qt::transparent);
    QByteArray dessin = Dessin(nom_, cote);
    if (!dessin.isEmpty()) {
      const QByteArray surAccent = Theme::Couleur(TRole::SurAccent).name().toLatin1();
      dessin.replace("currentColor", couleur.name().toLatin1());
      dessin.replace("#fff\"", QByteArray(surAccent + '"'));
      QPainter peintre(&image);
      if (pale) peintre.setOpacity(0.35);
      QSvgRenderer(dessin).render(&peintre);
    }
    image.setDevicePixelRatio(echelle);
    QPixmapCache::insert(cle, image);
    return image;
  }

  QString nom_;
  TRole role_;
};

}  // namespace

QIcon Theme::Icone(const QString& nom, TRole role) { return QIcon(new MoteurIcone(nom, role)); }
