#include "ui/commun/theme.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPointer>
#include <QSlider>
#include <cmath>

#include "core/formats.h"
#include "ui/commun/contraste.h"
#include "ui/commun/style_calpenne.h"

using namespace Qt::StringLiterals;

namespace {

/// A colour as the style sheet names it, in light and in dark.
struct TCouleur {
  const char16_t* Nom;
  QRgb Clair, Sombre;
};

/// In the order of TRole.
constexpr TCouleur kCouleurs[] = {
    {u"@Texte", 0x1A1F24, 0xE6E9ED},        {u"@Accent", 0x0B6480, 0x63B9D6},
    {u"@SurAccent", 0xFFFFFF, 0x0C1519},    {u"@Secondaire", 0x55606B, 0xA3ADB8},
    {u"@Succes", 0x1B6E3A, 0x6CC58B},       {u"@Alerte", 0x8A5300, 0xE3B04B},
    {u"@ErreurGrave", 0x7A1510, 0xFFB3AD},  // further from the ground, in the dark too
    {u"@Erreur", 0xB3261E, 0xFF9089},       {u"@Inactif", 0x7A848E, 0x7D8791},
    {u"@Indice", 0x6B7680, 0x8A949E},       {u"@BordPale", 0xABB2B9, 0x525B64},
    {u"@Bord", 0x7C8690, 0x727D88},         {u"@Ligne", 0xDCE0E5, 0x363D45},
    {u"@SurSelection", 0x1A1F24, 0xE6E9ED}, {u"@Selection", 0xD5E8EF, 0x1F4453},
    {u"@Survol", 0xE7ECF0, 0x2E353D},       {u"@Fenetre", 0xF3F5F7, 0x22272D},
    {u"@Base", 0xFFFFFF, 0x1A1E23},         {u"@Bouton", 0xFFFFFF, 0x2D343B},
};

using TDansPalette = std::pair<QPalette::ColorRole, TRole>;

constexpr TDansPalette kPalette[] = {
    {QPalette::Window, TRole::Fenetre},
    {QPalette::Base, TRole::Base},
    {QPalette::AlternateBase, TRole::Fenetre},
    {QPalette::WindowText, TRole::Texte},
    {QPalette::Text, TRole::Texte},
    {QPalette::ButtonText, TRole::Texte},
    {QPalette::BrightText, TRole::Erreur},
    {QPalette::PlaceholderText, TRole::Indice},
    {QPalette::Button, TRole::Bouton},
    {QPalette::Highlight, TRole::Accent},
    {QPalette::Link, TRole::Accent},
    {QPalette::LinkVisited, TRole::Accent},
    {QPalette::HighlightedText, TRole::SurAccent},
    {QPalette::Mid, TRole::Bord},
    {QPalette::Midlight, TRole::Ligne},
    {QPalette::Light, TRole::Ligne},
    {QPalette::Dark, TRole::Bord},
    {QPalette::Shadow, TRole::Bord},
    {QPalette::ToolTipBase, TRole::Texte},
    {QPalette::ToolTipText, TRole::Fenetre},
};
constexpr TDansPalette kPaletteInactive[] = {
    {QPalette::WindowText, TRole::Inactif}, {QPalette::Text, TRole::Inactif},
    {QPalette::ButtonText, TRole::Inactif}, {QPalette::HighlightedText, TRole::Inactif},
    {QPalette::Highlight, TRole::Ligne},    {QPalette::Base, TRole::Fenetre},
    {QPalette::Button, TRole::Fenetre},
};

struct TPresentation {
  QColor& operator[](TRole role) { return Couleurs[static_cast<std::size_t>(role)]; }
  QPalette Palette;
  std::array<QColor, std::size(kCouleurs)> Couleurs;
};

TPresentation Presentation(bool sombre) {
  TPresentation p;
  std::ranges::transform(kCouleurs, p.Couleurs.begin(),
                         [sombre](const TCouleur& c) { return QColor(sombre ? c.Sombre : c.Clair); });
  for (const auto& [role, couleur] : kPalette) p.Palette.setColor(QPalette::All, role, p[couleur]);
  for (const auto& [role, couleur] : kPaletteInactive)
    p.Palette.setColor(QPalette::Disabled, role, p[couleur]);
  return p;
}

/// The palette of a system that asks for high contrast is kept as it is.
TPresentation FortContraste(const QPalette& systeme) {
  TPresentation p;
  p.Palette = systeme;
  const QColor texte = systeme.color(QPalette::WindowText);
  p.Palette.setColor(QPalette::Mid, texte);
  p.Palette.setColor(QPalette::Midlight, texte);
  p.Couleurs.fill(texte);
  for (const TRole fond : {TRole::Fenetre, TRole::Survol}) p[fond] = systeme.color(QPalette::Window);
  p[TRole::Base] = systeme.color(QPalette::Base);
  p[TRole::Bouton] = systeme.color(QPalette::Button);
  p[TRole::Accent] = p[TRole::Selection] = systeme.color(QPalette::Highlight);
  p[TRole::SurAccent] = p[TRole::SurSelection] = systeme.color(QPalette::HighlightedText);
  p[TRole::Inactif] = systeme.color(QPalette::Disabled, QPalette::ButtonText);
  return p;
}

bool TexteClair(const QPalette& p) {
  return p.color(QPalette::Window).lightness() < p.color(QPalette::WindowText).lightness();
}

/// Qt 6.4 does not say it: such palettes have one surface for all, far from the text.
bool EstFortContraste(const QPalette& p) {
  const QColor fond = p.color(QPalette::Window);
  return fond == p.color(QPalette::Base) && fond == p.color(QPalette::Button) &&
         Contraste(fond, p.color(QPalette::WindowText)) >= 15.0;
}

bool tactile = false;

TPresentation& Presente() {
  static TPresentation presentation = Presentation(false);
  return presentation;
}

/// What a style sheet gives best: the command bar with its tabs, scroll bars, progress, chosen rows. `@Nom`
/// is a colour, `@12` a length at 10 points.
QString Feuille() {
  QString feuille =
      uR"(
QToolButton[genre="commande"] { border: 2px solid transparent; border-radius: @4; padding: 1px @4;
  background: transparent; color: @Texte; }
QToolButton[genre="commande"]:hover { background: @Survol; }
QToolButton[genre="commande"]:checked { background: @Selection; color: @SurSelection; font-weight: 600; }
QToolButton[genre="commande"]:focus { border-color: @Accent; }
QToolButton[genre="commande"]:disabled { color: @Inactif; }
QToolButton[genre="onglet"] { border: 0; border-bottom: 3px solid transparent; padding: @4 @12;
  background: transparent; color: @Secondaire; }
QToolButton[genre="onglet"]:hover, QToolButton#annees { color: @Texte; }
QToolButton[genre="onglet"]:checked { color: @Texte; font-weight: 600; border-bottom-color: @Accent; }
QToolButton[genre="onglet"]:focus { border: 2px solid @Accent; border-bottom: 3px solid @Accent;
  border-radius: @4; padding: @4 @10; }
QPushButton[genreBouton="1"]:enabled { color: @SurAccent; }
QTabWidget::pane { border: 0; border-top: 1px solid @Ligne; }
QTabBar { qproperty-drawBase: 0; }
QTabBar::tab { border: 2px solid transparent; border-bottom: 3px solid transparent; padding: @2 @10;
  background: transparent; color: @Secondaire; }
QTabBar::tab:hover { color: @Texte; }
QTabBar::tab:selected { color: @Texte; border-bottom-color: @Accent; }
QTabBar::tab:selected:focus { border-color: @Accent; border-radius: @4; }
QStatusBar::item { border: 0; }
QMenu::separator { height: 1px; margin: @4 0; background: @Ligne; }
QAbstractItemView { selection-color: @SurSelection; }
QAbstractItemView:disabled { selection-color: @Inactif; }
QProgressBar { border: 0; border-radius: @4; background: @Base; min-height: @8; max-height: @8; }
QProgressBar::chunk { border-radius: @4; background: @Accent; }
QScrollBar { border: 0; background: @Fenetre; }
QScrollBar:vertical { width: @12; }
QScrollBar:horizontal { height: @12; }
QScrollBar::handle { border-radius: @4; background: @BordPale; }
QScrollBar::handle:hover { background: @Bord; }
QScrollBar::handle:vertical { margin: 0 @2; min-height: @32; }
QScrollBar::handle:horizontal { margin: @2 0; min-width: @32; }
QScrollBar::handle:disabled, QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
)"_s;
  for (std::size_t i = 0; i < std::size(kCouleurs); ++i)
    feuille.replace(QStringView(kCouleurs[i].Nom).toString(), Presente().Couleurs[i].name());
  for (const int longueur : {2, 4, 8, 10, 12, 32})
    feuille.replace(u"@%1"_s.arg(longueur), u"%1px"_s.arg(Theme::Px(longueur)));
  return feuille;
}

/// Follows the system, keeps the wheel away from fields without focus and a letter with Alt out of them
/// (the shortcut of a command that is off), and lets Enter press the button that has the focus: Qt does
/// so in dialogs only, and there the default button would win over it. Shift+F10 opens the menu of what has
/// the focus where Qt knows the key of that menu only, which many keyboards do not have.
class Gardien : public QObject {
 public:
  Gardien(QApplication& application, Theme::TMode mode)
      : QObject(&application), application_(application), mode_(mode) {
    application.installEventFilter(this);
    Rafraichir();
  }

  void Rafraichir() {
    if (occupe_) return;
    occupe_ = true;
    application_.setPalette(QPalette());  // shows the system's own again
    const QPalette systeme = QApplication::palette();
    Presente() = Choisir(systeme);
    QApplication::setPalette(Presente().Palette);
    application_.setStyleSheet(Feuille());
    occupe_ = false;
  }

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override {
    const QEvent::Type type = evenement->type();
    if (type == QEvent::Wheel) return RetenirMolette(objet, evenement);
    if (type == QEvent::KeyPress) {
      const auto* touche = static_cast<QKeyEvent*>(evenement);
      return PresserBouton(objet, touche) || RetenirAlt(objet, touche) || OuvrirMenu(objet, touche);
    }
    if (objet == &application_ && (type == QEvent::ThemeChange || type == QEvent::ApplicationPaletteChange ||
                                   type == QEvent::ApplicationFontChange))
      Rafraichir();
    return false;
  }

 private:
  TPresentation Choisir(const QPalette& systeme) const {
    if (mode_ != Theme::TMode::Systeme) return Presentation(mode_ == Theme::TMode::Sombre);
    if (EstFortContraste(systeme)) return FortContraste(systeme);
    return Presentation(TexteClair(systeme));
  }

  /// The page scrolls instead.
  static bool RetenirMolette(QObject* objet, QEvent* evenement) {
    auto* champ = qobject_cast<QWidget*>(objet);
    if (!champ || champ->hasFocus()) return false;
    if (!qobject_cast<QComboBox*>(champ) && !qobject_cast<QAbstractSpinBox*>(champ) &&
        !qobject_cast<QSlider*>(champ))
      return false;
    evenement->ignore();
    return true;
  }

  static bool PresserBouton(QObject* objet, const QKeyEvent* touche) {
    if (touche->key() != Qt::Key_Return && touche->key() != Qt::Key_Enter) return false;
    QAbstractButton* bouton = qobject_cast<QPushButton*>(objet);
    if (!bouton) bouton = qobject_cast<QToolButton*>(objet);
    if (!bouton || !bouton->hasFocus() || touche->modifiers().testFlag(Qt::ControlModifier)) return false;
    if (!touche->isAutoRepeat()) bouton->click();
    return true;
  }

  static bool RetenirAlt(const QObject* objet, const QKeyEvent* touche) {
    return touche->modifiers() == Qt::AltModifier && !touche->text().isEmpty() &&
           qobject_cast<const QLineEdit*>(objet) != nullptr;
  }

  static bool OuvrirMenu(QObject* objet, const QKeyEvent* touche) {
    auto* champ = qobject_cast<QWidget*>(objet);
    if (touche->key() != Qt::Key_F10 || touche->modifiers() != Qt::ShiftModifier || !champ ||
        !champ->hasFocus() || champ->contextMenuPolicy() == Qt::PreventContextMenu)
      return false;
#ifdef Q_OS_WIN
    return false;  // the system does it
#else
    const QPoint place = champ->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, champ->mapToGlobal(place));
    return QCoreApplication::sendEvent(champ, &menu) && menu.isAccepted();
#endif
  }

  QApplication& application_;
  Theme::TMode mode_;
  bool occupe_ = false;
};

QFont Police(double facteur, bool demiGras = false) {
  QFont police = QApplication::font();
  if (police.pointSizeF() > 0)
    police.setPointSizeF(police.pointSizeF() * facteur);
  else
    police.setPixelSize(static_cast<int>(std::lround(police.pixelSize() * facteur)));
  if (demiGras) police.setWeight(QFont::DemiBold);
  return police;
}

/// Line height of the application's font over that of the same at 10 points.
double Echelle() {
  static QFont connue;
  static double echelle = 0.0;
  const QFont police = QApplication::font();
  if (echelle == 0.0 || police != connue) {
    QFont dix = police;
    dix.setPointSizeF(10.0);
    connue = police;
    echelle = QFontMetricsF(police).height() / QFontMetricsF(dix).height();
  }
  return echelle;
}

}  // namespace

namespace Theme {

void Appliquer(QApplication& application, TMode mode) {
  QLocale::setDefault(LocaleEcole());
  static QPointer<Gardien> gardien;
  delete gardien;
  QApplication::setStyle(new StyleCalpenne);
  gardien = new Gardien(application, mode);
}

bool EstSombre() { return TexteClair(Presente().Palette); }

int Px(int longueur) { return static_cast<int>(std::lround(longueur * Echelle())); }

int CoteDoigt() { return std::max(48, Px(48)); }

void DefinirTactile(bool doigt) { tactile = doigt; }

bool EstTactile() { return tactile; }

QColor Couleur(TRole role) { return Presente()[role]; }

QFont TitreEcran() { return Police(1.6, true); }
QFont TitreSection() { return Police(1.1, true); }
QFont Compteur() { return Police(1.4, true); }
QFont TitreAccueil() { return Police(2.0, true); }
QFont TeteMois() { return Police(0.85); }
QFont Petite() { return Police(0.9); }
QFont Gras() { return Police(1.0, true); }

}  // namespace Theme
