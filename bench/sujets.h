#pragma once
#include <QTemporaryDir>

#include "bench/ecole_bench.h"

// The subjects that are measured, each in a file of its own: it prints its bars, and what else is worth
// knowing to the error stream. `ecole` has 500 pupils and 250,000 presences.

void MesurerChargement(TEcole& ecole);
void MesurerStatistiques(TEcole& ecole);
void MesurerTarification(TEcole& ecole, const QTemporaryDir& dossier);
void MesurerFactures(TEcole& ecole, const QTemporaryDir& dossier);
/// The school is disconnected and connected again meanwhile.
void MesurerEcran(TEcole& ecole, const QTemporaryDir& dossier);
/// Leaves five years of tickets and orders in the school.
void MesurerRepas(TEcole& ecole, const QTemporaryDir& dossier);
/// Leaves its movements in the school.
void MesurerBanque(TEcole& ecole, const QTemporaryDir& dossier);
