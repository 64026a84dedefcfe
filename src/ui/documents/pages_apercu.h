#pragma once
#include <QAbstractScrollArea>
#include <QCache>

class TFrmApercu;
struct TPagePreparee;

/// The pages of a preview below each other, white on grey whatever the palette, with the places of the
/// text looked for. Page Up and Down scroll, with Ctrl from page to page; Ctrl and the wheel zoom.
class PagesApercu : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit PagesApercu(TFrmApercu& form, QWidget* parent = nullptr);

  /// Pages have come, or are drawn anew, or the zoom is another.
  void Rafraichir();
  /// Brings the page to the top, or a place on it into view.
  void Montrer(int page, const QRectF& place);
  void keyPressEvent(QKeyEvent* evenement) override;

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* evenement) override;

 private:
  void DireLaPage();
  void Disposer();
  void PoserBarres();
  int PageA(int y) const;
  QRect Place(int page) const;
  void PeindrePage(QPainter& peintre, int page, const QRect& place);
  void PeindreTrouvailles(QPainter& peintre, int page, const QRect& place);
  const QImage* ImageDe(int page);
  bool TropGrande(const TPagePreparee& page) const;

  TFrmApercu& form_;
  std::vector<QRect> places_;  ///< of the pages, from the left of the widest one and the top of all
  QSize etendue_;
  double echelle_ = 0.0;
  int version_ = -1;
  bool enCours_ = false;                  ///< the program itself scrolls
  int molette_ = 0;                       ///< part of a notch turned with Ctrl
  QCache<int, QImage> images_;            ///< by page; costs are KiB
  int pageDite_ = -2, versionDite_ = -1;  // whose text is told
};
