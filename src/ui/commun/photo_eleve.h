#pragma once
#include <QAbstractButton>
#include <QPixmap>
#include <functional>

/// The picture of a pupil, or the invitation to add one; a button for the keyboard as well.
class PhotoEleve : public QAbstractButton {
  Q_OBJECT
 public:
  explicit PhotoEleve(QWidget* parent = nullptr);
  /// A null image shows "Cliquez ici pour ajouter une photo".
  void Definir(const QImage& image);
  /// Asked when the menu opens: one that is stored and cannot be shown is there to be erased all the same.
  std::function<bool()> PeutEffacer;
  QSize sizeHint() const override;

 signals:
  /// Empty when what was dropped is no file of this computer.
  void FichierDepose(const QString& chemin);
  /// "Effacer la photo", from the context menu or by Suppr.
  void Effacee();

 protected:
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  void dragEnterEvent(QDragEnterEvent* evenement) override;
  void dropEvent(QDropEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void paintEvent(QPaintEvent* evenement) override;

 private:
  QPixmap image_;
};
