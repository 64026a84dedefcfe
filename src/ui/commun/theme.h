#pragma once
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>

class QApplication;

/// What an icon or a text stands for; its colour follows from it in both palettes.
enum class TRole {
  Texte,
  Accent,      ///< screens, what is chosen
  Secondaire,  ///< labels, notes
  Succes,
  Alerte,
  Erreur,
  ErreurGrave,  ///< stands out among errors
  SurAccent,    ///< on a primary button
};

/// The look of the whole program: palette, measures, fonts, icons. Colours are asked for when they
/// are painted, never kept: the palette may change while the program runs.
namespace Theme {

enum class TMode {
  Systeme,  ///< dark when the system's own palette is
  Clair,
  Sombre,
};

/// Palette, style and style sheet of the application, which follow the system from then on; also the
/// language of the school, and fields that the wheel changes only when they have the focus.
void Appliquer(QApplication& application, TMode mode = TMode::Systeme);
bool EstSombre();

/// A length given at 10 points, in pixels at the size of the application's font.
int Px(int longueur);
/// The least side of what a finger presses, in pixels: no smaller with a small font.
int CoteDoigt();
/// Whether a finger works the program, as on the tablet: buttons made from then on are no smaller, those of
/// dialogs too.
void DefinirTactile(bool tactile);
bool EstTactile();

QColor Couleur(TRole role);
QColor Secondaire();
QColor Bord();       ///< outline of fields, buttons, boxes
QColor Ligne();      ///< hairlines, outline of grids
QColor Selection();  ///< chosen row, active command
QColor SurSelection();
QColor Survol();
QColor Succes();
QColor Alerte();
QColor Erreur();
QColor ErreurGrave();

/// The palette of light or of dark.
QPalette Palette(bool sombre);

QFont TitreEcran();    ///< 1.6, demi-bold; a pupil's name too
QFont TitreSection();  ///< 1.1, demi-bold
QFont Compteur();      ///< 1.4, demi-bold
QFont TitreAccueil();  ///< 2.0, demi-bold
QFont TeteMois();      ///< 0.85
QFont Petite();        ///< 0.9
QFont Gras();

/// A Breeze icon by its name, drawn in the colour of the role at the time it is painted; disabled it
/// is paler. Unknown names give an empty picture.
QIcon Icone(const QString& nom, TRole role = TRole::Texte);

}  // namespace Theme
