#include "ui/meals/cadre_eleve.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kCadre(150, 190);
constexpr QSize kPhoto(95, 110);

QString Initiales(const QString& nom, const QString& prenom) { return prenom.left(1) + nom.left(1); }

}  // namespace

CadreEleve::CadreEleve(const QString& nom, const QString& prenom, const QImage& photo, QWidget* parent)
    : QAbstractButton(parent), nom_(nom), prenom_(prenom), photo_(QPixmap::fromImage(photo)) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setFixedSize(sizeHint());
}

void CadreEleve::Definir(const QString& statut, bool servi, bool radie) {
  statut_ = statut;
  servi_ = servi;
  radie_ = radie;
  setAccessibleName(QString(nom_ % u' ' % prenom_ % (statut.isEmpty() ? u"" : u", ") % statut));
  update();
}

QSize CadreEleve::sizeHint() const { return {Theme::Px(kCadre.width()), Theme::Px(kCadre.height())}; }

void CadreEleve::mousePressEvent(QMouseEvent* evenement) {
  presse_ = evenement->globalPosition().toPoint();
  QAbstractButton::mousePressEvent(evenement);
}

// A finger that has moved on was scrolling, and serves nobody.
void CadreEleve::mouseReleaseEvent(QMouseEvent* evenement) {
  const QPoint chemin = evenement->globalPosition().toPoint() - presse_;
  if (chemin.manhattanLength() >= QApplication::startDragDistance()) {
    setDown(false);
    return;
  }
  QAbstractButton::mouseReleaseEvent(evenement);
}

void CadreEleve::paintEvent(QPaintEvent*) {
  QPainter peintre(this);
  peintre.setRenderHint(QPainter::Antialiasing);
  const QRect cadre = rect().adjusted(2, 2, -2, -2);
  peintre.setPen(
      QPen(hasFocus() ? Theme::Couleur(TRole::Accent) : Theme::Couleur(TRole::Bord), hasFocus() ? 3 : 1));
  peintre.setBrush(servi_ ? Theme::Couleur(TRole::Selection) : palette().base().color());
  peintre.drawRoundedRect(cadre, 8, 8);
  const QSize taille(Theme::Px(kPhoto.width()), Theme::Px(kPhoto.height()));
  QRect photo(QPoint(cadre.center().x() - taille.width() / 2, cadre.top() + Theme::Px(8)), taille);
  if (photo_.isNull()) {
    peintre.setFont(Theme::TitreAccueil());
    peintre.setPen(Theme::Couleur(TRole::Secondaire));
    peintre.drawText(photo, Qt::AlignCenter, Initiales(nom_, prenom_));
  } else {
    peintre.drawPixmap(
        photo, photo_.scaled(taille * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
  }
  QRect ligne(cadre.left() + 4, photo.bottom() + Theme::Px(4), cadre.width() - 8, Theme::Px(20));
  peintre.setPen(palette().text().color());
  QFont gras = Theme::Gras();
  gras.setStrikeOut(radie_);
  peintre.setFont(gras);
  peintre.drawText(ligne, Qt::AlignCenter,
                   peintre.fontMetrics().elidedText(nom_, Qt::ElideRight, ligne.width()));
  ligne.translate(0, Theme::Px(18));
  QFont simple = font();
  simple.setStrikeOut(radie_);
  peintre.setFont(simple);
  peintre.drawText(ligne, Qt::AlignCenter,
                   peintre.fontMetrics().elidedText(prenom_, Qt::ElideRight, ligne.width()));
  ligne.translate(0, Theme::Px(18));
  peintre.setFont(Theme::Gras());
  peintre.setPen(servi_ ? Theme::Couleur(TRole::Succes) : Theme::Couleur(TRole::Secondaire));
  peintre.drawText(ligne, Qt::AlignCenter, servi_ ? QString(u"✓ " % statut_) : statut_);
}
