#pragma once
#include <vector>

#include "core/exceptions.h"
#include "payments/extraits.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

/// What a pupil gets of a bank movement that is shared out.
struct TPartVirement {
  TEleve* Eleve = nullptr;
  Currency Montant;
  TTypeFamilleFrais Famille = TTypeFamilleFrais::General;
  int GroupeFraisId = 0;  ///< 0 for none
};

/// The pupils, each once: one who is enrolled twice has one ledger, and is the first of the two.
std::vector<TEleve*> ElevesUneFois(TEleves& eleves);

/// What the pupil owes for the year, fees and services, in whole cents; 0 when nothing.
Currency SoldeDu(const TEleve& eleve);

/// An amount shared out by what is owed, exact to the cent: each gets what he owes when that is there, and
/// the first what is left over; else all get the same share of it. When nobody owes anything, equal parts.
/// Nothing without anybody.
std::vector<Currency> RepartirMontant(Currency montant, const std::vector<Currency>& dus);

/// What is left of the movement, shared out between these pupils of the year on display by what they owe.
std::vector<TPartVirement> ProposerParts(const TExtrait& extrait, const std::vector<TEleve*>& eleves);

/// Why these parts cannot be stored, in French; "" when they can. They may leave something over.
QString FauteParts(const TExtrait& extrait, const std::vector<TPartVirement>& parts);

/// Another workstation has given the movement, or so much of it, meanwhile.
class ERefusMouvement : public Exception {
  using Exception::Exception;
};

/// Why the payment of a movement cannot have that amount of it, in French; "" when it can. Read again, as
/// another workstation may have given it meanwhile; what is less than it has is never refused.
QString RefusMouvement(const TFraisEleve& paiement, Currency montant);
/// Saves the pupil's lines, of which that payment is new or changed; nobody else can give its movement
/// between the look and the save. Raises ERefusMouvement, or Exception for what else cannot be stored, and
/// memory is then what the table holds.
void RangerPaiement(TAllFraisEleve& lignes, TFraisEleve& paiement);

/// Stores a payment for each part, all or none. Raises Exception, with the reason, when they cannot be.
void CrediterParts(const TExtrait& extrait, const std::vector<TPartVirement>& parts, const QString& libelle);

/// Gives the whole movement to one pupil, by hand. Raises Exception, with the reason, when somebody has got
/// it since it was shown.
void CrediterEntier(const TExtrait& extrait, const TPartVirement& part, const QString& libelle);
