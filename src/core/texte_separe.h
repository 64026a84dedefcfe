#pragma once
#include <QString>
#include <QStringList>
#include <vector>

/// The rows of a text whose fields are separated by ";".
class TTexteSepare {
 public:
  /// Reads a whole file: UTF-8 when its bytes are that, else Windows-1252. Raises Exception with a
  /// French message when it is missing, a folder, too large or not a text.
  static TTexteSepare Lire(const QString& chemin);
  /// The same for bytes at hand; `nom` is for messages, "" when the user knows which file he has chosen.
  static TTexteSepare Depuis(const QByteArray& octets, const QString& nom = {});

  int NombreLignes() const { return static_cast<int>(Lignes.size()); }
  /// "" beyond the end of a row.
  QString Cellule(int ligne, int colonne) const;

  /// Blank rows at the end are left out; one in the middle is a row with one empty field.
  std::vector<QStringList> Lignes;
};

/// A field as such a text holds it: in quotes when it holds a ";", a quote or a line end.
QString ChampSepare(const QString& champ);

/// The lines of a text, without their ends. `nom` as above. Raises Exception when it is no text.
QStringList LignesDeTexte(const QByteArray& octets, const QString& nom = {});
/// UTF-16 with its mark, else UTF-8 when the bytes are valid, else Windows-1252; the mark is left out.
QString TexteDepuisOctets(const QByteArray& octets);
