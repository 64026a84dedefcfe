#include "ui/documents/arbre_passages.h"

#include <QHeaderView>

#include "core/comparaisons.h"
#include "pupils/eleve.h"
#include "screens/documents/frm_recapitulatif.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// A pupil, put in order by the column that was pressed; his records stay in that of their days.
class Passant : public QTreeWidgetItem {
 public:
  explicit Passant(const TEleve& eleve)
      : QTreeWidgetItem(QStringList{eleve.NomComplet(), eleve.LibelleClasse()}), Eleve(eleve) {
    setChildIndicatorPolicy(ShowIndicator);
  }

  bool operator<(const QTreeWidgetItem& autre) const override {
    const int colonne = treeWidget()->sortColumn();
    return ComparerTextes(text(colonne), autre.text(colonne)) < 0;
  }

  const TEleve& Eleve;
};

/// Never before another: a stable order leaves them as they came.
class Passage : public QTreeWidgetItem {
 public:
  using QTreeWidgetItem::QTreeWidgetItem;
  bool operator<(const QTreeWidgetItem&) const override { return false; }
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
  header()->setSortIndicatorShown(true);
  header()->setSectionsClickable(true);
  connect(header(), &QHeaderView::sortIndicatorChanged, this, &ArbrePassages::Trier);
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
  for (const TEleve* eleve : form_.Presents()) lignes += new Passant(*eleve);
  addTopLevelItems(lignes);
  Trier();
  if (topLevelItemCount() > 0) setCurrentItem(topLevelItem(0));
}

/// By name or class; nothing else of a pupil stands on his line.
void ArbrePassages::Trier() {
  const int colonne = header()->sortIndicatorSection();
  if (colonne == 0 || colonne == 1) sortItems(colonne, header()->sortIndicatorOrder());
}

void ArbrePassages::Ouvrir(QTreeWidgetItem& ligne) {
  if (ligne.parent() != nullptr || ligne.childCount() > 0) return;
  QList<QTreeWidgetItem*> passages;
  for (const QStringList& textes : form_.Passages(static_cast<const Passant&>(ligne).Eleve))
    passages += new Passage(textes);
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
