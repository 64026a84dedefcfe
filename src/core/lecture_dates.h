#pragma once
#include <QString>

#include "core/dates.h"

// Dates and times as files write them; conversions.h reads what a user types.

/// "20160901", anything behind it passed over. Raises EConvertError for anything else.
TDateTime LireDateCompacte(const QString& texte);
/// "0745", anything behind it passed over. Raises EConvertError for anything else.
TDateTime LireHeureCompacte(const QString& texte);
/// "01/09/2016"; 0 when it cannot be read or lies before 30 December 1899.
TDateTime LireDateBarre(const QString& texte);
/// "01-09-2016"; 0 when it cannot be read or lies before 30 December 1899.
TDateTime LireDateTiret(const QString& texte);
