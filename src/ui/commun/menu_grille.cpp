#include "ui/commun/menu_grille.h"

#include <QHeaderView>
#include <QMenu>

#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"

using namespace Qt::StringLiterals;

namespace {

/// A tab puts the key where menus show it; the list itself answers to it.
void Ajouter(QMenu& menu, const QString& icone, const QString& texte, VueGrille& vue,
             void (VueGrille::*faire)(), bool actif) {
  QAction* action = menu.addAction(icone.isEmpty() ? QIcon() : Theme::Icone(icone), texte, &vue, faire);
  action->setEnabled(actif);
}

void AjouterTris(QMenu& menu, VueGrille& vue) {
  QMenu* tris = menu.addMenu(u"Trier par"_s);
  const QHeaderView& tetes = *vue.header();
  const int triee = tetes.sortIndicatorSection();
  const auto ajouter = [&](const QString& titre, int colonne) {
    QAction* action = tris->addAction(titre);
    action->setCheckable(true);
    action->setChecked(triee == colonne);
    const bool decroitre = triee == colonne && tetes.sortIndicatorOrder() == Qt::AscendingOrder;
    QObject::connect(action, &QAction::triggered, &vue, [&vue, colonne, decroitre] {
      vue.sortByColumn(colonne, decroitre ? Qt::DescendingOrder : Qt::AscendingOrder);
    });
  };
  for (int colonne = 0; colonne < vue.Grille().NombreColonnes(); ++colonne)
    ajouter(vue.Grille().Colonne(colonne).Titre, colonne);
  tris->addSeparator();
  ajouter(u"L'ordre de la liste"_s, -1);
}

}  // namespace

void RemplirMenu(QMenu& menu, VueGrille& vue) {
  menu.addActions(vue.actions());
  if (!menu.isEmpty()) menu.addSeparator();
  const bool lignes = vue.Grille().NombreLignes() > 0;
  Ajouter(menu, u"edit-copy"_s, u"Copier la ligne\tCtrl+C"_s, vue, &VueGrille::CopierLigne,
          vue.Grille().LigneCourante() >= 0);
  Ajouter(menu, {}, u"Copier tout\tCtrl+Maj+C"_s, vue, &VueGrille::CopierTout, lignes);
  Ajouter(menu, u"document-export"_s, u"Exporter en CSV..."_s, vue, &VueGrille::Exporter, lignes);
  menu.addSeparator();
  Ajouter(menu, u"view-filter"_s, u"Filtrer\tCtrl+F"_s, vue, &VueGrille::AllerAuFiltre, true);
  AjouterTris(menu, vue);
}
