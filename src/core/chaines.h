#pragma once
#include <QString>
#include <QStringList>
#include <span>

/// Replaces every occurrence, searching again from the start after each, so that what a replacement
/// makes is replaced too: two blanks to one leaves no double blank. A pair that would feed itself for
/// ever ("a" to "aa") is replaced in a single pass. An empty `ancien` changes nothing.
QString Remplacer(const QString& texte, const QString& ancien, const QString& nouveau);
/// Each carriage return with line feed becomes one blank.
QString SansRetourLigne(const QString& texte);

/// Capitals for the letters a to z only: an accented letter stays as it stands.
QString MajusculesSansAccents(const QString& texte);

/// Stands for an empty field in the list of DecouperStrict.
inline constexpr QStringView kChampVide = u"\r\n";
/// Appends the pieces; a run of separators counts as one, at the start and the end as none.
void Decouper(const QString& texte, QChar separateur, QStringList& liste);
/// Appends the fields of a file line; an empty one is appended as `kChampVide`. A separator at the
/// end gives no further field, and an empty text none.
void DecouperStrict(const QString& texte, QChar separateur, QStringList& liste);

/// Whether StrToInt reads it.
bool EstEntier(const QString& texte);
/// Whether there is nothing but digits 0 to 9; blanks around them count.
bool EstChiffres(const QString& texte);

/// First index of the value; -1 if absent.
int IndexChaine(const QStringList& tableau, const QString& valeur);
/// First index of the value; -1 if absent.
int IndexEntier(std::span<const int> tableau, int valeur);
