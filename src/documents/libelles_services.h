#pragma once
#include "documents/contexte.h"
#include "pupils/service.h"

/// How a service is called on an invoice: "Garderies du matin"; the evening as the school calls it.
QString LibelleFacture(TService service, const TContexteDocument& contexte);
