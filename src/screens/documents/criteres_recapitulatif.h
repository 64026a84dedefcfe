#pragma once
#include "forms/champs.h"

struct TCriteresRecapitulatif;

/// The fields of the statistics, page by page.
TTableChamps<TCriteresRecapitulatif> ChampsRecapitulatif();
