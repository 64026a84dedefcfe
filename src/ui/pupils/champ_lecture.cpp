#include "ui/pupils/champ_lecture.h"

#include <QHelpEvent>
#include <QToolTip>

#include "ui/commun/theme.h"

ChampLecture::ChampLecture(const QString& nom, QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setAccessibleName(nom);
  setMinimumWidth(Theme::Px(40));
}

void ChampLecture::Montrer(const QString& texte) {
  if (text() == texte) return;
  setText(texte);
  setCursorPosition(0);
}

bool ChampLecture::event(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) return QLineEdit::event(evenement);
  const bool coupe = fontMetrics().horizontalAdvance(text()) > width() - Theme::Px(12);
  QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), coupe ? text() : QString(), this, {},
                     toolTipDuration());
  return true;
}
