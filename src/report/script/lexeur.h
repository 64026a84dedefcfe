#pragma once
#include <QString>
#include <vector>

/// What a piece of a script is.
enum class TSorteLexeme { Nom, Texte, Nombre, Variable, Signe, Fin };

/// One piece of a script, with the line that it stands on.
struct TLexeme {
  TSorteLexeme Sorte = TSorteLexeme::Fin;
  QString Texte;  ///< of a text, without its quotes; of a variable, without < and >
  int Ligne = 1;

  /// A name or keyword, without regard to case.
  bool Est(QLatin1String mot) const {
    return Sorte == TSorteLexeme::Nom && Texte.compare(mot, Qt::CaseInsensitive) == 0;
  }
  bool EstSigne(QLatin1String signe) const { return Sorte == TSorteLexeme::Signe && Texte == signe; }
};

/// Cuts a script into its pieces; the last one is `Fin`. Comments are { }, (* *) and //. Raises EScript.
std::vector<TLexeme> Lexemes(const QString& script, int premiereLigne);
