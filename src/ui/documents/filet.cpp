#include "ui/documents/filet.h"

#include <QPainter>

#include "ui/commun/theme.h"

Filet::Filet(Qt::Orientation sens, QWidget* parent) : QWidget(parent) {
  if (sens == Qt::Horizontal)
    setFixedHeight(1);
  else
    setFixedWidth(1);
}

void Filet::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), Theme::Couleur(TRole::Ligne)); }
