#pragma once
#include <QLocale>
#include <QString>

#include "core/currency.h"
#include "core/dates.h"

// The one form in which the program writes dates, times and amounts, on screen, on paper and in SQL.

/// French of Belgium: the names of months and days, the comma, the euro.
const QLocale& LocaleEcole();

/// "01/09/2016"; empty for 0.
QString FormatDate(TDateTime date);
/// "07h45"; empty for 0. A date with the time 00:00 gives "00h00".
QString FormatHeure(TDateTime heure);
/// "07:45"; empty for 0.
QString FormatHeureCourte(TDateTime heure);
/// "1 septembre 2016". This and the following write 0 as the day it stands for.
QString FormatDateLongue(TDateTime date);
/// "jeudi 1 septembre 2016"
QString FormatJourLong(TDateTime date);
/// "jeudi 1 septembre"
QString FormatJour(TDateTime date);
/// "'09/01/2016'", quotes included: the date literal of hand-written SQL.
QString FormatDateSql(TDateTime date);
/// "20160901"
QString FormatDateCompacte(TDateTime date);

/// "1 234,50 €": grouped as the locale does, a plain blank before the sign; half a cent goes away
/// from zero.
QString FormatMontant(Currency montant);
/// Decimal text; empty for 0.
QString IntOuVide(int valeur);
