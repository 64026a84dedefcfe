#pragma once
#include <QStyledItemDelegate>

class VueGrille;

/// How the cells of a list are measured and drawn.
class DelegueGrille : public QStyledItemDelegate {
 public:
  explicit DelegueGrille(VueGrille& vue);

  /// What the style would say, without laying out each text for it: a list is measured at each change.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// A colour that says something holds on a chosen row, and gives way on a list that is off.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  /// A state is an icon and a word that stand close together; the rest is the style's.
  void paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// Of a row, in pixels.
  static int HauteurLigne();

 private:
  void PeindreEtat(QPainter& peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void PeindreTexte(QPainter& peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  QModelIndex Voisine(const QModelIndex& index, int sens) const;
  bool Deborde(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  const VueGrille& vue_;
};
