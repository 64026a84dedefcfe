#pragma once
#include <QString>

class IDialogues;
class QPrinter;
class QWidget;
class TDocumentPrepare;

/// The pages that the printer is asked for (all, or a range), as often as it is asked for. They go to a
/// file, to CUPS where it is installed, else to the system's printer. Raises Exception.
void Imprimer(const TDocumentPrepare& document, QPrinter& imprimante);

/// Draws those pages with the painter of the screen, each on its own paper: right for every printer, and
/// slow, since each letter goes there as a shape. Raises Exception when the printer cannot be used.
void PeindreSurImprimante(const TDocumentPrepare& document, QPrinter& imprimante);

/// Asks for the printer, the default one first, and prints. `page` is the one in hand, from 0. The name
/// of the printer; "" when the user gave up. Without any printer that is said first.
QString ImprimerAvecDialogue(const TDocumentPrepare& document, int page, IDialogues& dialogues,
                             QWidget* parent);
