#pragma once
#include <QWidget>
#include <vector>

class Etiquette;
class QHBoxLayout;
struct TCompteurRepas;

/// Counters side by side: "Repas Chauds : 12".
class RangeeCompteurs : public QWidget {
  Q_OBJECT
 public:
  explicit RangeeCompteurs(QWidget* parent = nullptr);
  void Definir(const std::vector<TCompteurRepas>& compteurs);

 private:
  void Ajouter();

  QHBoxLayout* ligne_;
  std::vector<std::pair<Etiquette*, Etiquette*>> compteurs_;  // words and number
};
