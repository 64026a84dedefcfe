#pragma once
#include <QString>
#include <variant>
#include <vector>

#include "core/currency.h"
#include "core/dates.h"

/// An amount and what the screen says behind it, put in order by the amount: "12,50 €  (+5,00)".
struct TMontantNote {
  Currency Montant;
  QString Note;
  bool operator==(const TMontantNote&) const = default;
  bool operator<(const TMontantNote& autre) const { return Montant < autre.Montant; }
};

/// A day that says its year: of another year than the one on display.
struct TJourAnnee {
  TDateTime Date = 0.0;
  bool operator==(const TJourAnnee&) const = default;
  bool operator<(const TJourAnnee& autre) const { return Date < autre.Date; }
};

/// What a cell or a field holds; `TValeurVue()` for nothing. Dates and times are TDateTime, a month is 1 to
/// 12. A text stands in any cell: for what could not be read, or in the head of a group.
using TValeurVue = std::variant<std::monostate, QString, int, Currency, TDateTime, TMontantNote, TJourAnnee>;
using TCellules = std::vector<TValeurVue>;

/// How the values of a column are shown and put in order.
enum class TGenre {
  Texte,       ///< in the language of the school
  Entier,      ///< "12"
  Montant,     ///< "1 234,50 €"
  Prix,        ///< the same with all the decimals it has: "0,0125 €"
  Date,        ///< "05/11/2016"
  DateCourte,  ///< "sam. 05/11"
  DateLongue,  ///< "samedi 5 novembre", and its year when it says it
  Heure,       ///< "07:30"
  HeureH,      ///< "07h30"
  Eleves,      ///< "1 élève", "12 élèves"; an int
  Mois,        ///< "Novembre", September first
  Etat,        ///< the word of the state of the row
};

/// As a column of that kind shows it; "" for no value, and for a date or time of 0.
QString TexteDe(TGenre genre, const TValeurVue& valeur);
/// For another program: an amount without its sign and spaces, dates and months as they are shown.
QString TexteBrut(TGenre genre, const TValeurVue& valeur);
/// Below 0, 0 or above 0, by the value itself. Nothing comes first, then texts, then what they stand among.
int ComparerValeurs(TGenre genre, const TValeurVue& a, const TValeurVue& b);
/// Whether it is one of the kinds of an amount.
inline bool EstMontant(TGenre genre) { return genre == TGenre::Montant || genre == TGenre::Prix; }
/// Amounts, numbers and times stand on the right.
bool EstADroite(TGenre genre);
