#pragma once
#include "core/dates.h"
#include "meals/comptage.h"

class TDataModule1;

/// The cash that the meal accounts received on a day.
struct TCaisse {
  TComptage Comptage{};
  Currency SansDetail;  ///< what no count of notes explains

  Currency Montant() const { return Total(Comptage) + SansDetail; }
};

/// Of all pupils, as the database has it by now. Raises Exception.
TCaisse LireCaisse(TDataModule1& base, TDateTime jour);
