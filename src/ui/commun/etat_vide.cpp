#include "ui/commun/etat_vide.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QVBoxLayout>

#include "ui/commun/bouton.h"

EtatVide::EtatVide(QWidget* hote)
    : QWidget(hote),
      titre_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      phrase_(new Etiquette({}, TRole::Secondaire)),
      bouton_(BoutonPrincipal({})) {
  auto* colonne = new QVBoxLayout(this);
  const int marge = Theme::Px(16);
  colonne->setContentsMargins(marge, marge, marge, marge);
  colonne->setSpacing(Theme::Px(8));
  for (Etiquette* etiquette : {titre_, phrase_}) {
    etiquette->setAlignment(Qt::AlignCenter);
    etiquette->setWordWrap(true);
  }
  colonne->addStretch(1);
  colonne->addWidget(titre_);
  colonne->addWidget(phrase_);
  colonne->addWidget(bouton_, 0, Qt::AlignHCenter);
  colonne->addStretch(1);
  connect(bouton_, &QPushButton::clicked, this, &EtatVide::BoutonPresse);
  const auto* liste = qobject_cast<QAbstractScrollArea*>(hote);
  (liste ? liste->viewport() : hote)->installEventFilter(this);
  hide();
}

void EtatVide::Montrer(const QString& titre, const QString& phrase, const QString& bouton) {
  titre_->setText(titre);
  phrase_->setText(phrase);
  phrase_->setVisible(!phrase.isEmpty());
  bouton_->setText(bouton);
  bouton_->setVisible(!bouton.isEmpty());
  setAccessibleName(titre);
  Placer();
  show();
  raise();
}

void EtatVide::Montrer(const TVide& vide) {
  vide.Titre.isEmpty() ? Cacher() : Montrer(vide.Titre, vide.Phrase, vide.Bouton);
}

void EtatVide::Cacher() { hide(); }

void EtatVide::Placer() {
  const auto* liste = qobject_cast<QAbstractScrollArea*>(parentWidget());
  setGeometry(liste ? liste->viewport()->geometry() : parentWidget()->rect());
}

bool EtatVide::eventFilter(QObject*, QEvent* evenement) {
  const QEvent::Type type = evenement->type();
  if (type == QEvent::Resize || type == QEvent::Move || type == QEvent::Show) Placer();
  return false;
}
