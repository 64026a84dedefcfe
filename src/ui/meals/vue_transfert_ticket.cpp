#include "ui/meals/vue_transfert_ticket.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/meals/frm_transfert_ticket.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueTransfertTicket::VueTransfertTicket(TFrmTransfertTicket& form, QWidget* parent)
    : DialogueBase(u"Transférer un ticket"_s, parent), form_(form), classe_(new Etiquette(form.Classe())) {
  auto* grille = new VueGrille(form.Eleves, u"Élèves de l'année"_s, u"TransfertTicket/Eleves"_s);
  grille->setMinimumSize(Theme::Px(420), Theme::Px(320));
  auto* filtre = new ChampFiltre(u"Nom de l'élève"_s);
  grille->Filtrer(*filtre);
  Contenu()->addWidget(filtre);
  Contenu()->addWidget(grille, 1);
  Contenu()->addWidget(classe_);
  DefinirPrincipal(u"Valider"_s);
  liens_ += form_.SurChangement.Suivre([this] { classe_->setText(form_.Classe()); });
  connect(grille, &VueGrille::Activee, this, [this] { Principal()->click(); });
  filtre->setFocus(Qt::OtherFocusReason);
}

bool VueTransfertTicket::Valider() { return form_.btnValiderClick(); }
