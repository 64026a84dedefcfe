#pragma once
#include <QStringList>
#include <QWidget>
#include <vector>

class VueGrille;

/// Total rows below a grid, their texts in step with its columns.
class PiedDeGrille : public QWidget {
  Q_OBJECT
 public:
  explicit PiedDeGrille(VueGrille& vue, QWidget* parent = nullptr);
  /// A text for each column of the grid; those behind the last are empty.
  void Definir(std::vector<QStringList> lignes);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

 private:
  std::vector<int> Sommes() const;

  VueGrille& vue_;
  std::vector<QStringList> lignes_;
};
