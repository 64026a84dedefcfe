#pragma once
#include <QStringList>
#include <QWidget>
#include <array>
#include <vector>

class QCheckBox;
class QGridLayout;

/// The five days of school, to be ticked for each of a few captions.
class GrilleJours : public QWidget {
  Q_OBJECT
 public:
  static constexpr int kJours = 5;

  explicit GrilleJours(QWidget* parent = nullptr);
  /// The captions; an empty one leaves the boxes alone on their row.
  void Definir(const QStringList& lignes);
  /// Emits nothing.
  void Cocher(int ligne, const std::array<bool, kJours>& jours);

 signals:
  /// The user ticked one day, 0 for Monday.
  void Basculee(int ligne, int jour, bool coche);

 private:
  QStringList textes_;
  QGridLayout* grille_;
  std::vector<std::array<QCheckBox*, kJours>> lignes_;
};
