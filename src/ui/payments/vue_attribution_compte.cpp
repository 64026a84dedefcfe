#include "ui/payments/vue_attribution_compte.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/payments/frm_attribution_compte.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

VueAttributionCompte::VueAttributionCompte(TFrmAttributionCompte& form, QWidget* parent)
    : DialogueBase(u"Attribution de compte bancaire sur base des virements"_s, parent), form_(form) {
  auto* grille = new VueGrille(form.Comptes, u"Comptes vus sur les virements"_s, u"Attribution/Comptes"_s);
  grille->setMinimumSize(Theme::Px(500), grille->HauteurPour(5));
  Contenu()->addWidget(grille, 1);
  DefinirPrincipal(u"Sélectionner"_s);
  connect(grille, &VueGrille::Activee, this, [this] { Principal()->click(); });
  grille->setFocus(Qt::OtherFocusReason);
}

bool VueAttributionCompte::Valider() { return form_.btnSelectionnerClick(); }
