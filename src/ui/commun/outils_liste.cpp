#include "ui/commun/outils_liste.h"

#include "ui/commun/bouton.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/vue_grille.h"

void AjouterFiltreEtCopie(Titre& titre, VueGrille& liste, const QString& indication) {
  auto* filtre = new ChampFiltre(indication);
  filtre->setMinimumWidth(Theme::Px(104));  // it gives way to a long title on a small window
  filtre->setMaximumWidth(Theme::Px(200));
  liste.Filtrer(*filtre);
  QPushButton* copier = BoutonDiscret(u"Copier"_s, u"edit-copy"_s);
  copier->setToolTip(u"Copier toute la liste (Ctrl+Maj+C)"_s);
  QObject::connect(copier, &QPushButton::clicked, &liste, &VueGrille::CopierTout);
  titre.AjouterAction(filtre);
  titre.AjouterAction(copier);
}
