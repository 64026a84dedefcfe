#pragma once
#include <QWidget>
#include <vector>

#include "core/currency.h"

/// A month and what it comes to.
struct TBarreMois {
  QString Nom;
  Currency Montant;
};

/// Bars on one line, each with its month below and its amount, as the list beside it gives it, above. There
/// is no scale: the figures are those of the list. One colour, so that it reads in grey. It takes no focus;
/// its description tells every bar.
class DiagrammeMois : public QWidget {
  Q_OBJECT
 public:
  explicit DiagrammeMois(const QString& nom, QWidget* parent = nullptr);
  void Definir(std::vector<TBarreMois> barres);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  /// The column of a bar, from top to bottom of the widget.
  QRect Colonne(int barre) const;
  using TTextes = QString (*)(const TBarreMois&);
  /// The widest of these texts; they stand on their side where they would run into each other.
  int Largeur(TTextes textes) const;
  bool Debout(TTextes textes) const;
  int Hauteur(TTextes textes) const;
  void Ecrire(QPainter& peintre, const QRect& place, const TBarreMois& barre, TTextes textes) const;

  std::vector<TBarreMois> barres_;
};
