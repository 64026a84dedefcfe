#pragma once
#include <QString>
#include <functional>
#include <vector>

/// A piece of a text with the marks that hold for it.
struct TMorceau {
  QString Texte;
  bool Gras = false;
  bool Italique = false;
  bool Souligne = false;
};

/// The value of `[Name]`.
using TResolveur = std::function<QString(const QString& nom)>;

/// Where <b>, <i> and <u> are marks; elsewhere they are letters like any other.
struct TBalises {
  bool DansLeTexte = false;     ///< in what the template itself says
  bool DansLesValeurs = false;  ///< in what replaces a name
};

/// The text of a template with every `[Name]` replaced by its value, in one pass: a value is never
/// looked at for names again. `debut` gives the marks that hold at the start.
std::vector<TMorceau> Remplacer(const QString& modele, const TResolveur& valeur, TBalises balises = {},
                                TMorceau debut = {});
/// The same without marks.
QString RemplacerNoms(const QString& modele, const TResolveur& valeur);
