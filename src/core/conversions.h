#pragma once
#include <QString>

#include "core/currency.h"
#include "core/dates.h"

// The ordinary conversions of a user's text. Each raises EConvertError with a French message that
// names the text. Blanks around the text are passed over.

/// A decimal whole number that fits 32 bits.
int StrToInt(const QString& texte);
/// A decimal number with a comma: "2,20".
double StrToFloat(const QString& texte);
/// The same, exact, rounded half to even at the fourth decimal.
Currency StrToCurr(const QString& texte);
/// "dd/mm/yyyy"; day and month may have one digit, the year two (then 1980 to 2079).
TDateTime StrToDate(const QString& texte);
/// "hh:mm" or "hh:mm:ss".
TDateTime StrToTime(const QString& texte);
/// The whole number, or `defaut` when the text is not one.
int StrToIntDef(const QString& texte, int defaut);
