#include "ui/documents/arbre_passages.h"

#include <QHeaderView>

#include "core/comparaisons.h"
#include "pupils/eleve.h"
#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// Pupils go in the order of the column that was pressed; the records of each stay in that of their days.
class Passage : public QTreeWidgetItem {
 public:
  Passage(const QStringList& textes, std::size_t rang) : QTreeWidgetItem(textes), Rang(rang) {}

  bool operator<(const QTreeWidgetItem& autre) const override {
    const auto& suivant = static_cast<const Passage&>(autre);
    const int colonne = treeWidget()->sortColumn();
    const bool montant = treeWidget()->header()->sortIndicatorOrder() == Qt::AscendingOrder;
    if (parent() != nullptr) return montant ? Rang < suivant.Rang : suivant.Rang < Rang;
    return ComparerTextes(text(colonne), suivant.text(colonne)) < 0;
  }

  const std::size_t Rang;  ///< among the pupils who came, or among the records of one
};

}  // namespace

ArbrePassages::ArbrePassages(TFrmRecapitulatif& form, QWidget* parent) : QTreeWidget(parent), form_(form) {
  setAccessibleName(u"Entrées et sorties par élève"_s);
  setHeaderLabels({u"Nom et prénom / date"_s, u"Classe / type"_s, u"Entrée"_s, u"Sortie"_s});
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setTabKeyNavigation(false);
  header()->setStretchLastSection(false);
  header()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
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
    auto* ligne =
        new Passage({eleve->NomComplet(), eleve->LibelleClasse()}, static_cast<std::size_t>(lignes.size()));
    ligne->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    lignes += ligne;
  }
  addTopLevelItems(lignes);
  if (topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
}

void ArbrePassages::Ouvrir(QTreeWidgetItem& ligne) {
  if (ligne.parent() != nullptr || ligne.childCount() > 0) return;
  const TEleve& eleve = *form_.Presents()[static_cast<const Passage&>(ligne).Rang];
  QList<QTreeWidgetItem*> passages;
  for (const QStringList& textes : form_.Passages(eleve))
    passages += new Passage(textes, static_cast<std::size_t>(passages.size()));
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
