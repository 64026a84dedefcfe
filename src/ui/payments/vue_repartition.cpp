#include "ui/payments/vue_repartition.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/payments/frm_repartition.h"
#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueRepartition::VueRepartition(TFrmRepartition& form, QWidget* parent)
    : DialogueBase(u"Répartir le virement"_s, parent),
      form_(form),
      liaison_(new LiaisonChamps(form.Champs(), this)),
      parts_(new VueGrille(form.Parts, u"Parts"_s, u"Repartition/Parts"_s)),
      eleves_(new VueGrille(form.Eleves, u"Élèves de l'année"_s, u"Repartition/Eleves"_s)),
      reste_(new MarqueEtat) {
  Contenu()->addLayout(CreerParts());
  Contenu()->addLayout(CreerEleves(), 1);
  // A part is typed and left towards what comes next, not onto the button that takes its pupil out.
  setTabOrder(parts_, retirer_);
  setTabOrder(retirer_, liaison_->Widget(u"edPart"_s));
  DefinirPrincipal(u"Répartir"_s, u"dialog-ok-apply"_s);
  connect(AjouterBouton(u"&Selon les soldes dus"_s), &QPushButton::clicked, this,
          [this] { form_.btnRepartirClick(); });
  connect(parts_, &VueGrille::Suppression, this, [this] { form_.btnRetirerClick(); });
  connect(eleves_, &VueGrille::Activee, this, [this] { form_.btnAjouterClick(); });
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
  (form_.Parts.NombreLignes() > 0 ? parts_ : eleves_)->setFocus(Qt::OtherFocusReason);
}

QLayout* VueRepartition::CreerParts() {
  parts_->setMinimumSize(Theme::Px(560), parts_->HauteurPour(4));
  QWidget* part = liaison_->Widget(u"edPart"_s);
  retirer_ = BoutonSimple(u"&Retirer"_s);
  connect(retirer_, &QPushButton::clicked, this, [this] { form_.btnRetirerClick(); });
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  rang->addWidget(CreerLibelleDeRang(u"Part de l'élève choisi:"_s, part), 0, Qt::AlignTop);
  rang->addLayout(liaison_->Rangee({{0, 0}}));
  rang->addWidget(retirer_, 0, Qt::AlignTop);
  rang->addStretch(1);
  rang->addWidget(reste_);
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addWidget(parts_);
  colonne->addLayout(rang);
  return colonne;
}

QLayout* VueRepartition::CreerEleves() {
  eleves_->setMinimumHeight(eleves_->HauteurPour(6));
  auto* filtre = new ChampFiltre(u"Ajouter un élève"_s);
  eleves_->Filtrer(*filtre);
  QPushButton* ajouter = BoutonSimple(u"&Ajouter"_s, u"list-add"_s);
  connect(ajouter, &QPushButton::clicked, this, [this] { form_.btnAjouterClick(); });
  auto* rang = new QHBoxLayout;
  rang->setSpacing(Theme::Px(8));
  rang->addWidget(filtre, 1);
  rang->addWidget(ajouter);
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addLayout(rang);
  colonne->addWidget(eleves_, 1);
  return colonne;
}

void VueRepartition::Actualiser() {
  DefinirEntete(form_.Titre());
  const bool sansPart = form_.Parts.NombreLignes() == 0;
  reste_->Definir(form_.DeTrop() ? TNiveauEtat::Erreur : TNiveauEtat::Neutre, form_.TexteReste());
  retirer_->setEnabled(!sansPart);
  Principal()->setEnabled(!sansPart && !form_.DeTrop());
}

bool VueRepartition::Valider() { return form_.btnValiderClick(); }
