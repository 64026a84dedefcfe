#pragma once
#include "workflows/statistiques.h"

class QString;

// What the accountant takes away: a text with ";" and a line a pupil, the amount as "12,50", the first
// responsible person. UTF-8 with its mark, lines ended by CR LF, cells quoted. A file is written beside its
// place and renamed. Raises Exception.

/// Without the account.
void ExporterImpayes(const std::vector<TMontantEleve>& lignes, const QString& chemin);
/// With the account for the reimbursement.
void ExporterBalancesPositives(const std::vector<TMontantEleve>& lignes, const QString& chemin);
