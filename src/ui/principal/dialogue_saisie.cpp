#include "ui/principal/dialogue_saisie.h"

#include <QLineEdit>
#include <QPushButton>

#include "ui/commun/champ_libelle.h"

using namespace Qt::StringLiterals;

DialogueSaisie::DialogueSaisie(TSaisie saisie, QWidget* parent)
    : DialogueBase(saisie.Titre, parent), saisie_(std::move(saisie)), champ_(new QLineEdit(saisie_.Valeur)) {
  setMinimumWidth(Theme::Px(600));
  auto* champ = new ChampLibelle(saisie_.Invite.section(u'\n', 0, 0), champ_, ChampLibelle::Dessus);
  champ->Libelle()->setWordWrap(true);
  Contenu()->addWidget(champ);
  const QStringList notes = saisie_.Invite.split(u'\n').mid(1) + QStringList{saisie_.Aide};
  for (const QString& texte : notes) {
    if (texte.isEmpty()) continue;
    auto* note = new Etiquette(texte, TRole::Secondaire);
    note->setWordWrap(true);
    Contenu()->addWidget(note);
  }
  if (!saisie_.Principal.isEmpty()) DefinirPrincipal(saisie_.Principal);
  if (!saisie_.Autre.isEmpty())
    connect(AjouterBouton(saisie_.Autre), &QPushButton::clicked, this, [this] {
      champ_->setText(saisie_.ValeurAutre);
      accept();
    });
  resize(minimumWidth(), layout()->totalHeightForWidth(minimumWidth()));
  champ_->selectAll();
  champ_->setFocus();
}

bool DialogueSaisie::Valider() {
  const QString refus = saisie_.Refus ? saisie_.Refus(champ_->text()) : QString();
  MontrerFaute(refus, champ_);
  return refus.isEmpty();
}

QString DialogueSaisie::Texte() const { return champ_->text(); }
