#include "ui/commun/pied_de_grille.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include "ui/commun/texte.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

PiedDeGrille::PiedDeGrille(VueGrille& vue, QWidget* parent) : QWidget(parent), vue_(vue) {
  setAccessibleName(u"Totaux"_s);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  vue.GarderBarre();
  const auto redessiner = [this] { update(); };
  connect(vue.header(), &QHeaderView::sectionResized, this, redessiner);
  connect(vue.header(), &QHeaderView::sectionMoved, this, redessiner);
  connect(vue.header(), &QHeaderView::geometriesChanged, this, redessiner);
  connect(vue.horizontalScrollBar(), &QScrollBar::valueChanged, this, redessiner);
}

void PiedDeGrille::Definir(std::vector<QStringList> lignes) {
  const bool autreHauteur = lignes.size() != lignes_.size();
  lignes_ = std::move(lignes);
  QStringList dites;
  for (QStringList ligne : lignes_) {
    ligne.removeAll(QString());
    dites += ligne.join(u' ');
  }
  setAccessibleDescription(dites.join(u", "_s));
  vue_.DefinirSommes(Sommes());
  if (autreHauteur) updateGeometry();
  update();
}

/// A sum may run over the empty margins beside it, not over the sum before it.
std::vector<int> PiedDeGrille::Sommes() const {
  const QFontMetrics mesures(Theme::Gras());
  std::vector<int> largeurs;
  for (const QStringList& ligne : lignes_)
    for (qsizetype colonne = 1; colonne < ligne.size(); ++colonne) {
      if (ligne[colonne].isEmpty() || ligne[colonne - 1].isEmpty()) continue;
      largeurs.resize(std::max(largeurs.size(), static_cast<std::size_t>(colonne) + 1));
      int& largeur = largeurs[static_cast<std::size_t>(colonne)];
      largeur =
          std::max(largeur, mesures.horizontalAdvance(TypographieMontant(ligne[colonne])) + Theme::Px(8));
    }
  return largeurs;
}

QSize PiedDeGrille::sizeHint() const {
  return {vue_.sizeHint().width(), static_cast<int>(lignes_.size()) * Theme::Px(27)};
}

QSize PiedDeGrille::minimumSizeHint() const { return {Theme::Px(48), sizeHint().height()}; }

void PiedDeGrille::changeEvent(QEvent* evenement) {
  QWidget::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange) updateGeometry();
}

void PiedDeGrille::paintEvent(QPaintEvent*) {
  QPainter peintre(this);
  peintre.setFont(Theme::Gras());
  const int hauteur = Theme::Px(27);
  const int marge = Theme::Px(8);
  const int decalage = vue_.frameWidth();
  const QHeaderView& tetes = *vue_.header();
  peintre.setClipRect(decalage, 0, vue_.viewport()->width(), height());
  int haut = 0;
  for (const QStringList& textes : lignes_) {
    peintre.setPen(Theme::Couleur(TRole::Texte));
    for (int colonne = 0; colonne < std::min<int>(tetes.count(), static_cast<int>(textes.size()));
         ++colonne) {
      const QRect place(tetes.sectionViewportPosition(colonne) + decalage + marge, haut,
                        tetes.sectionSize(colonne) - 2 * marge, hauteur);
      const bool droite = EstADroite(vue_.Grille().Colonne(colonne).Genre);
      // A word may run over the empty cells beside it; an amount never does.
      peintre.drawText(place, (droite ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter | Qt::TextDontClip,
                       TypographieMontant(textes[colonne]));
    }
    haut += hauteur;
    peintre.setPen(Theme::Couleur(TRole::Ligne));
    peintre.drawLine(0, haut - 1, width(), haut - 1);
  }
}
