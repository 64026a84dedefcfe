#pragma once
#include <vector>

#include "attendance/presence.h"
#include "core/currency.h"

/// One record charged, with its amount.
struct TLigneService {
  Currency Montant;
  TPresence* Presence = nullptr;

  /// The amount as text: "1,5".
  QString Texte() const { return FormatNombre(Montant); }
};

/// The records behind an amount, in the order in which they were charged. The operations that fill
/// such a list clear it first.
using TLignesService = std::vector<TLigneService>;
