#include "ui/commun/dialogue_base.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/commun/bouton.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/marque_etat.h"

using namespace Qt::StringLiterals;

DialogueBase::DialogueBase(const QString& titre, QWidget* parent)
    : QDialog(parent),
      entete_(new Etiquette({}, TRole::Texte, &Theme::TitreSection)),
      contenu_(new QVBoxLayout),
      faute_(new MarqueEtat),
      boutons_(new QHBoxLayout),
      annuler_(BoutonSimple(u"Annuler"_s)),
      principal_(BoutonPrincipal(u"OK"_s)) {
  setWindowTitle(titre);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* colonne = new QVBoxLayout(this);
  const int marge = Theme::Px(16);
  colonne->setContentsMargins(marge, marge, marge, marge);
  colonne->setSpacing(Theme::Px(12));
  contenu_->setContentsMargins(0, 0, 0, 0);
  contenu_->setSpacing(Theme::Px(8));
  entete_->setWordWrap(true);
  entete_->hide();
  faute_->hide();
  principal_->setDefault(true);
  annuler_->setMinimumHeight(Theme::Px(34));
  annuler_->setFocusPolicy(Qt::TabFocus);  // a press must not be called back by a field that is refused
  boutons_->setSpacing(Theme::Px(8));
  boutons_->addWidget(annuler_);
  boutons_->addStretch(1);
  boutons_->addWidget(principal_);
  colonne->addWidget(entete_);
  colonne->addLayout(contenu_, 1);
  colonne->addWidget(faute_);
  colonne->addLayout(boutons_);
  connect(annuler_, &QPushButton::clicked, this, &QDialog::reject);
  connect(principal_, &QPushButton::clicked, this, [this] {
    MontrerFaute({});
    if (Valider()) accept();
  });
}

void DialogueBase::DefinirPrincipal(const QString& texte, const QString& icone) {
  principal_->setText(texte);
  principal_->setIcon(icone.isEmpty() ? QIcon() : Theme::Icone(icone, TRole::SurAccent));
}

QPushButton* DialogueBase::AjouterBouton(const QString& texte, const QString& icone) {
  QPushButton* bouton = BoutonSimple(texte, icone);
  bouton->setMinimumHeight(Theme::Px(34));
  boutons_->insertWidget(boutons_->count() - 1, bouton);
  return bouton;
}

void DialogueBase::DefinirEntete(const QString& texte) {
  entete_->setText(texte);
  entete_->setVisible(!texte.isEmpty());
}

void DialogueBase::MontrerFaute(const QString& texte, QWidget* champ) {
  if (fautif_) MarquerFaute(*fautif_, false);
  fautif_ = champ;
  faute_->Definir(TNiveauEtat::Erreur, texte);
  faute_->setVisible(!texte.isEmpty());
  if (!champ) return;
  MarquerFaute(*champ, true);
  champ->setFocus(Qt::OtherFocusReason);
}
