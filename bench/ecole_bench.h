#pragma once
#include "core/data_module.h"

/// Fills an empty database with a school of that size in one transaction: `presences` records in the
/// school year 2016, tariffs of every family, activities, all of it the same at each run.
void RemplirEcole(TDataModule1& base, int eleves, int presences);
