#include "ui/services/vue_liste_frais.h"

#include <QHBoxLayout>

#include "screens/services/frm_liste_frais.h"
#include "ui/commun/bouton.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/rangee_pliante.h"
#include "ui/services/arbre_coches.h"

VueListeFrais::VueListeFrais(TFrmListeFrais& form, QWidget* parent)
    : VueListe(form, parent),
      frais_(form),
      mode_(BoutonSimple({})),
      nombre_(new Etiquette({}, TRole::Secondaire)),
      tvEleve_(new ArbreCoches(form, ArbreCoches::Eleves, u"Élèves concernés"_s)),
      tvClasse_(new ArbreCoches(form, ArbreCoches::Classes, u"Classes concernées"_s)) {
  mode_->setObjectName(u"btnFraisPaye"_s);
  mode_->setCheckable(true);
  mode_->setToolTip(u"Les élèves cochés dans ce mode ont déjà payé"_s);
  connect(mode_, &QPushButton::clicked, this, [this] { frais_.btnFraisPayeClick(); });
  auto* tete = new RangeePliante;  // two lines rather than a panel wider than a small window
  tete->addWidget(nombre_);
  tete->addWidget(mode_);
  auto* colonne = new QVBoxLayout;
  colonne->setSpacing(Theme::Px(8));
  colonne->addLayout(tete);
  for (ArbreCoches* arbre : {tvEleve_, tvClasse_}) {
    arbre->setFixedHeight(Theme::Px(220));
    colonne->addWidget(arbre);
  }
  colonne->addStretch(1);
  Panneau()->addLayout(colonne, 2);
  liens_ += form.SurCoches.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueListeFrais::Actualiser() {
  VueListe::Actualiser();
  const bool eleves = frais_.Concerne() == TTypeFrais::Eleves;
  tvEleve_->setVisible(eleves);
  tvClasse_->setVisible(!eleves);
  mode_->setText(frais_.TexteMode());
  mode_->setChecked(frais_.ModePaye());
  mode_->setEnabled(frais_.Mode() != TModeEdition::Lecture);
  nombre_->setText(frais_.TexteCoches());
}
