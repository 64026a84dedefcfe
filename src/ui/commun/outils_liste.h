#pragma once
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>

#include "ui/commun/titres.h"

using namespace Qt::StringLiterals;

class VueGrille;

/// What stands beside the title of a list: its filter, with that word in it, and "Copier".
void AjouterFiltreEtCopie(Titre& titre, VueGrille& liste, const QString& indication = u"Filtrer"_s);

/// Does one of the two steps of an import. Off during the work, its button has lost the focus: it goes to
/// what comes next, also after a fault.
template <class T>
void FaireEtape(T& form, void (T::*etape)(), QPushButton* etape1, QPushButton* etape2) {
  const auto foyer = qScopeGuard([&form, premiere = QPointer(etape1), seconde = QPointer(etape2)] {
    if (premiere && seconde) (form.Etape2Suivante() ? seconde : premiere)->setFocus();
  });
  std::invoke(etape, form);
}
