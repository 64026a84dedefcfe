#pragma once
#include <optional>

#include "services/frais_eleve.h"

/// A line of some pupil's ledger that has a bank movement, or its part of one; of any school year.
struct TLigneExtrait {
  int Id = 0;
  int EleveId = 0;
  int ExtraitId = 0;
  Currency Montant;
  int Mois = 0;
  TTypeFamilleFrais Famille = TTypeFamilleFrais::General;
  bool FlgPart = false;
};

/// As they are stored now: those of that movement, or of all of them. Raises Exception.
std::vector<TLigneExtrait> LireLignesExtrait(TDataModule1& base, std::optional<int> extrait = {});
