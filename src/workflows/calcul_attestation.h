#pragma once
#include <functional>
#include <optional>
#include <vector>

#include "core/currency.h"
#include "core/dates.h"

class TEleve;

/// The year that the tax papers are about. Another tax year is another value here.
inline constexpr int kAnneeFiscale = 2017;

/// What an attestation is computed from: a pupil of the year on display, and the same one in the year
/// before.
struct TDossierAttestation {
  const TEleve& Eleve;
  const TEleve* Precedent = nullptr;  ///< null when the pupil was not there
  /// What a responsible person (1 or 2) paid by bank movements of the year; asked only when needed.
  std::function<Currency(int responsable)> Mouvements;
};

/// One part of the tax year: the autumn of one school year, or the spring of the other.
struct TPartieAttestation {
  Currency Montant;
  bool ApresDouzeAns = false;   ///< it counts days from the twelfth birthday on
  bool ParResponsable = false;  ///< it is what the one responsible person paid
};

/// The amount of an attestation, by parts.
struct TMontantAttestation {
  Currency Total() const;
  std::vector<TPartieAttestation> Parties;
};

/// The day of the twelfth birthday; 0 without a date of birth.
TDateTime DouzeAns(const TEleve& eleve);
/// Twelve before the tax year: nothing is computed.
bool TropAgePourAttestation(const TEleve& eleve);

/// What was really paid for care in the tax year. `responsable` 0 is the family, 1 or 2 one of parents who
/// live apart. Of `parametre`, "1" to "4" are ways of computing; none for another text. A school year that
/// has no part of the tax year gives no part.
std::optional<TMontantAttestation> CalculerAttestation(const TDossierAttestation& dossier,
                                                       const QString& parametre, int responsable);
