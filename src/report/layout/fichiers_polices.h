#pragma once
#include <memory>

#include "report/layout/polices.h"

struct _FcConfig;

/// Looks fonts up with fontconfig, which needs no graphic session.
class TFichiersPolices {
 public:
  TFichiersPolices();
  /// Path of a TrueType file of exactly that family and style that can write French; "" when none is
  /// installed.
  QString operator()(const TDemandePolice& demande) const;

 private:
  std::shared_ptr<_FcConfig> configuration_;
};
