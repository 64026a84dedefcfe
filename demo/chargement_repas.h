#pragma once
#include <QString>
#include <vector>

#include "core/dialogues.h"

class TEleve;

/// The meals of the sample school, through the program's own operations: tickets in every state, the orders
/// of November, meal accounts, and in `dossier` the files of a tablet that has served since its last
/// transfer. `Globals` shows the year. Raises Exception.
void ChargerRepas(IDialogues& dialogues, const QString& dossier);
