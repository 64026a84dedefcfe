#include "ui/parametres/vue_mon_ecole.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "screens/parametres/frm_mon_ecole.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/liaison_champs.h"
#include "ui/commun/titres.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

QVBoxLayout* Remplir(QWidget& page) {
  auto* colonne = new QVBoxLayout(&page);
  colonne->setContentsMargins(0, Theme::Px(16), 0, 0);
  colonne->setSpacing(Theme::Px(12));
  return colonne;
}

}  // namespace

VueMonEcole::VueMonEcole(TFrmMonEcole& form, QWidget* parent) : QScrollArea(parent), pages_(new QTabWidget) {
  ColonneEcran(*this, u"Mon école"_s)->addWidget(pages_, 1);
  pages_->setAccessibleName(u"Pages de mon école"_s);
  pages_->addTab(CreerDenomination(form), u"Dénomination de l'école"_s);
  pages_->addTab(CreerImplantations(form), u"Implantations"_s);
  setFocusProxy(pages_);  // a field that is left is written: none is entered by itself
}

QWidget* VueMonEcole::CreerDenomination(TFrmMonEcole& form) {
  auto* page = new QWidget;
  QVBoxLayout* colonne = Remplir(*page);
  auto* liaison = new LiaisonChamps(form.Ecole, this);
  auto* champs = new QWidget;
  champs->setLayout(CreerFormulaire(*liaison));
  champs->setMaximumWidth(Theme::Px(720));
  auto* rang = new QHBoxLayout;
  rang->addWidget(champs, 1);
  rang->addStretch();
  colonne->addLayout(rang);
  colonne->addStretch(1);
  return page;
}

QWidget* VueMonEcole::CreerImplantations(TFrmMonEcole& form) {
  auto* page = new QWidget;
  QVBoxLayout* colonne = Remplir(*page);
  auto* liste = new VueGrille(form.grdImplantation, u"Implantations"_s, u"MonEcole/Implantations"_s);
  liste->setMinimumHeight(liste->HauteurPour(4));
  auto* liaison = new LiaisonChamps(form.Implantation, this);
  connect(liste, &VueGrille::Activee, this, [liaison] { liaison->AllerA(0); });
  colonne->addWidget(liste, 1);
  colonne->addLayout(CreerFormulaire(*liaison));
  if (form.grdImplantation.NombreLignes() == 0)
    (new EtatVide(liste))
        ->Montrer(u"Aucune implantation."_s, u"Les implantations viennent avec les élèves, du registre."_s,
                  {});
  return page;
}
