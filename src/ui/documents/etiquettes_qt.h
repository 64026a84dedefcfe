#pragma once
#include "documents/etiquettes.h"

/// The labels of this workstation: our own engine, a job of the system's printer a label, the models beside
/// the program. Without a printer there is no engine. What a label cannot show is told by `dialogues`,
/// which must outlive it.
TPosteEtiquettes PosteEtiquettes(IDialogues& dialogues);
