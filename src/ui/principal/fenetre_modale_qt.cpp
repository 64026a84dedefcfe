#include "ui/principal/fenetre_modale_qt.h"

#include <QDialog>

#include "core/exceptions.h"
#include "ui/principal/dialogues_qt.h"
#include "ui/vues.h"

using namespace Qt::StringLiterals;

TResultatModal FenetreModaleQt::MontrerModal(TForm& form) {
  form.ResultatModal = TResultatModal::Aucun;
  const TDevant devant;
  const std::unique_ptr<QWidget> vue(CreerVue(form, devant.Fenetre()));
  auto* dialogue = qobject_cast<QDialog*>(vue.get());
  if (dialogue == nullptr) throw Exception(u"Cette fenêtre ne peut pas être montrée."_s);
  form.Montrer();
  // Closed by the window's own means it is a form that was given up, unless the form refuses.
  do {
    dialogue->exec();
    if (!form.EstMontree()) break;
    form.ResultatModal = TResultatModal::Annule;
  } while (!form.Fermer());
  return form.ResultatModal;
}
