#pragma once
#include <type_traits>

#include "core/curseur.h"
#include "core/ligne.h"

/// One column of a table, named once for the load and for the save. A collection has a table of them:
///
///     constexpr TColonne<TFrais> kColonnes[] = {
///         Colonne::Texte<&TFrais::Libelle>("LIBELLE"),
///         Colonne::Montant<&TFrais::Cout>("COUT"),
///     };
template <class T>
struct TColonne {
  const char* Nom;
  /// From the row in hand into the object; null: the object does not hold what stands there.
  void (*Charger)(T& objet, TCurseur& ligne, const char* nom);
  /// From the object into its row; null: another than the save writes it.
  void (*Ecrire)(const T& objet, TLigne& ligne, const char* nom);

  /// Read at the load only: a save leaves what others have written there.
  constexpr TColonne SansEcrire() const { return {Nom, Charger, nullptr}; }
  /// Written only.
  constexpr TColonne SansCharger() const { return {Nom, nullptr, Ecrire}; }
};

/// The kinds of columns. Each is given the field; reading takes NULL for 0, "" or false.
namespace Colonne {

namespace Interne {
template <class T, class V>
T ObjetDe(V T::*);
template <class T, class V>
V ValeurDe(V T::*);
}  // namespace Interne

/// The record that a field belongs to.
template <auto Champ>
using TObjetDe = decltype(Interne::ObjetDe(Champ));

template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Texte(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Texte(n); },
          [](const T& o, TLigne& l, const char* n) { l.Ecrire(n, o.*Champ); }};
}

/// A whole number, or an enumeration by its number.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Entier(const char* nom) {
  return {nom,
          [](T& o, TCurseur& l, const char* n) {
            o.*Champ = static_cast<decltype(Interne::ValeurDe(Champ))>(l.Entier(n));
          },
          [](const T& o, TLigne& l, const char* n) { l.Ecrire(n, static_cast<int>(o.*Champ)); }};
}

/// The key of another table: NULL below 1.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Reference(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Entier(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireReference(n, o.*Champ); }};
}

/// True is 1, false is written NULL.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Drapeau(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.EstVrai(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireDrapeau(n, o.*Champ); }};
}

/// True is 1, false is written 0.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> OuiNon(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.EstVrai(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireOuiNon(n, o.*Champ); }};
}

template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Montant(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Montant(n); },
          [](const T& o, TLigne& l, const char* n) { l.Ecrire(n, o.*Champ); }};
}

/// NULL for 0.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Date(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Date(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireDate(n, o.*Champ); }};
}

/// NULL for 0: no time.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> Heure(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Heure(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireHeure(n, o.*Champ); }};
}

/// A time that the table demands: 0 is midnight.
template <auto Champ, class T = TObjetDe<Champ>>
constexpr TColonne<T> HeureDue(const char* nom) {
  return {nom, [](T& o, TCurseur& l, const char* n) { o.*Champ = l.Heure(n); },
          [](const T& o, TLigne& l, const char* n) { l.EcrireHeureDue(n, o.*Champ); }};
}

}  // namespace Colonne
