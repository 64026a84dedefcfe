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

struct TCouleurs {
  QColor Secondaire, Bord, Ligne, Selection, SurSelection, Survol, Succes, Alerte, Erreur, ErreurGrave;
};

struct TPresentation {
  QPalette Palette;
  TCouleurs Couleurs;
  bool Sombre = false;
};

QColor C(QRgb rgb) { return QColor::fromRgb(rgb); }

TPresentation Presentation(bool sombre) {
  const auto deux = [sombre](QRgb clair, QRgb fonce) { return C(sombre ? fonce : clair); };
  TPresentation p;
  p.Sombre = sombre;
  p.Couleurs = {
      .Secondaire = deux(0x55606B, 0xA3ADB8),
      .Bord = deux(0x7C8690, 0x727D88),
      .Ligne = deux(0xDCE0E5, 0x363D45),
      .Selection = deux(0xD5E8EF, 0x1F4453),
      .SurSelection = deux(0x1A1F24, 0xE6E9ED),
      .Survol = deux(0xE7ECF0, 0x2E353D),
      .Succes = deux(0x1B6E3A, 0x6CC58B),
      .Alerte = deux(0x8A5300, 0xE3B04B),
      .Erreur = deux(0xB3261E, 0xFF9089),
      .ErreurGrave = deux(0x7A1510, 0xFFB3AD),  // further from the ground, in the dark too
  };
  const QColor fenetre = deux(0xF3F5F7, 0x22272D), texte = deux(0x1A1F24, 0xE6E9ED);
  const QColor accent = deux(0x0B6480, 0x63B9D6), surAccent = deux(0xFFFFFF, 0x0C1519);
  const QColor inactif = deux(0x7A848E, 0x7D8791);
  const struct {
    QPalette::ColorRole Role;
    QColor Couleur;
  } roles[] = {
      {QPalette::Window, fenetre},
      {QPalette::Base, deux(0xFFFFFF, 0x1A1E23)},
      {QPalette::AlternateBase, fenetre},
      {QPalette::WindowText, texte},
      {QPalette::Text, texte},
      {QPalette::ButtonText, texte},
      {QPalette::BrightText, p.Couleurs.Erreur},
      {QPalette::PlaceholderText, deux(0x6B7680, 0x8A949E)},
      {QPalette::Button, deux(0xFFFFFF, 0x2D343B)},
      {QPalette::Highlight, accent},
      {QPalette::Link, accent},
      {QPalette::LinkVisited, accent},
      {QPalette::HighlightedText, surAccent},
      {QPalette::Mid, p.Couleurs.Bord},
      {QPalette::Midlight, p.Couleurs.Ligne},
      {QPalette::Light, p.Couleurs.Ligne},
      {QPalette::Dark, p.Couleurs.Bord},
      {QPalette::Shadow, p.Couleurs.Bord},
      {QPalette::ToolTipBase, deux(0x1A1F24, 0xE6E9ED)},
      {QPalette::ToolTipText, deux(0xF3F5F7, 0x22272D)},
  };
  for (const auto& [role, couleur] : roles) p.Palette.setColor(QPalette::All, role, couleur);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.Palette.setColor(QPalette::Disabled, role, inactif);
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button})
    p.Palette.setColor(QPalette::Disabled, role, fenetre);
  p.Palette.setColor(QPalette::Disabled, QPalette::Highlight, p.Couleurs.Ligne);
  p.Palette.setColor(QPalette::Disabled, QPalette::HighlightedText, inactif);
  return p;
}

/// The palette of a system that asks for high contrast is kept as it is.
TPresentation FortContraste(const QPalette& systeme) {
  TPresentation p;
  p.Palette = systeme;
  const QColor texte = systeme.color(QPalette::WindowText);
  p.Sombre = texte.lightness() > systeme.color(QPalette::Window).lightness();
  p.Palette.setColor(QPalette::Mid, texte);
  p.Palette.setColor(QPalette::Midlight, texte);
  p.Couleurs = {.Secondaire = texte,
                .Bord = texte,
                .Ligne = texte,
                .Selection = systeme.color(QPalette::Highlight),
                .SurSelection = systeme.color(QPalette::HighlightedText),
                .Survol = systeme.color(QPalette::Window),
                .Succes = texte,
                .Alerte = texte,
                .Erreur = texte,
                .ErreurGrave = texte};
  return p;
}

/// Qt 6.4 does not say it: such palettes have one surface for all, far from the text.
bool EstFortContraste(const QPalette& p) {
  const QColor fond = p.color(QPalette::Window);
  return fond == p.color(QPalette::Base) && fond == p.color(QPalette::Button) &&
         Contraste(fond, p.color(QPalette::WindowText)) >= 15.0;
}

bool& Doigt() {
  static bool doigt = false;
  return doigt;
}

TPresentation& Presente() {
  static TPresentation presentation = Presentation(false);
  return presentation;
}

/// What a style sheet gives best: the command bar with its tabs, scroll bars, progress, chosen rows. `@Nom`
/// is a colour, `@12` a length at 10 points.
QString Feuille() {
  const TPresentation& p = Presente();
  const std::pair<const char16_t*, QColor> couleurs[] = {
      {u"@Inactif", p.Palette.color(QPalette::Disabled, QPalette::ButtonText)},
      {u"@Texte", p.Palette.color(QPalette::ButtonText)},
      {u"@Fenetre", p.Palette.color(QPalette::Window)},
      {u"@Base", p.Palette.color(QPalette::Base)},
      {u"@Accent", p.Palette.color(QPalette::Highlight)},
      {u"@Secondaire", p.Couleurs.Secondaire},
      {u"@SurSelection", p.Couleurs.SurSelection},
      {u"@Selection", p.Couleurs.Selection},
      {u"@Survol", p.Couleurs.Survol},
      {u"@BordPale", QColor(p.Couleurs.Bord.red(), p.Couleurs.Bord.green(), p.Couleurs.Bord.blue(), 153)},
      {u"@Bord", p.Couleurs.Bord},
      {u"@Ligne", p.Couleurs.Ligne}};
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
  for (const auto& [nom, couleur] : couleurs)
    feuille.replace(QStringView(nom).toString(), couleur.name(QColor::HexArgb));
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
    return Presentation(systeme.color(QPalette::Window).lightness() <
                        systeme.color(QPalette::WindowText).lightness());
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

bool EstSombre() { return Presente().Sombre; }

int Px(int longueur) { return static_cast<int>(std::lround(longueur * Echelle())); }

int CoteDoigt() { return std::max(48, Px(48)); }

void DefinirTactile(bool tactile) { Doigt() = tactile; }

bool EstTactile() { return Doigt(); }

QColor Couleur(TRole role) {
  switch (role) {
    case TRole::Texte:
      return Presente().Palette.color(QPalette::WindowText);
    case TRole::Accent:
      return Presente().Palette.color(QPalette::Highlight);
    case TRole::Secondaire:
      return Secondaire();
    case TRole::Succes:
      return Succes();
    case TRole::Alerte:
      return Alerte();
    case TRole::Erreur:
      return Erreur();
    case TRole::ErreurGrave:
      return ErreurGrave();
    case TRole::SurAccent:
      return Presente().Palette.color(QPalette::HighlightedText);
  }
  return {};
}

QColor Secondaire() { return Presente().Couleurs.Secondaire; }
QColor Bord() { return Presente().Couleurs.Bord; }
QColor Ligne() { return Presente().Couleurs.Ligne; }
QColor Selection() { return Presente().Couleurs.Selection; }
QColor SurSelection() { return Presente().Couleurs.SurSelection; }
QColor Survol() { return Presente().Couleurs.Survol; }
QColor Succes() { return Presente().Couleurs.Succes; }
QColor Alerte() { return Presente().Couleurs.Alerte; }
QColor Erreur() { return Presente().Couleurs.Erreur; }
QColor ErreurGrave() { return Presente().Couleurs.ErreurGrave; }

QPalette Palette(bool sombre) { return Presentation(sombre).Palette; }

QFont TitreEcran() { return Police(1.6, true); }
QFont TitreSection() { return Police(1.1, true); }
QFont Compteur() { return Police(1.4, true); }
QFont TitreAccueil() { return Police(2.0, true); }
QFont TeteMois() { return Police(0.85); }
QFont Petite() { return Police(0.9); }
QFont Gras() { return Police(1.0, true); }

}  // namespace Theme
