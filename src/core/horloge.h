#pragma once
#include "core/dates.h"

/// Where the present moment comes from, so that tests can set it.
class THorloge {
 public:
  virtual ~THorloge() = default;
  /// Local date and time.
  virtual TDateTime Maintenant() const;
  /// Local date, without a fraction.
  TDateTime Aujourdhui() const;
};
