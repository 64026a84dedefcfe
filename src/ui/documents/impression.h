#pragma once
#include <QString>

class QPrinter;
class QWidget;
class TDocumentPrepare;

/// The pages that the printer is asked for (all, or a range), each on its own paper, as often as it is
/// asked for. Raises Exception when the printer cannot be used.
void Imprimer(const TDocumentPrepare& document, QPrinter& imprimante);

/// Asks for the printer, the default one first, and prints. `page` is the one in hand, from 0. The name
/// of the printer; "" when the user gave up.
QString ImprimerAvecDialogue(const TDocumentPrepare& document, int page, QWidget* parent);
