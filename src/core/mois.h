#pragma once
#include <QStringList>
#include <array>

/// The ten months of a school year, in order: those that are billed.
inline constexpr std::array kMoisScolaires{9, 10, 11, 12, 1, 2, 3, 4, 5, 6};

/// Place among them, from 0; -1 for another.
int IndiceMoisScolaire(int mois);

/// "Septembre"; empty for what is no month. The names of the months are those of the school's language.
QString NomMois(int mois);
/// "septembre"
QString NomMoisCourant(int mois);
/// "sept.", "mai"
QString NomMoisCourt(int mois);
/// "du mois de septembre", "du mois d'octobre"
QString TexteDuMois(int mois);
/// "Septembre" to "Juin".
QStringList NomsMoisScolaires();

/// "2016 - 2017": a school year as the windows show it.
QString AnneeEnTexte(int annee);
/// "2016-2017": the same on lists and in the ledgers.
QString AnneeCompacte(int annee);
