#include "ui/commun/etiquette.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

Etiquette::Etiquette(const QString& texte, TRole role, QFont (*police)(), QWidget* parent)
    : QLabel(texte, parent), role_(role), police_(police) {
  setTextFormat(Qt::PlainText);
  Habiller();
}

void Etiquette::DefinirRole(TRole role) {
  role_ = role;
  if (role == TRole::Texte) setPalette({});  // the colour of the window again
  Habiller();
}

void Etiquette::DefinirElision(bool elision) {
  elision_ = elision;
  updateGeometry();
  update();
}

void Etiquette::Habiller() {
  if (police_) {
    const QFont police = police_();
    if (font() != police) setFont(police);
  }
  const QColor couleur = Theme::Couleur(role_);
  QPalette habit = palette();
  if (role_ == TRole::Texte || habit.color(QPalette::Active, QPalette::WindowText) == couleur) return;
  habit.setColor(QPalette::Active, QPalette::WindowText, couleur);
  habit.setColor(QPalette::Inactive, QPalette::WindowText, couleur);
  setPalette(habit);
}

QSize Etiquette::minimumSizeHint() const {
  const QSize taille = QLabel::minimumSizeHint();
  return elision_ ? QSize(std::min(taille.width(), Theme::Px(24)), taille.height()) : taille;
}

void Etiquette::changeEvent(QEvent* evenement) {
  QLabel::changeEvent(evenement);
  const QEvent::Type type = evenement->type();
  if (type == QEvent::PaletteChange || type == QEvent::StyleChange || type == QEvent::FontChange) Habiller();
}

void Etiquette::paintEvent(QPaintEvent* evenement) {
  if (!elision_ || fontMetrics().horizontalAdvance(text()) <= contentsRect().width()) {
    QLabel::paintEvent(evenement);
    return;
  }
  QPainter peintre(this);
  const QString court = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&peintre, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                        court, foregroundRole());
}

bool Etiquette::event(QEvent* evenement) {
  if (evenement->type() == QEvent::ToolTip && elision_ && toolTip().isEmpty()) {
    const bool coupe = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), coupe ? text() : QString(), this, {},
                       toolTipDuration());
    return true;
  }
  return QLabel::event(evenement);
}
