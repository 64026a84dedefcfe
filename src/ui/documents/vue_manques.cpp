#include "ui/documents/vue_manques.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "screens/documents/frm_manques.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueManques::VueManques(TFrmManques& form, QWidget* parent) : DialogueBase(form.Titre(), parent), form_(form) {
  DefinirEntete(form_.Texte());
  auto* grille = new VueGrille(form_.Grille, u"Ce qui manque"_s, u"Manques/Liste"_s);
  grille->DefinirColonneSouple(2);
  grille->setMinimumSize(Theme::Px(640), grille->HauteurPour(6));
  Contenu()->addWidget(grille, 1);
  connect(grille, &VueGrille::Activee, this, &VueManques::Aller);
  DefinirPrincipal(form_.Imprimable() ? form_.LibelleImprimer() : u"Aller à la fiche"_s);
  if (form_.AvecChamps()) {
    QPushButton* aller = form_.Imprimable() ? AjouterBouton(u"Aller à la fiche"_s) : Principal();
    if (form_.Imprimable()) connect(aller, &QPushButton::clicked, this, &VueManques::Aller);
    const auto suivre = [this, aller] {
      aller->setEnabled(form_.PeutAller());
      aller->setToolTip(form_.PeutAller() ? QString() : u"Rien n'est à remplir pour cette ligne"_s);
    };
    connect(grille, &VueGrille::Choisie, this, suivre);
    suivre();
  }
  if (!form_.Imprimable() && !form_.AvecChamps()) DefinirPrincipal(u"Fermer"_s);
  // All of a row in sight on a usual screen, and the buttons on the smallest one.
  const QSize moindre(Theme::Px(960), Theme::Px(428));
  const QSize place = QGuiApplication::primaryScreen()->availableSize().expandedTo(moindre);
  resize(QSize(Theme::Px(1012), moindre.height()).boundedTo(place));
  grille->setFocus(Qt::OtherFocusReason);
}

void VueManques::Aller() {
  form_.btnAllerClick();
  if (form_.Choisi() != nullptr) accept();
}

bool VueManques::Valider() {
  form_.Imprimable() || !form_.AvecChamps() ? form_.btnImprimerClick() : form_.btnAllerClick();
  return !form_.EstMontree();
}
