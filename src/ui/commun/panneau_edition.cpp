#include "ui/commun/panneau_edition.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVBoxLayout>

#include "ui/commun/marque_etat.h"
#include "ui/commun/titres.h"

using namespace Qt::StringLiterals;

namespace {

/// Texts stay within reach of the eye and of copying; the rest is switched off.
void PermettreEcriture(QWidget& champ, bool permise) {
  if (auto* ligne = qobject_cast<QLineEdit*>(&champ))
    ligne->setReadOnly(!permise);
  else if (auto* texte = qobject_cast<QTextEdit*>(&champ))
    texte->setReadOnly(!permise);
  else if (auto* simple = qobject_cast<QPlainTextEdit*>(&champ))
    simple->setReadOnly(!permise);
  else if (qobject_cast<QComboBox*>(&champ) || qobject_cast<QAbstractButton*>(&champ))
    champ.setEnabled(permise);
}

}  // namespace

PanneauEdition::PanneauEdition(QWidget* parent)
    : QWidget(parent),
      titre_(new TitreSection({})),
      marque_(new MarqueEtat),
      champs_(new QWidget),
      contenu_(new QVBoxLayout(champs_)) {
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(Theme::Px(8));
  contenu_->setContentsMargins(0, 0, 0, 0);
  contenu_->setSpacing(Theme::Px(8));
  titre_->AjouterAction(marque_);
  colonne->addWidget(titre_);
  colonne->addWidget(champs_);
}

void PanneauEdition::DefinirMode(TModeEdition mode, const QString& titre) {
  mode_ = mode;
  titre_->DefinirTexte(titre);
  const bool ecriture = mode != TModeEdition::Lecture;
  const QString debut = mode == TModeEdition::Nouveau ? u"Nouveau"_s : u"En modification"_s;
  marque_->Definir(
      ecriture ? u"data-information"_s : QString(),
      ecriture ? debut + u" · F9 enregistre, Échap annule"_s : u"En lecture · F2 modifie, F7 ajoute"_s);
  for (QWidget* champ : champs_->findChildren<QWidget*>())
    if (!qobject_cast<QLineEdit*>(champ->parentWidget()) && !qobject_cast<QComboBox*>(champ->parentWidget()))
      PermettreEcriture(*champ, ecriture);
}

void PanneauEdition::AllerAuPremierChamp() {
  for (QWidget* champ = champs_->nextInFocusChain(); champ && champs_->isAncestorOf(champ);
       champ = champ->nextInFocusChain()) {
    if (!(champ->focusPolicy() & Qt::TabFocus) || !champ->isEnabled() || !champ->isVisibleTo(this)) continue;
    champ->setFocus(Qt::TabFocusReason);
    return;
  }
}

void PanneauEdition::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_Escape && mode_ != TModeEdition::Lecture)
    emit Annule();
  else
    QWidget::keyPressEvent(evenement);
}
