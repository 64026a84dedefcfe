#pragma once
#include <QCheckBox>
#include <QWidget>
#include <array>
#include <vector>

/// The ten months of a school year, September first, for each of a few captions, and a master a row.
/// One Tab stop; arrows move, Space ticks, Home goes to the master, End to June.
class GrilleMois : public QWidget {
  Q_OBJECT
 public:
  static constexpr int kMois = 10;

  explicit GrilleMois(const QStringList& lignes, QWidget* parent = nullptr);
  /// `mois` from 0, September, to 9, June. Emits nothing.
  void Definir(int ligne, int mois, bool coche);
  bool Coche(int ligne, int mois) const;
  /// A caption may have to be hidden with its boxes.
  void MontrerLigne(int ligne, bool visible);

 signals:
  /// The user ticked one month.
  void Basculee(int ligne, int mois, bool coche);
  /// The user ticked the master: all ten have that value now.
  void TousBascules(int ligne, bool coche);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  /// Column 0 is the master.
  struct TLigneMois {
    QWidget* Libelle = nullptr;
    std::array<QCheckBox*, kMois + 1> Cases{};
  };

  QCheckBox* CreerCase(int ligne, int colonne, const QString& nom);
  void Aller(int ligne, int colonne);
  void Choisir(QCheckBox* choisie);
  void MettreMaitreAJour(int ligne);
  bool Deplacer(int ligne, int colonne, int touche);

  std::vector<TLigneMois> lignes_;
  QWidget* premiereTete_ = nullptr;
};
