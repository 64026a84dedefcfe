#include "ui/commun/vue_dialogue.h"

#include <QVBoxLayout>
#include <algorithm>

#include "screens/commun/frm_dialogue.h"
#include "ui/commun/etiquette.h"
#include "ui/commun/liaison_champs.h"

VueDialogue::VueDialogue(TFrmDialogue& form, QWidget* parent)
    : DialogueBase(form.Titre, parent), form_(form), liaison_(new LiaisonChamps(form.Champs(), this)) {
  if (!form.Note.isEmpty()) {
    auto* note = new Etiquette(form.Note, TRole::Secondaire);
    note->setWordWrap(true);
    Contenu()->addWidget(note);
  }
  Contenu()->addLayout(CreerFormulaire(*liaison_));
  DefinirPrincipal(form.Principal);
  // A least width of one's own takes the place of what the fields need, in a large font as well.
  setMinimumWidth(std::max(Theme::Px(400), minimumSizeHint().width()));
  liaison_->Widget(form.PremierChamp())->setFocus(Qt::OtherFocusReason);
}

bool VueDialogue::Valider() { return form_.Valider(); }
