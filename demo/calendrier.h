#pragma once
#include <QDate>
#include <vector>

/// The school year of the sample school: 2016-2017.
inline constexpr int kAnneeExemple = 2016;

/// Whether there is school: Monday to Friday, outside holidays, public holidays and staff days.
bool EstJourEcole(const QDate& jour);
/// All school days of the year, in order.
const std::vector<QDate>& JoursEcole();
/// The first school day on or after `jour`; the last of the year when there is none.
QDate JourEcoleSuivant(QDate jour);
/// Whether hot meals and soups are served: not in the first days and not in the last.
bool EstJourRepas(const QDate& jour);
/// Whether the study is held: Monday, Tuesday and Thursday, mid-September to mid-June.
bool EstJourEtude(const QDate& jour);
/// Monday 0 to Sunday 6.
inline std::size_t JourSemaine(const QDate& jour) { return static_cast<std::size_t>(jour.dayOfWeek() - 1); }
