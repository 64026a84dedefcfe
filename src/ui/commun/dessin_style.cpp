#include "ui/commun/dessin_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <QTreeView>

#include "ui/commun/tete_de_liste.h"
#include "ui/commun/theme.h"

namespace DessinStyle {

using Theme::Couleur;

namespace {

constexpr double kRayon = 4.0;

/// Sets the painter back at its end.
class Crayon {
 public:
  explicit Crayon(QPainter& peintre) : peintre_(peintre) {
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
  }
  ~Crayon() { peintre_.restore(); }
  Crayon(const Crayon&) = delete;
  Crayon& operator=(const Crayon&) = delete;

 private:
  QPainter& peintre_;
};

bool A(const QStyleOption& option, QStyle::StateFlag etat) { return option.state.testFlag(etat); }

QColor Discrete(const QStyleOption& option) {
  return Couleur(A(option, QStyle::State_Enabled) ? TRole::Secondaire : TRole::Inactif);
}

/// A rounded box whose outline lies wholly inside the rectangle; without one when that has no width.
void Boite(QPainter& peintre, const QRectF& place, const QBrush& fond, TRole contour, double epaisseur,
           double rayon = kRayon) {
  const Crayon crayon(peintre);
  const double demi = epaisseur / 2;
  peintre.setBrush(fond);
  peintre.setPen(epaisseur > 0 ? QPen(Couleur(contour), epaisseur) : QPen(Qt::NoPen));
  peintre.drawRoundedRect(place.adjusted(demi, demi, -demi, -demi), rayon, rayon);
}

QColor Melange(const QColor& a, const QColor& b, double part) {
  const auto moyenne = [part](int x, int y) { return static_cast<int>(x * (1 - part) + y * part); };
  return {moyenne(a.red(), b.red()), moyenne(a.green(), b.green()), moyenne(a.blue(), b.blue())};
}

}  // namespace

void Champ(QPainter& peintre, const QStyleOption& option, const QWidget* widget) {
  const bool actif = A(option, QStyle::State_Enabled);
  const bool ouvert = actif && !A(option, QStyle::State_ReadOnly);
  const bool foyer = actif && A(option, QStyle::State_HasFocus);
  const bool faute = widget && widget->property("faute").toBool();
  const TRole contour = faute ? TRole::Erreur : foyer ? TRole::Accent : ouvert ? TRole::Bord : TRole::Ligne;
  Boite(peintre, option.rect, option.palette.color(ouvert ? QPalette::Base : QPalette::Window), contour,
        foyer || faute ? 2 : 1);
}

void Contour(QPainter& peintre, const QStyleOption& option) {
  Boite(peintre, option.rect, Qt::NoBrush, TRole::Ligne, 1, 0);
}

void Bouton(QPainter& peintre, const QStyleOption& option, TGenreBouton genre) {
  const bool actif = A(option, QStyle::State_Enabled);
  const bool foyer = actif && A(option, QStyle::State_HasFocus);
  const bool presse = A(option, QStyle::State_Sunken) || A(option, QStyle::State_On);
  const bool survol = actif && A(option, QStyle::State_MouseOver);
  if (genre == TGenreBouton::Principal && actif) {
    const double ombre = presse ? 0.25 : survol ? 0.12 : 0;
    Boite(peintre, option.rect, Melange(Couleur(TRole::Accent), Couleur(TRole::Texte), ombre), {}, 0);
    // The accent is the button itself: a ring of the text's colour inside it tells the focus.
    if (foyer)
      Boite(peintre, QRectF(option.rect).adjusted(2, 2, -2, -2), Qt::NoBrush, TRole::SurAccent, 2, 3);
    return;
  }
  const bool discret = genre == TGenreBouton::Discret || genre == TGenreBouton::Suppression;
  QBrush fond = discret ? QBrush(Qt::NoBrush) : QBrush(option.palette.color(QPalette::Button));
  if (presse || survol) fond = Couleur(presse ? TRole::Selection : TRole::Survol);
  const TRole contour = foyer ? TRole::Accent : actif ? TRole::Bord : TRole::Ligne;
  Boite(peintre, option.rect, fond, contour, foyer ? 2 : discret ? 0 : 1);
}

void Foyer(QPainter& peintre, const QStyleOption& option, const QWidget* widget) {
  // Lists draw it on the row, above the ground of the selection.
  QRect place = option.rect;
  if (const auto* liste = qobject_cast<const QTreeView*>(widget); liste && place.left() <= 0)
    place.setRight(std::max(place.right(), liste->viewport()->width() - 1));
  Boite(peintre, place, Qt::NoBrush, TRole::Accent, 2, 3);
}

void Case(QPainter& peintre, const QStyleOption& option) {
  const bool actif = A(option, QStyle::State_Enabled);
  const bool plein = A(option, QStyle::State_On), partiel = A(option, QStyle::State_NoChange);
  const int cote = std::min(option.rect.width(), option.rect.height());
  QRect place(0, 0, cote, cote);
  place.moveCenter(option.rect.center());
  if (!plein && !partiel)
    return Boite(peintre, place, option.palette.color(QPalette::Base), actif ? TRole::Bord : TRole::Ligne, 1,
                 3);
  const Crayon crayon(peintre);
  if (!actif) peintre.setOpacity(0.5);
  Boite(peintre, place, Couleur(actif ? TRole::Accent : TRole::Bord), {}, 0, 3);
  const double u = cote / 16.0;
  peintre.setPen(QPen(Couleur(TRole::SurAccent), 2 * u, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  peintre.translate(place.topLeft());
  if (partiel)
    peintre.drawLine(QPointF(4.5 * u, 8 * u), QPointF(11.5 * u, 8 * u));
  else
    peintre.drawPolyline(
        QPolygonF({QPointF(4.2 * u, 8.4 * u), QPointF(6.9 * u, 11 * u), QPointF(11.8 * u, 5.4 * u)}));
}

void CaseSeule(QPainter& peintre, const QStyleOptionButton& option, const QWidget* widget) {
  const int cote = Theme::Px(16);
  QStyleOptionButton copie = option;
  copie.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, {cote, cote}, option.rect);
  Case(peintre, copie);
  copie.rect.adjust(-3, -3, 3, 3);
  if (A(option, QStyle::State_HasFocus)) Foyer(peintre, copie, widget);
}

void Choix(QPainter& peintre, const QStyleOption& option) {
  const bool actif = A(option, QStyle::State_Enabled), choisi = A(option, QStyle::State_On);
  const TRole vif = choisi && actif ? TRole::Accent : actif || choisi ? TRole::Bord : TRole::Ligne;
  const QRectF rond = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const double rayon = rond.width() / 2, retrait = rayon / 2;
  Boite(peintre, rond, option.palette.color(QPalette::Base), vif, choisi ? 1.5 : 1, rayon);
  if (choisi) Boite(peintre, rond.adjusted(retrait, retrait, -retrait, -retrait), Couleur(vif), {}, 0, rayon);
}

void Fleche(QPainter& peintre, const QStyleOption& option, const QRect& place, Qt::ArrowType sens, int demi) {
  const Crayon crayon(peintre);
  const double d = Theme::Px(demi);
  peintre.translate(QRectF(place).center());
  if (sens == Qt::RightArrow) peintre.rotate(-90);
  if (sens == Qt::UpArrow) peintre.rotate(180);
  peintre.setPen(Qt::NoPen);
  peintre.setBrush(Discrete(option));
  peintre.drawPolygon(QPolygonF({QPointF(-d, -d / 2), QPointF(d, -d / 2), QPointF(0, d / 2)}));
}

void LigneDeListe(QPainter& peintre, const QStyleOption& option, const QWidget* widget, bool rangee) {
  const auto* cellule = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
  if (cellule && cellule->backgroundBrush.style() != Qt::NoBrush)
    peintre.fillRect(option.rect, cellule->backgroundBrush);
  const auto* liste = qobject_cast<const QAbstractItemView*>(widget);
  const bool actif = A(option, QStyle::State_Enabled) && (!liste || liste->isEnabled());
  if (!A(option, QStyle::State_Selected)) {
    if (!rangee && actif && A(option, QStyle::State_MouseOver) && !qobject_cast<const QTreeView*>(widget))
      peintre.fillRect(option.rect, Couleur(TRole::Survol));
    return;
  }
  peintre.fillRect(option.rect, Couleur(actif ? TRole::Selection : TRole::Ligne));
  // At the edge of the list, however far it is scrolled to the side.
  if (option.rect.left() <= 0 && option.rect.right() >= 0)
    peintre.fillRect(QRect(0, option.rect.y(), 3, option.rect.height()), Couleur(TRole::Accent));
}

void Tete(QPainter& peintre, const QStyleOption& option) {
  peintre.fillRect(option.rect, option.palette.color(QPalette::Window));
  peintre.setPen(Couleur(A(option, QStyle::State_Enabled) ? TRole::Bord : TRole::Ligne));
  peintre.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void TexteDeTete(QPainter& peintre, const QStyleOptionHeader& option) {
  const Crayon crayon(peintre);
  peintre.setFont(Theme::Gras());
  peintre.setPen(Discrete(option));
  const QFontMetrics mesures(Theme::Gras());
  const bool deux = option.rect.height() >= 2 * mesures.height();
  QStringList lignes = (deux ? TitreEnLignes(option.text, option.rect.width()) : option.text).split(u'\n');
  for (QString& ligne : lignes) ligne = mesures.elidedText(ligne, Qt::ElideRight, option.rect.width());
  peintre.drawText(option.rect, static_cast<int>(option.textAlignment | Qt::AlignVCenter),
                   lignes.join(u'\n'));
}

}  // namespace DessinStyle
