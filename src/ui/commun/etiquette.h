#pragma once
#include <QLabel>

#include "ui/commun/theme.h"

/// A text in one of the fonts and colours of the theme. It follows both when they change.
class Etiquette : public QLabel {
  Q_OBJECT
 public:
  explicit Etiquette(const QString& texte = {}, TRole role = TRole::Texte, QFont (*police)() = nullptr,
                     QWidget* parent = nullptr);

  void DefinirRole(TRole role);
  TRole Role() const { return role_; }
  /// The text is cut with "…" when there is no room for it, and then shown whole in the tip.
  void DefinirElision(bool elision);

  QSize minimumSizeHint() const override;

 protected:
  void changeEvent(QEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  void Habiller();

  TRole role_;
  QFont (*police_)();
  bool elision_ = false;
};
