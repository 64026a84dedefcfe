#include "ui/commun/titres.h"

#include <QHBoxLayout>

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

void Titre::AjouterAction(QWidget* action) { ligne_->addWidget(action); }

void Titre::AjouterSuite(QWidget* suite) { ligne_->insertWidget(1 + suites_++, suite); }
