#pragma once
#include <vector>

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

/// Why the payment of a movement cannot take that much more of it, in French; "" when it can. Read again, as
/// another workstation may have given it meanwhile; a payment that has no row yet takes all that it has.
QString RefusMouvement(const TFraisEleve& paiement, Currency enPlus);

/// Stores a payment for each part, all or none. Raises Exception, with the reason, when they cannot be.
void CrediterParts(const TExtrait& extrait, const std::vector<TPartVirement>& parts, const QString& libelle);

/// Gives the whole movement to one pupil, by hand. Raises Exception, with the reason, when somebody has got it
/// since it was shown.
void CrediterEntier(const TExtrait& extrait, const TPartVirement& part, const QString& libelle);
