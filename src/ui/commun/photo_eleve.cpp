#include "ui/commun/photo_eleve.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

PhotoEleve::PhotoEleve(QWidget* parent) : QAbstractButton(parent) {
  setAccessibleName(u"Photo"_s);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  setCursor(Qt::PointingHandCursor);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PhotoEleve::Definir(const QImage& image) {
  image_ = QPixmap::fromImage(image);
  setToolTip(image.isNull() ? QString() : u"Changer la photo"_s);
  update();
}

void PhotoEleve::contextMenuEvent(QContextMenuEvent* evenement) {
  QMenu menu(this);
  menu.addAction(Theme::Icone(u"document-open"_s), u"Choisir une photo..."_s, this, &QAbstractButton::click);
  menu.addAction(Theme::Icone(u"edit-delete"_s, TRole::Erreur), u"Effacer la photo"_s, this,
                 &PhotoEleve::Effacee)
      ->setEnabled(PeutEffacer && PeutEffacer());
  menu.exec(evenement->globalPos());
}

void PhotoEleve::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_Delete)
    emit Effacee();
  else
    QAbstractButton::keyPressEvent(evenement);
}

void PhotoEleve::dragEnterEvent(QDragEnterEvent* evenement) {
  if (evenement->mimeData()->hasUrls()) evenement->acceptProposedAction();
}

void PhotoEleve::dropEvent(QDropEvent* evenement) {
  const QList<QUrl> fichiers = evenement->mimeData()->urls();
  evenement->acceptProposedAction();
  if (!fichiers.isEmpty()) emit FichierDepose(fichiers.first().toLocalFile());
}

QSize PhotoEleve::sizeHint() const { return {Theme::Px(82), Theme::Px(95)}; }

void PhotoEleve::paintEvent(QPaintEvent*) {
  QPainter peintre(this);
  peintre.setRenderHint(QPainter::SmoothPixmapTransform);
  if (image_.isNull()) {
    peintre.fillRect(rect(), underMouse() ? Theme::Couleur(TRole::Survol) : palette().color(QPalette::Base));
    peintre.setPen(QPen(Theme::Couleur(TRole::Bord), 1, Qt::DashLine));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
    peintre.setPen(Theme::Couleur(TRole::Secondaire));
    peintre.setFont(Theme::Petite());
    const int marge = Theme::Px(4);
    peintre.drawText(rect().adjusted(marge, marge, -marge, -marge), Qt::AlignCenter | Qt::TextWordWrap,
                     u"Cliquez ici pour ajouter une photo"_s);
  } else {
    const QSize taille = image_.size().scaled(size(), Qt::KeepAspectRatio);
    peintre.drawPixmap(
        QRect(QPoint((width() - taille.width()) / 2, (height() - taille.height()) / 2), taille), image_);
  }
  if (!hasFocus()) return;
  peintre.setPen(QPen(Theme::Couleur(TRole::Accent), 2));
  peintre.drawRect(rect().adjusted(1, 1, -1, -1));
}
