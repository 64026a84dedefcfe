#include "ui/meals/vue_comptabilite.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "screens/meals/frm_comptabilite.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueComptabilite::VueComptabilite(TFrmComptabilite& form, QWidget* parent)
    : QWidget(parent), form_(form), liaison_(new LiaisonChamps(form.Champs(), this)) {
  auto* periode = new QHBoxLayout;
  periode->addWidget(new QLabel(u"Période de comptabilisation des tickets vendus"_s));
  periode->addWidget(liaison_->Widget(u"dtDebut"_s));
  periode->addWidget(new QLabel(u"au"_s));
  periode->addWidget(liaison_->Widget(u"dtFin"_s));
  periode->addStretch(1);
  auto* pages = new QTabWidget;
  AjouterPage(*pages, form.Versements, u"Versement sur le compte"_s, u"Compta/Versements"_s);
  AjouterPage(*pages, form.Comptant, u"Paiement au comptant"_s, u"Compta/Comptant"_s);
  QVBoxLayout* colonne = ColonneEcran(*this, u"Compta"_s);
  colonne->addLayout(periode);
  colonne->addWidget(pages, 1);
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueComptabilite::AjouterPage(QTabWidget& pages, TGrille& grille, const QString& titre,
                                  const QString& ecran) {
  auto* vue = new VueGrille(grille, titre, ecran);
  vides_.emplace_back(&grille, new EtatVide(vue));
  pages.addTab(vue, titre);
}

// Afterwards, where what fails is told.
void VueComptabilite::showEvent(QShowEvent* evenement) {
  QWidget::showEvent(evenement);
  QMetaObject::invokeMethod(
      this, [this] { form_.Actualiser(); }, Qt::QueuedConnection);
}

void VueComptabilite::Actualiser() {
  for (const auto& [grille, vide] : vides_) {
    if (grille->NombreLignes() > 0)
      vide->Cacher();
    else
      vide->Montrer(u"Aucune vente dans cette période"_s, form_.Vide());
  }
}
