#pragma once
#include <QLayout>
#include <memory>
#include <vector>

/// A row of controls that goes on to a further line where the text is too large for one, so that no
/// caption is cut.
class RangeePliante : public QLayout {
  Q_OBJECT
 public:
  RangeePliante();
  ~RangeePliante() override;

  void addItem(QLayoutItem* element) override;
  /// Controls that stay together on a line.
  void AjouterGroupe(QLayout* groupe);
  int count() const override { return static_cast<int>(elements_.size()); }
  QLayoutItem* itemAt(int rang) const override;
  QLayoutItem* takeAt(int rang) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int largeur) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& place) override;

  /// Between its lines, where that is another space than between the controls of a line.
  void DefinirEntreLignes(int espace) { entreLignes_ = espace; }

 private:
  /// Answers the height; moves the controls when `poser` is set.
  int Placer(const QRect& place, bool poser) const;

  std::vector<std::unique_ptr<QLayoutItem>> elements_;
  int entreLignes_ = -1;
};
