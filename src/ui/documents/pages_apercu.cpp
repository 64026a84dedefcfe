#include "ui/documents/pages_apercu.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "report/output/peintre.h"
#include "screens/documents/frm_apercu.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEcart = 16;  ///< around and between pages
constexpr int kCacheKio = 64 * 1024;
constexpr double kPouce = 96.0;

QColor FondDesPages() { return Theme::EstSombre() ? QColor(0x14, 0x18, 0x1C) : QColor(0xC9, 0xCE, 0xD6); }

int Cote(float pixels, double echelle) {
  return static_cast<int>(std::lround(static_cast<double>(pixels) * echelle));
}

}  // namespace

PagesApercu::PagesApercu(TFrmApercu& form, QWidget* parent)
    : QAbstractScrollArea(parent), form_(form), images_(kCacheKio) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(u"Pages du document"_s);
  verticalScrollBar()->setSingleStep(Theme::Px(40));
  horizontalScrollBar()->setSingleStep(Theme::Px(40));
}

void PagesApercu::Rafraichir() {
  const double echelle = form_.Echelle();
  if (form_.Version() != version_ || echelle != echelle_) images_.clear();
  version_ = form_.Version();
  if (echelle != echelle_ || static_cast<int>(places_.size()) != form_.PagesPretes()) {
    // What stands in the middle stays there when the zoom changes.
    const int milieu = verticalScrollBar()->value() + viewport()->height() / 2;
    const int page = PageA(milieu);
    const double part =
        page < 0 ? 0.0 : (milieu - places_[static_cast<std::size_t>(page)].top()) / std::max(echelle_, 0.01);
    const bool zoome = echelle_ > 0.0 && echelle != echelle_ && page >= 0;
    const double enLargeur =
        zoome ? (viewport()->width() / 2.0 - Place(page).left()) / Place(page).width() : 0.0;
    echelle_ = echelle;
    Disposer();
    const QScopedValueRollback<bool> enCours(enCours_, true);
    PoserBarres();
    if (zoome && page < static_cast<int>(places_.size())) {
      const QRect& place = places_[static_cast<std::size_t>(page)];
      verticalScrollBar()->setValue(place.top() + static_cast<int>(std::lround(part * echelle)) -
                                    viewport()->height() / 2);
      horizontalScrollBar()->setValue(
          place.left() + static_cast<int>(std::lround(enLargeur * place.width())) - viewport()->width() / 2);
    }
  }
  DireLaPage();
  viewport()->update();
}

// An assistive program reads the page in hand; its text is gathered once.
void PagesApercu::DireLaPage() {
  const int page = form_.PagesPretes() == 0 ? -1 : form_.PageCourante();
  if (page == pageDite_ && form_.Version() == versionDite_) return;
  pageDite_ = page;
  versionDite_ = form_.Version();
  setAccessibleDescription(page < 0 ? QString()
                                    : u"Page %1\n"_s.arg(page + 1) % form_.Document().TexteDePage(page));
}

void PagesApercu::Disposer() {
  const int nombre = form_.PagesPretes();
  places_.clear();
  int y = kEcart, largeur = 0;
  for (int i = 0; i < nombre; ++i) {
    const TPagePreparee& page = form_.Document().Pages[static_cast<std::size_t>(i)];
    places_.emplace_back(0, y, Cote(page.Largeur, echelle_), Cote(page.Hauteur, echelle_));
    largeur = std::max(largeur, places_.back().width());
    y += places_.back().height() + kEcart;
  }
  for (QRect& place : places_) place.moveLeft(kEcart + (largeur - place.width()) / 2);
  etendue_ = {largeur + 2 * kEcart, y};
}

void PagesApercu::PoserBarres() {
  const QSize vue = viewport()->size();
  verticalScrollBar()->setPageStep(vue.height());
  verticalScrollBar()->setRange(0, std::max(0, etendue_.height() - vue.height()));
  horizontalScrollBar()->setPageStep(vue.width());
  horizontalScrollBar()->setRange(0, std::max(0, etendue_.width() - vue.width()));
}

/// The page at that height of all pages, or the one above; -1 without a page.
int PagesApercu::PageA(int y) const {
  const auto apres = std::ranges::upper_bound(places_, y, {}, [](const QRect& place) { return place.top(); });
  return places_.empty() ? -1 : std::max(0, static_cast<int>(apres - places_.begin()) - 1);
}

/// Where the page stands in the viewport.
QRect PagesApercu::Place(int page) const {
  const int marge = std::max(0, (viewport()->width() - etendue_.width()) / 2);
  return places_[static_cast<std::size_t>(page)].translated(marge - horizontalScrollBar()->value(),
                                                            -verticalScrollBar()->value());
}

void PagesApercu::Montrer(int page, const QRectF& endroit) {
  if (page >= static_cast<int>(places_.size())) Rafraichir();
  if (page < 0 || page >= static_cast<int>(places_.size())) return;
  const QScopedValueRollback<bool> enCours(enCours_, true);
  if (endroit.isNull()) {
    verticalScrollBar()->setValue(places_[static_cast<std::size_t>(page)].top() - kEcart / 2);
  } else {
    const QRect place = Place(page);
    const QRect vu =
        QRectF(endroit.topLeft() * echelle_ + place.topLeft(), endroit.size() * echelle_).toRect();
    if (vu.top() < kEcart || vu.bottom() > viewport()->height() - kEcart)
      verticalScrollBar()->setValue(verticalScrollBar()->value() + vu.center().y() -
                                    viewport()->height() / 3);
    if (vu.left() < 0 || vu.right() > viewport()->width())
      horizontalScrollBar()->setValue(horizontalScrollBar()->value() + vu.center().x() -
                                      viewport()->width() / 2);
  }
  viewport()->update();
}

bool PagesApercu::TropGrande(const TPagePreparee& page) const {
  const double points = echelle_ * devicePixelRatioF();
  constexpr double kOctetsParPoint = 4.0, kKio = 1024.0;
  return static_cast<double>(page.Largeur) * static_cast<double>(page.Hauteur) * points * points *
             kOctetsParPoint / kKio >
         kCacheKio / 4.0;
}

const QImage* PagesApercu::ImageDe(int page) {
  if (const QImage* image = images_[page]) return image;
  const TPagePreparee& preparee = form_.Document().Pages[static_cast<std::size_t>(page)];
  if (TropGrande(preparee)) return nullptr;
  auto image = std::make_unique<QImage>(Rasteriser(preparee, kPouce * echelle_ * devicePixelRatioF()));
  if (image->isNull()) return nullptr;
  image->setDevicePixelRatio(devicePixelRatioF());
  const auto cout = static_cast<int>(image->sizeInBytes() / 1024);
  images_.insert(page, image.release(), cout);
  return images_[page];
}

void PagesApercu::PeindrePage(QPainter& peintre, int page, const QRect& place) {
  if (const QImage* image = ImageDe(page)) {
    peintre.drawImage(place.topLeft(), *image);
  } else {  // too large to keep: only what is in sight is drawn
    peintre.fillRect(place, Qt::white);
    peintre.save();
    peintre.setClipRect(place & viewport()->rect());
    peintre.translate(place.topLeft());
    peintre.scale(echelle_, echelle_);
    ::PeindrePage(form_.Document().Pages[static_cast<std::size_t>(page)], peintre);
    peintre.restore();
  }
  peintre.setPen(Theme::Couleur(TRole::Ligne));
  peintre.setBrush(Qt::NoBrush);
  peintre.drawRect(place.adjusted(-1, -1, 0, 0));
}

/// All marked as with a pen, the one in hand outlined as well.
void PagesApercu::PeindreTrouvailles(QPainter& peintre, int page, const QRect& place) {
  const auto& trouvailles = form_.Recherche().Trouvailles();
  const auto [debut, fin] = std::ranges::equal_range(trouvailles, page, {}, &TTrouvaille::Page);
  peintre.save();
  for (auto trouvee = debut; trouvee != fin; ++trouvee) {
    const QRectF vu(trouvee->Place.topLeft() * echelle_ + place.topLeft(), trouvee->Place.size() * echelle_);
    peintre.setCompositionMode(QPainter::CompositionMode_Multiply);
    peintre.fillRect(vu, QColor(0xFF, 0xE0, 0x82));
    peintre.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (trouvee - trouvailles.begin() != form_.Recherche().Courante()) continue;
    constexpr qreal kTrait = 2.0;
    peintre.setPen(QPen(QColor(0x0B, 0x64, 0x80), kTrait));
    peintre.drawRect(vu.adjusted(-kTrait, -kTrait, kTrait, kTrait));
  }
  peintre.restore();
}

void PagesApercu::paintEvent(QPaintEvent* evenement) {
  QPainter peintre(viewport());
  peintre.fillRect(evenement->rect(), FondDesPages());
  const int haut = verticalScrollBar()->value();
  for (int page = std::max(0, PageA(haut)); page < static_cast<int>(places_.size()); ++page) {
    const QRect place = Place(page);
    if (place.top() > viewport()->height()) break;
    PeindrePage(peintre, page, place);
    PeindreTrouvailles(peintre, page, place);
  }
  if (hasFocus()) {
    peintre.setPen(QPen(palette().color(QPalette::Highlight), 2));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

void PagesApercu::resizeEvent(QResizeEvent*) {
  const QScopedValueRollback<bool> enCours(enCours_, true);
  form_.ChangerVue(viewport()->size());
  PoserBarres();
}

void PagesApercu::scrollContentsBy(int, int) {
  viewport()->update();
  if (enCours_) return;
  const int page = PageA(verticalScrollBar()->value() + viewport()->height() / 3);
  if (page >= 0) form_.PageVue(page);
}

void PagesApercu::keyPressEvent(QKeyEvent* evenement) {
  const bool controle = evenement->modifiers() & Qt::ControlModifier;
  QScrollBar& barre = *verticalScrollBar();
  switch (evenement->key()) {
    case Qt::Key_PageDown:
      return controle ? form_.AllerPage(form_.PageCourante() + 1)
                      : barre.triggerAction(QScrollBar::SliderPageStepAdd);
    case Qt::Key_PageUp:
      return controle ? form_.AllerPage(form_.PageCourante() - 1)
                      : barre.triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_Home:
      return form_.AllerPage(0);
    case Qt::Key_End:
      return form_.AllerPage(form_.PagesPretes() - 1);
    default:
      QAbstractScrollArea::keyPressEvent(evenement);
  }
}

void PagesApercu::wheelEvent(QWheelEvent* evenement) {
  if (!(evenement->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(evenement);
  // A touch pad tells small parts of a notch.
  constexpr int kCran = QWheelEvent::DefaultDeltasPerStep;
  molette_ += evenement->angleDelta().y();
  for (; molette_ >= kCran; molette_ -= kCran) form_.ZoomPlus();
  for (; molette_ <= -kCran; molette_ += kCran) form_.ZoomMoins();
  evenement->accept();
}
