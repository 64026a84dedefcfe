#include "ui/commun/champ_texte.h"

#include <QHelpEvent>
#include <QToolTip>

#include "ui/commun/theme.h"

ChampTexte::ChampTexte(QWidget* parent) : QLineEdit(parent) { setMinimumWidth(Theme::Px(40)); }

bool ChampTexte::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) return QLineEdit::event(evenement);
  const bool coupe = fontMetrics().horizontalAdvance(text()) > width() - Theme::Px(12);
  QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), coupe ? text() : QString(), this, {},
                     toolTipDuration());
  return true;
}
