#include "ui/commun/titres.h"

#include <QScrollArea>
#include <QVBoxLayout>

Titre::Titre(const QString& texte, QFont (*police)(), QWidget* parent)
    : QWidget(parent),
      titre_(new Etiquette(texte, TRole::Texte, police)),
      note_(new Etiquette({}, TRole::Secondaire)),
      ligne_(new QHBoxLayout(this)) {
  ligne_->setContentsMargins(0, 0, 0, 0);
  ligne_->setSpacing(Theme::Px(8));
  titre_->DefinirElision(true);
  note_->DefinirElision(true);
  note_->hide();
  ligne_->addWidget(titre_);
  ligne_->addWidget(note_);
  ligne_->addStretch(1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void Titre::DefinirTexte(const QString& texte) { titre_->setText(texte); }

void Titre::DefinirNote(const QString& note) {
  note_->setText(note);
  note_->setVisible(!note.isEmpty());
  // Where there is no room for both it is the note that is shortened.
  titre_->setSizePolicy(note.isEmpty() ? QSizePolicy::Preferred : QSizePolicy::Minimum,
                        QSizePolicy::Preferred);
}

void Titre::GarderTexte() { titre_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred); }

void Titre::AjouterAction(QWidget* action) { ligne_->addWidget(action); }

void Titre::AjouterSuite(QWidget* suite) { ligne_->insertWidget(1 + suites_++, suite); }

QVBoxLayout* ColonneEcran(QWidget& ecran, TitreEcran* titre) {
  QWidget* page = &ecran;
  if (auto* zone = qobject_cast<QScrollArea*>(&ecran)) {
    zone->setWidgetResizable(true);
    zone->setFrameShape(QFrame::NoFrame);
    zone->setFocusPolicy(Qt::NoFocus);
    zone->setWidget(page = new QWidget);
  }
  auto* colonne = new QVBoxLayout(page);
  colonne->setContentsMargins(Theme::Px(16), Theme::Px(12), Theme::Px(16), Theme::Px(12));
  colonne->setSpacing(Theme::Px(12));
  colonne->addWidget(titre);
  return colonne;
}
