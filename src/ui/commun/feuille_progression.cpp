#include "ui/commun/feuille_progression.h"

#include <QGridLayout>
#include <QPainter>
#include <QProgressBar>

using namespace Qt::StringLiterals;

FeuilleProgression::FeuilleProgression(QWidget* parent)
    : QFrame(parent),
      titre_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      compte_(new Etiquette({}, TRole::Texte, &Theme::Gras)),
      barre_(new QProgressBar),
      libelle_(new Etiquette({}, TRole::Secondaire)),
      nom_(new Etiquette({}, TRole::Texte, &Theme::Gras)),
      note_(new Etiquette({}, TRole::Secondaire)) {
  auto* grille = new QGridLayout(this);
  const int marge = Theme::Px(16);
  grille->setContentsMargins(marge, Theme::Px(12), marge, Theme::Px(12));
  grille->setHorizontalSpacing(Theme::Px(8));
  grille->setVerticalSpacing(Theme::Px(8));
  barre_->setTextVisible(false);
  nom_->DefinirElision(true);
  note_->DefinirElision(true);
  note_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grille->addWidget(titre_, 0, 0, 1, 2);
  grille->addWidget(compte_, 0, 2, Qt::AlignRight);
  grille->addWidget(barre_, 1, 0, 1, 3);
  grille->addWidget(libelle_, 2, 0);
  grille->addWidget(nom_, 2, 1);
  grille->addWidget(note_, 2, 2);
  grille->setColumnStretch(1, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  hide();
}

void FeuilleProgression::Demarrer(const QString& titre, int total, const QString& libelle,
                                  const QString& note) {
  titre_->DefinirRole(TRole::Texte);
  titre_->setText(titre);
  barre_->setAccessibleName(titre);
  barre_->setRange(0, total);
  libelle_->setText(libelle);
  libelle_->setVisible(!libelle.isEmpty());
  note_->setText(note);
  Avancer(0, {});
  barre_->show();
  show();
}

void FeuilleProgression::Avancer(int fait, const QString& nom) {
  barre_->setValue(fait);
  compte_->setText(barre_->maximum() > 0 ? u"%1 sur %2"_s.arg(fait).arg(barre_->maximum()) : QString());
  nom_->setText(nom);
}

void FeuilleProgression::Arreter(const QString& titre, const QString& note) {
  titre_->DefinirRole(TRole::Erreur);
  titre_->setText(titre);
  note_->setText(note);
  show();
}

void FeuilleProgression::Terminer() { hide(); }

void FeuilleProgression::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), Theme::Couleur(TRole::Selection));
}
