#include "ui/meals/choix_classe_jour.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

#include "screens/meals/frm_classe_jour.h"
#include "ui/commun/etiquette.h"

using namespace Qt::StringLiterals;

namespace {

QToolButton* Pas(const QString& icone, const QString& nom, const QKeySequence& touche) {
  auto* bouton = new QToolButton;
  bouton->setIcon(Theme::Icone(icone));
  bouton->setAccessibleName(nom);
  bouton->setToolTip(nom % u" (" % touche.toString(QKeySequence::NativeText) % u')');
  bouton->setFocusPolicy(Qt::StrongFocus);
  // At once: the shortcut of a button presses it a moment later.
  QObject::connect(new QShortcut(touche, bouton), &QShortcut::activated, bouton, &QToolButton::click);
  return bouton;
}

}  // namespace

ChoixClasseJour::ChoixClasseJour(bool avecClasse, QWidget* parent)
    : QWidget(parent),
      classes_(new QComboBox),
      recule_(Pas(u"go-previous"_s, u"Jour précédent"_s, QKeySequence(Qt::ALT | Qt::Key_Left))),
      jour_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      avance_(Pas(u"go-next"_s, u"Jour suivant"_s, QKeySequence(Qt::ALT | Qt::Key_Right))) {
  classes_->setAccessibleName(u"Classe"_s);
  classes_->setMinimumWidth(Theme::Px(220));
  auto* ligne = new QHBoxLayout(this);
  ligne->setContentsMargins(0, 0, 0, 0);
  ligne->setSpacing(Theme::Px(8));
  ligne->addWidget(classes_);
  for (QWidget* widget :
       {static_cast<QWidget*>(recule_), static_cast<QWidget*>(jour_), static_cast<QWidget*>(avance_)})
    ligne->addWidget(widget);
  ligne->addStretch(1);
  classes_->setVisible(avecClasse);
  connect(classes_, &QComboBox::activated, this, &ChoixClasseJour::ClasseChoisie);
  connect(recule_, &QToolButton::clicked, this, &ChoixClasseJour::Recule);
  connect(avance_, &QToolButton::clicked, this, &ChoixClasseJour::Avance);
}

void ChoixClasseJour::DefinirClasses(const QStringList& classes, int choisie) {
  const QSignalBlocker silence(classes_);
  QStringList presentes;
  for (int i = 0; i < classes_->count(); ++i) presentes += classes_->itemText(i);
  if (presentes != classes) {
    classes_->clear();
    classes_->addItems(classes);
  }
  classes_->setCurrentIndex(choisie);
}

void ChoixClasseJour::Suivre(TFrmClasseJour& form) {
  connect(this, &ChoixClasseJour::ClasseChoisie, this, [&form](int indice) { form.cmbClasseChange(indice); });
  connect(this, &ChoixClasseJour::Recule, this, [&form] { form.btnReculeDateClick(); });
  connect(this, &ChoixClasseJour::Avance, this, [&form] { form.btnAvanceDateClick(); });
}

void ChoixClasseJour::Montrer(const TFrmClasseJour& form) {
  DefinirClasses(form.Classes(), form.IndiceClasse());
  DefinirJour(form.TitreJour(), form.DatesVisibles());
}

void ChoixClasseJour::DefinirJour(const QString& titre, bool pas) {
  jour_->setText(titre);
  recule_->setVisible(pas);
  avance_->setVisible(pas);
}

void ChoixClasseJour::Verrouiller(bool verrou) {
  for (QWidget* widget :
       {static_cast<QWidget*>(classes_), static_cast<QWidget*>(recule_), static_cast<QWidget*>(avance_)})
    widget->setEnabled(!verrou);
}

void ChoixClasseJour::AjouterAction(QWidget* action) { layout()->addWidget(action); }
