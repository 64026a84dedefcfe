#pragma once
#include <array>

/// The two generations of the meal screens work alike over the same orders. What differs are these words
/// and switches; the second one took over the flags of the first under new words, which do not agree from one
/// screen to the next and stay as they are.
struct TGenerationRepas {
  int NombreColonnes;                       ///< of the grid of orders, beside the names
  std::array<const char16_t*, 8> Colonnes;  ///< their titles, which are also the marks
  std::array<const char16_t*, 3> Abreges;   ///< of what makes a meal, for a month at a glance
  bool PrixParSection;                      ///< else the price of the primary section holds for all
  bool AvecVerrou;                          ///< an incomplete order holds the grid
  bool AvecSolde;                           ///< the account must cover a meal or a soup
  const char16_t* CompteurRepas;            ///< labels of the counters
  const char16_t* CompteurSandwichs;
  const char16_t* CompteurSansRepas;

  const char16_t* LigneSandwich;  ///< a line of the kitchen's day, before the number
  const char16_t* LigneDago;
  bool LigneDagoAvecNombre;
  const char16_t* DetailSandwich;  ///< the block of the detail of orders
  const char16_t* DetailSandwichs;
  const char16_t* DetailDago;
  const char16_t* DetailDagos;
  const char16_t* FicheTitreDago;  ///< title of the block of the sheet, before the number
  const char16_t* FicheEntete;     ///< in the heading of the sheet, before the number
};

/// The first generation, or the second one (`TFrmReservation2`, `TFrmCuisine2`). They live for ever.
const TGenerationRepas& GenerationRepas(bool nouvelle);
