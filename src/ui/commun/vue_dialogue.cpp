#include "ui/commun/vue_dialogue.h"

#include <QVBoxLayout>

#include "screens/commun/frm_dialogue.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/liaison_champs.h"

VueDialogue::VueDialogue(TFrmDialogue& form, QWidget* parent)
    : DialogueBase(form.Titre, parent), form_(form), liaison_(new LiaisonChamps(form.Champs(), this)) {
  setMinimumWidth(Theme::Px(400));
  if (!form.Note.isEmpty()) {
    auto* note = new Etiquette(form.Note, TRole::Secondaire);
    note->setWordWrap(true);
    Contenu()->addWidget(note);
  }
  Contenu()->addLayout(CreerFormulaire(*liaison_));
  DefinirPrincipal(form.Principal);
  liaison_->Widget(form.PremierChamp())->setFocus(Qt::OtherFocusReason);
}

bool VueDialogue::Valider() { return form_.Valider(); }
