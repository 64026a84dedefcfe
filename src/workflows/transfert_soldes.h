#pragma once
#include <functional>

#include "services/frais_eleve.h"
#include "workflows/statistiques.h"

/// Which balances are carried from the year on display to the working year.
enum class TSensTransfert { Positifs, Negatifs };

/// What a line of a ledger has to do with a balance that was carried.
enum class TReport {
  Aucun,
  Arrive,     ///< it came from the year before
  Parti,      ///< more was paid than owed, and it left
  DetteParti  ///< what was owed left: nobody has paid it
};
TReport ReportDe(const TFraisEleve& ligne);

/// Why balances cannot be carried, in French; "" when they can: from a year to itself an amount and its
/// opposite would meet.
QString RefusTransfert(const TEleves& eleves, int anneeTravail);

/// Before anything is carried: "Voulez-vous transférer les soldes positifs de 12 élèves vers l'année scolaire
/// 2017-2018 ?"
QString QuestionTransfert(TSensTransfert sens, const QString& deQui, int anneeTravail);

/// Carries the balances of that sign of those pupils of the year on display, each by a free line in both
/// years that are stored together or not at all; a pupil who is not in the working year keeps his. `reporte`
/// is told of each who was carried, with the balance and its sign. Raises Exception, also when somebody
/// else has changed what a pupil paid since it was read; who was carried before stays so.
void TransfererSoldes(const TEleves& eleves, int anneeTravail, const std::vector<TEleve*>& lesquels,
                      TSensTransfert sens, const std::function<void(const TMontantEleve&)>& reporte);
