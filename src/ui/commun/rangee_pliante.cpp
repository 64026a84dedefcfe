#include "ui/commun/rangee_pliante.h"

#include "ui/commun/theme.h"

RangeePliante::RangeePliante() {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(Theme::Px(8));
}

// One by one: a group that ends looks for itself among those that are left.
RangeePliante::~RangeePliante() {
  while (QLayoutItem* element = takeAt(0)) delete element;
}

void RangeePliante::addItem(QLayoutItem* element) { elements_.emplace_back(element); }

void RangeePliante::AjouterGroupe(QLayout* groupe) {
  addChildLayout(groupe);
  addItem(groupe);
}

QLayoutItem* RangeePliante::itemAt(int rang) const {
  return rang >= 0 && rang < count() ? elements_[static_cast<std::size_t>(rang)].get() : nullptr;
}

QLayoutItem* RangeePliante::takeAt(int rang) {
  if (rang < 0 || rang >= count()) return nullptr;
  const auto element = elements_.begin() + rang;
  QLayoutItem* pris = element->release();
  elements_.erase(element);
  return pris;
}

QSize RangeePliante::sizeHint() const {
  QSize voulue(0, 0);
  for (const auto& element : elements_) {
    if (element->isEmpty()) continue;
    const QSize taille = element->sizeHint();
    voulue.rwidth() += taille.width() + (voulue.width() > 0 ? spacing() : 0);
    voulue.setHeight(std::max(voulue.height(), taille.height()));
  }
  return voulue.grownBy(contentsMargins());
}

QSize RangeePliante::minimumSize() const {
  QSize moindre(0, 0);
  for (const auto& element : elements_)
    if (!element->isEmpty()) moindre = moindre.expandedTo(element->minimumSize());
  return moindre.grownBy(contentsMargins());
}

void RangeePliante::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  Placer(place.marginsRemoved(contentsMargins()), true);
}

int RangeePliante::heightForWidth(int largeur) const {
  const QMargins marges = contentsMargins();
  const int hauteur = Placer({0, 0, largeur - marges.left() - marges.right(), 0}, false);
  return hauteur + marges.top() + marges.bottom();
}

// Line by line, each control in the middle of the height of its line.
int RangeePliante::Placer(const QRect& place, bool poser) const {
  int y = place.y();
  for (std::size_t debut = 0; debut < elements_.size();) {
    int largeur = 0, hauteur = 0;
    std::size_t fin = debut;
    for (; fin < elements_.size(); ++fin) {
      if (elements_[fin]->isEmpty()) continue;
      const QSize taille = elements_[fin]->sizeHint();
      const int avec = largeur + (largeur > 0 ? spacing() : 0) + taille.width();
      if (largeur > 0 && avec > place.width()) break;
      largeur = avec;
      hauteur = std::max(hauteur, taille.height());
    }
    int x = place.x();
    for (; debut < fin; ++debut) {
      QLayoutItem& element = *elements_[debut];
      if (element.isEmpty()) continue;
      const QSize taille = element.sizeHint().boundedTo({place.width(), hauteur});
      if (poser) element.setGeometry({{x, y + (hauteur - taille.height()) / 2}, taille});
      x += taille.width() + spacing();
    }
    if (fin < elements_.size()) hauteur += entreLignes_ >= 0 ? entreLignes_ : spacing();
    y += hauteur;
  }
  return y - place.y();
}
