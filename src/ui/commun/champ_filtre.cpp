#include "ui/commun/champ_filtre.h"

#include <QAction>
#include <QKeyEvent>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

ChampFiltre::ChampFiltre(const QString& indication, QWidget* parent) : QLineEdit(parent) {
  setPlaceholderText(indication);
  setAccessibleName(indication);
  setClearButtonEnabled(true);
  addAction(Theme::Icone(u"view-filter"_s, TRole::Secondaire), QLineEdit::LeadingPosition);
  setToolTip(u"Filtrer (Ctrl+F)"_s);
}

bool ChampFiltre::event(QEvent* evenement) {
  // Escape is ours while there is something to empty; else it leaves the dialog.
  if (evenement->type() == QEvent::ShortcutOverride && !text().isEmpty() &&
      static_cast<QKeyEvent*>(evenement)->key() == Qt::Key_Escape) {
    evenement->accept();
    return true;
  }
  return QLineEdit::event(evenement);
}

void ChampFiltre::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_Escape && !text().isEmpty())
    clear();
  else if (evenement->key() == Qt::Key_Down && suite_)
    suite_->setFocus(Qt::OtherFocusReason);
  else
    QLineEdit::keyPressEvent(evenement);
}
