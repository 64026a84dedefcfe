#pragma once
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>

class QApplication;

/// What a colour stands for; it follows from that in both palettes. A name that another begins with stands
/// behind it, as the style sheet is written with them.
enum class TRole {
  Texte,
  Accent,      ///< screens, what is chosen
  SurAccent,   ///< on a primary button
  Secondaire,  ///< labels, notes
  Succes,
  Alerte,
  ErreurGrave,  ///< stands out among errors
  Erreur,
  Inactif,   ///< text of what is off
  Indice,    ///< hint in an empty field
  BordPale,  ///< handle of a scroll bar
  Bord,      ///< outline of fields, buttons, boxes
  Ligne,     ///< hairlines, outline of grids
  SurSelection,
  Selection,  ///< chosen row, active command
  Survol,
  // Grounds
  Fenetre,
  Base,
  Bouton,
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
void DefinirTactile(bool doigt);
bool EstTactile();

QColor Couleur(TRole role);

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
