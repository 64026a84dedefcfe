#pragma once
#include <span>

#include "report/layout/bande_formee.h"

/// Where a page may end among bands that follow each other.
struct TCoupures {
  std::vector<bool> Avant;                      ///< a page may begin with that band
  std::vector<std::vector<std::size_t>> Tetes;  ///< the bands to print again when it does
};

/// A head keeps two rows, a sub-total its last row, a final footer the last two rows (the whole of the
/// last section when that is short): no total stands alone. `pleine` is the height of an empty page.
TCoupures TrouverCoupures(std::span<const TBandeFormee> bandes, float pleine);
