#pragma once
#include <QString>
#include <concepts>

/// Order of two texts in the language of the school: accents and case decide only between texts
/// that are otherwise alike. Below 0, 0 or above 0.
int ComparerTextes(const QString& a, const QString& b);

/// The text as a search compares it: without case and accents.
QString Simplifier(const QString& texte);

/// Whether each word that is searched for is somewhere in the text, without regard to case and accents. A
/// search without a word finds every text.
bool ContientMots(const QString& texte, const QString& cherche);

/// What has a name to be put in order by: a pupil.
template <class T>
concept TNomme = requires(const T& t) {
  { t.NomComplet() } -> std::convertible_to<QString>;
};

/// Order of two pupils by name. Below 0, 0 or above 0.
template <TNomme T>
int ComparerNoms(const T& a, const T& b) {
  return ComparerTextes(a.NomComplet(), b.NomComplet());
}
