#pragma once
#include <QAbstractButton>
#include <QImage>

/// A pupil to tap: picture or initials, name, and what was noted.
class CadreEleve : public QAbstractButton {
  Q_OBJECT
 public:
  CadreEleve(const QString& nom, const QString& prenom, const QImage& photo, QWidget* parent = nullptr);
  /// `servi`: the frame is filled.
  void Definir(const QString& statut, bool servi, bool radie);
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  QString nom_, prenom_, statut_;
  QPixmap photo_;
  QPoint presse_;
  bool servi_ = false;
  bool radie_ = false;
};
