#pragma once
#include <QString>

#include "core/dialogues.h"

// The structured communication of a Belgian transfer: ten digits and their remainder modulo 97 on two
// digits, where 97 stands for 0, written "+++123/4567/89012+++". The ten digits say whose payment it
// is and for what. Each generator takes the key of a saved pupil; one of six digits or more cannot be
// coded: the user is told, and the text is empty.

/// Services of a month: pupil (5 digits), month (2), school year (2), 1. `mois` is 1 to 12.
QString CommunicationServices(IDialogues& dialogues, int eleveId, int mois, int anneeScolaire);
/// Fees of a month: the same, ending in 2.
QString CommunicationFrais(IDialogues& dialogues, int eleveId, int mois, int anneeScolaire);
/// Kind (1 digit), 0, pupil (5), 0, school year (2). A `permanente` one has 00 for the year, so that
/// the pupil keeps it for good.
QString CommunicationCompacte(IDialogues& dialogues, int eleveId, int genre, int anneeScolaire,
                              bool permanente);

/// Twelve digits as the parents read them: +++123/4567/89012+++.
QString CommunicationPresentee(const QString& chiffres);
/// Whether there are twelve digits, "+" and "/" left out, and the last two are the check value.
bool CommunicationValide(const QString& communication);
/// The communication in the form in which it is stored: what comes with the right twelve digits, in any
/// shape, is written +++123/4567/89012+++. A text of twenty characters passes untested, one that is no
/// communication stays as it came.
QString CommunicationNormalisee(const QString& communication);
/// The 14 characters between the first "+++" and the next one or the end; "" when they are not 14.
QString TexteInterieur(const QString& communication);
