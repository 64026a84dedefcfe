#pragma once
#include <QString>
#include <QStringList>
#include <cstdint>

#include "core/dates.h"

// What a tariff row is about. The numbers are stored, and one that has no name here is kept as it is.

/// The services that the school offers.
enum class TTypeFamille : std::uint8_t { Indefini, Matin, Soir, Mercredi, Etude, Repas, Soupe, Midi };
/// The days on which a row holds.
enum class TTypeJour : std::uint8_t {
  Aucun,
  Lundi,
  Mardi,
  Mercredi,
  Jeudi,
  Vendredi,
  TousLesJours,
  LundiMardiJeudiVendredi
};
/// The unit of charging.
enum class TTypeForfait : std::uint8_t { Aucun, Periode, Heure, DemiHeure, QuartHeure, Minute };
/// What a scan proves: that the pupil is there, arrives or leaves.
enum class TTypeScan : std::uint8_t { Aucun, Presence, Entree, Sortie };
/// The families among which the one of a record is looked for.
enum class TGroupe : std::uint8_t { Repas = 0, Garderie = 1, Etude = 2, Soupe = 4 };

// The texts by stored number, in the order in which the screens list them.
const QStringList& TextesTypeFamille();
const QStringList& TextesTypeJour();
const QStringList& TextesTypeScan();
/// Behind an amount: "demi heure".
const QStringList& TextesUnite();
/// In a column of its own: "à la demi-heure".
const QStringList& TextesFacturation();

/// "" for a number that has no text, here and below.
inline QString Texte(TTypeFamille famille) { return TextesTypeFamille().value(static_cast<int>(famille)); }
inline QString Texte(TTypeJour jour) { return TextesTypeJour().value(static_cast<int>(jour)); }
inline QString Texte(TTypeScan scan) { return TextesTypeScan().value(static_cast<int>(scan)); }
inline QString TexteFacturation(TTypeForfait forfait) {
  return TextesFacturation().value(static_cast<int>(forfait));
}

/// The group that a family belongs to. Meals and every unknown number are in group Repas.
TGroupe GroupeTarif(TTypeFamille famille);
/// Whether the days include that of the date. No day set includes a weekend.
bool JourConvient(TTypeJour jour, TDateTime date);
