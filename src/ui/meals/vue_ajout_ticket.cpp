#include "ui/meals/vue_ajout_ticket.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "screens/meals/frm_ajout_ticket.h"
#include "ui/commun/liaison_champs.h"

VueAjoutTicket::VueAjoutTicket(TFrmAjoutTicket& form, QWidget* parent)
    : DialogueBase(form.Titre, parent),
      form_(form),
      liaison_(new LiaisonChamps(form.Champs(), this)),
      annonce_(new Etiquette({}, TRole::Accent, &Theme::Gras)) {
  setMinimumWidth(Theme::Px(420));
  Contenu()->addLayout(CreerFormulaire(*liaison_));
  Contenu()->addWidget(annonce_);
  DefinirPrincipal(form.Principal);
  for (QLabel* libelle : findChildren<QLabel*>())
    if (libelle->buddy() == liaison_->Widget(u"dtDate"_s)) date_ = libelle;
  lien_ = form_.SurChangement.Suivre([this] { Actualiser(); });
  Actualiser();
  auto* nombre = static_cast<QLineEdit*>(liaison_->Widget(u"edNombre"_s));
  nombre->setFocus(Qt::OtherFocusReason);
  nombre->selectAll();
}

void VueAjoutTicket::Actualiser() {
  const bool vente = !form_.Manquant();
  liaison_->Widget(u"edNombre"_s)->setEnabled(vente);
  liaison_->Widget(u"rbPaiement"_s)->setEnabled(vente);
  date_->setText(form_.LibelleDate());
  liaison_->Widget(u"dtDate"_s)->setAccessibleName(form_.LibelleDate());
  annonce_->setText(form_.Annonce());
}

bool VueAjoutTicket::Valider() { return form_.Valider(); }
