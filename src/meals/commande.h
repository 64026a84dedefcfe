#pragma once
#include <cstdint>
#include <span>

#include "core/base_object.h"
#include "core/dates.h"

/// What one pupil eats on one day.
struct TCommande : TBaseObject {
  int EleveId = 0;
  TDateTime DateCommande = 0.0;
  bool FlgRepas = false;
  bool FlgDago = false;  ///< the second generation of screens calls it soup
  bool FlgSandwich = false;
  bool FlgJambon = false;
  bool FlgFromage = false;
  bool FlgJambonFromage = false;
  bool FlgBeurre = false;
  bool FlgMayonnaise = false;

  /// A meal, a dago or a sandwich: what a ticket pays.
  bool EstUnRepas() const { return FlgRepas || FlgDago || FlgSandwich; }
  bool AGarniture() const { return FlgJambon || FlgFromage || FlgJambonFromage; }
  /// Bread has a filling, and what goes on bread has its bread. Butter or mayonnaise is never required.
  bool EstComplete() const;
};

/// A column of the grid of orders: the flag it shows, and the other ones that a click on it clears.
struct TColonneCommande {
  bool TCommande::*Flag;
  std::uint8_t Efface;  ///< bit c - 1 for column c
};

/// Columns 1 to 8, in order.
std::span<const TColonneCommande> ColonnesCommande();

/// Marks a column (1 to 8): sets its flag and clears those that go against it.
void Marquer(TCommande& commande, int colonne);
