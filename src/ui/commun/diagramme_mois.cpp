#include "ui/commun/diagramme_mois.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/commun/texte.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMarge = 8;

double Valeur(const TBarreMois& barre) { return static_cast<double>(barre.Montant.EnBrut()); }

QString Mois(const TBarreMois& barre) { return barre.Nom; }
QString Montant(const TBarreMois& barre) { return TexteMontant(barre.Montant); }

QString Phrase(const TBarreMois& barre) { return barre.Nom % u" : " % TexteMontant(barre.Montant); }

}  // namespace

DiagrammeMois::DiagrammeMois(const QString& nom, QWidget* parent) : QWidget(parent) {
  setAccessibleName(nom);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DiagrammeMois::Definir(std::vector<TBarreMois> barres) {
  barres_ = std::move(barres);
  QStringList phrases;
  for (const TBarreMois& barre : barres_) phrases += Phrase(barre);
  setAccessibleDescription(phrases.join(u", "_s));
  update();
}

QSize DiagrammeMois::sizeHint() const { return {Theme::Px(480), Theme::Px(320)}; }

QSize DiagrammeMois::minimumSizeHint() const { return {Theme::Px(240), Theme::Px(200)}; }

QRect DiagrammeMois::Colonne(int barre) const {
  const int nombre = static_cast<int>(barres_.size());
  const int gauche = width() * barre / nombre, droite = width() * (barre + 1) / nombre;
  return {gauche, 0, droite - gauche, height()};
}

int DiagrammeMois::Largeur(TTextes textes) const {
  const QFontMetrics mesures(Theme::Petite());
  int largeur = 0;
  for (const TBarreMois& barre : barres_)
    largeur = std::max(largeur, mesures.horizontalAdvance(textes(barre)));
  return largeur;
}

bool DiagrammeMois::Debout(TTextes textes) const {
  return Largeur(textes) + Theme::Px(kMarge) > Colonne(0).width();
}

int DiagrammeMois::Hauteur(TTextes textes) const {
  return (Debout(textes) ? Largeur(textes) : QFontMetrics(Theme::Petite()).height()) + Theme::Px(kMarge);
}

void DiagrammeMois::Ecrire(QPainter& peintre, const QRect& place, const TBarreMois& barre,
                           TTextes textes) const {
  const bool dessous = textes == Mois;
  if (!Debout(textes))
    return peintre.drawText(place, Qt::AlignHCenter | (dessous ? Qt::AlignTop : Qt::AlignBottom),
                            textes(barre));
  peintre.save();
  peintre.translate(place.center().x(), place.bottom());
  peintre.rotate(-90);
  const QRect couche(0, -place.width() / 2, place.height(), place.width());
  peintre.drawText(couche, Qt::AlignVCenter | (dessous ? Qt::AlignRight : Qt::AlignLeft), textes(barre));
  peintre.restore();
}

// The line of zero stands as high as the lowest bar asks for; most often none goes below it.
void DiagrammeMois::paintEvent(QPaintEvent*) {
  if (barres_.empty()) return;
  double haut = 0, bas = 0;
  for (const TBarreMois& barre : barres_) {
    haut = std::max(haut, Valeur(barre));
    bas = std::min(bas, Valeur(barre));
  }
  QPainter peintre(this);
  peintre.setFont(Theme::Petite());
  const int dessus = Hauteur(Montant), dessous = Hauteur(Mois);
  const int place = std::max(0, height() - dessus - dessous);
  const double echelle = haut > bas ? place / (haut - bas) : 0;
  const int zero = dessus + static_cast<int>(haut * echelle);
  for (int i = 0; i < static_cast<int>(barres_.size()); ++i) {
    const TBarreMois& barre = barres_[static_cast<std::size_t>(i)];
    const QRect colonne = Colonne(i);
    const int hauteur = static_cast<int>(Valeur(barre) * echelle);
    const int sommet = zero - std::max(hauteur, 0);
    const int largeur = std::min(colonne.width() * 3 / 5, Theme::Px(48));
    peintre.fillRect(colonne.center().x() - largeur / 2, sommet, largeur, std::abs(hauteur),
                     Theme::Couleur(TRole::Accent));
    peintre.setPen(Theme::Couleur(TRole::Texte));
    Ecrire(peintre, {colonne.x(), sommet - dessus, colonne.width(), dessus - Theme::Px(4)}, barre, Montant);
    peintre.setPen(Theme::Couleur(TRole::Secondaire));
    Ecrire(peintre, {colonne.x(), height() - dessous + Theme::Px(4), colonne.width(), dessous - Theme::Px(4)},
           barre, Mois);
  }
  peintre.setPen(Theme::Couleur(TRole::Bord));
  peintre.drawLine(0, zero, width(), zero);
}

bool DiagrammeMois::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip || barres_.empty()) return QWidget::event(evenement);
  const auto& aide = static_cast<const QHelpEvent&>(*evenement);
  for (int i = 0; i < static_cast<int>(barres_.size()); ++i)
    if (Colonne(i).contains(aide.pos()))
      QToolTip::showText(aide.globalPos(), Phrase(barres_[static_cast<std::size_t>(i)]), this);
  return true;
}
