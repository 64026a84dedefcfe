#include "ui/meals/vue_transfert_repas.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/meals/frm_transfert_repas.h"
#include "ui/commun/bouton.h"
#include "ui/commun/marque_etat.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"
#include "ui/meals/rangee_compteurs.h"

using namespace Qt::StringLiterals;

VueTransfertRepas::VueTransfertRepas(TFrmTransfertRepas& form, QWidget* parent)
    : QWidget(parent),
      form_(form),
      etat_(new MarqueEtat),
      comptes_(new RangeeCompteurs),
      anomalies_(new VueGrille(form.Anomalies, u"Anomalies"_s, u"TransfertRepas/Anomalies"_s)),
      recommencer_(BoutonSimple(u"Recommencer le transfert"_s, u"view-refresh"_s)) {
  recommencer_->setMinimumHeight(Theme::CoteDoigt());
  connect(recommencer_, &QPushButton::clicked, this, [this] { form_.btnRecommencerClick(); });
  QVBoxLayout* colonne = ColonneEcran(*this, u"Transfert"_s);
  colonne->addWidget(etat_);
  colonne->addWidget(comptes_);
  colonne->addWidget(anomalies_, 1);
  colonne->addWidget(recommencer_, 0, Qt::AlignLeft);
  colonne->addStretch(0);
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
}

void VueTransfertRepas::Actualiser() {
  etat_->Definir(form_.Niveau(), form_.Etat());
  comptes_->setVisible(form_.Analyse());
  comptes_->Definir(form_.Compteurs());
  anomalies_->setVisible(form_.Anomalies.NombreLignes() > 0);
  recommencer_->setEnabled(form_.PeutRecommencer());
}
