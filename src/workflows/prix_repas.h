#pragma once
#include "core/currency.h"
#include "pupils/classe.h"

class TEleve;
struct TGenerationRepas;

// What a meal costs (`Globals`): parameter 101 in the nursery section, 102 in the primary one. A price that
// is empty is 0; one that is no amount raises EConvertError.

/// 0 for any other kind.
Currency PrixSection(TCategorie categorie);
/// Of an order: the second generation charges everyone the price of the primary section.
Currency PrixCommande(const TEleve& eleve, const TGenerationRepas& generation);
/// The parameter as it stands; "" for a kind without a price.
QString TextePrixSection(TCategorie categorie);
