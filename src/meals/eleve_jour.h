#pragma once
#include <cstdint>

#include "core/dates.h"

/// The key under which what belongs to a pupil and a day is found.
using TEleveJour = std::int64_t;

/// `jour` without a fraction.
constexpr TEleveJour CleEleveJour(int eleve, TDateTime jour) {
  return (static_cast<TEleveJour>(eleve) << 32) | static_cast<std::uint32_t>(static_cast<std::int32_t>(jour));
}
