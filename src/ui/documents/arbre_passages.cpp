#include "ui/documents/arbre_passages.h"

#include <QHeaderView>

#include "core/comparaisons.h"
#include "pupils/eleve.h"
#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

ArbrePassages::ArbrePassages(TFrmRecapitulatif& form, QWidget* parent) : QTreeWidget(parent), form_(form) {
  setAccessibleName(u"Entrées et sorties par élève"_s);
  setHeaderLabels({u"Nom et prénom / date"_s, u"Classe / type"_s, u"Entrée"_s, u"Sortie"_s});
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setTabKeyNavigation(false);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int colonne = 1; colonne < columnCount(); ++colonne)
    header()->resizeSection(colonne, Theme::Px(colonne == 1 ? 160 : 96));
  connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* ligne) { Ouvrir(*ligne); });
  liens_ += form_.SurPassages.Suivre([this] { Remplir(); });
  Remplir();
}

void ArbrePassages::Remplir() {
  clear();
  QList<QTreeWidgetItem*> lignes;
  for (const TEleve* eleve : form_.Presents()) {
    auto* ligne = new QTreeWidgetItem(QStringList{eleve->NomComplet(), eleve->LibelleClasse()});
    ligne->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    lignes += ligne;
  }
  addTopLevelItems(lignes);
  if (topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
}

void ArbrePassages::Ouvrir(QTreeWidgetItem& ligne) {
  if (ligne.parent() != nullptr || ligne.childCount() > 0) return;
  const auto rang = static_cast<std::size_t>(indexOfTopLevelItem(&ligne));
  QList<QTreeWidgetItem*> passages;
  for (const QStringList& textes : form_.Passages(*form_.Presents()[rang]))
    passages += new QTreeWidgetItem(textes);
  ligne.addChildren(passages);
}

void ArbrePassages::Etendre(bool oui) {
  if (!oui) return collapseAll();
  for (int rang = 0; rang < topLevelItemCount(); ++rang) Ouvrir(*topLevelItem(rang));
  expandToDepth(0);
}

void ArbrePassages::Filtrer(const QString& texte) {
  for (int rang = 0; rang < topLevelItemCount(); ++rang) {
    QTreeWidgetItem& ligne = *topLevelItem(rang);
    ligne.setHidden(!ContientMots(ligne.text(0) % u' ' % ligne.text(1), texte));
  }
}
