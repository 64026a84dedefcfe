#pragma once
#include <QString>

#include "core/currency.h"
#include "core/dates.h"

/// "1 234,50 €" as a screen shows it: no-break spaces and a true minus sign. A date is FormatDate.
QString TexteMontant(Currency montant);
/// The same for the text of an amount, however it was written; other texts are left alone.
QString TypographieMontant(const QString& texte);
/// What a screen reader says for a caption: without mnemonic, without the colon at its end.
QString NomAccessible(const QString& libelle);
