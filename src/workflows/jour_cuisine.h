#pragma once
#include <QString>
#include <array>
#include <vector>

#include "core/dates.h"

class TClasse;
class TEleve;
class TEleves;
struct TCommande;
struct TGenerationRepas;

/// The varieties of a sandwich: ham, cheese, ham and cheese, each plain, with butter, with mayonnaise.
constexpr std::size_t kVarietes = 9;
using TVarietes = std::array<int, kVarietes>;

/// Whether an order is of that variety (0 to 8). One with both dressings is of two; one without filling of
/// none.
bool EstDeVariete(const TCommande& commande, std::size_t variete);

/// "jambon beurre"
QString TexteVariete(std::size_t variete);

/// Pupils who eat a kind of sandwich, in the order of classes and pupils, and their varieties.
struct TSandwichsDuJour {
  std::vector<TEleve*> Eleves;
  TVarietes Varietes{};
};

/// What a class eats.
struct TClasseDuJour {
  const TClasse* Classe = nullptr;
  int Repas = 0;
  int Dagos = 0;
  int Sandwichs = 0;
  int Autres = 0;  ///< orders of a dago or a sandwich: one of both counts once
};

/// What the kitchen makes on a day.
struct TJourCuisine {
  TDateTime Jour = 0.0;
  std::vector<TClasseDuJour> Classes;  ///< every class, in order, those that eat nothing too
  int Repas = 0;
  int Dagos = 0;
  int Sandwichs = 0;
  TSandwichsDuJour DagosDuJour;
  TSandwichsDuJour SandwichsDuJour;
  int Incompletes = 0;  ///< orders that are not complete: no variety says how to make them
};

/// Walks classes and pupils. The orders of the day are those in memory.
TJourCuisine JourDeCuisine(const TEleves& eleves, TDateTime jour);

/// A line under a class; none is given for what nobody eats.
struct TLigneCuisine {
  const char16_t* Libelle;
  int Nombre;
  bool AvecNombre;

  /// "Sandwichs;4"
  QString Texte() const;
};
std::vector<TLigneCuisine> LignesDeClasse(const TClasseDuJour& classe, const TGenerationRepas& generation);
