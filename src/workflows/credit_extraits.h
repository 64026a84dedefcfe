#pragma once
#include "application/controleur.h"
#include "services/frais_eleve.h"

/// Whom a communication credits, for what.
struct TAttribution {
  int EleveId = 0;
  int Mois = 0;  ///< 0 when it names none
  TTypeFamilleFrais Famille = TTypeFamilleFrais::General;
};

/// What a communication of the month layout says (parameter 107 is not "1"). None when it is none of the
/// school year. Raises EConvertError when its fourteen characters have no number where one must stand; the
/// check value is not looked at.
std::optional<TAttribution> LireCommunicationMois(const QString& communication, int annee);
/// The same of the compact layout; with `sansAnnee` its year does not count.
std::optional<TAttribution> LireCommunicationCompacte(const QString& communication, int annee,
                                                      bool sansAnnee);

/// "Votre virement du 05/10/2016"
QString LibelleVirement(const TExtrait& extrait);

/// The free payment that a movement, or a part of it, is to a pupil; in no ledger yet.
std::unique_ptr<TFraisEleve> PaiementDe(const TExtrait& extrait, Currency montant, const QString& libelle,
                                        TTypeFamilleFrais famille);

/// Whom each credited movement went to, of any year, by the key of the movement: several when it was shared
/// out. Raises Exception.
std::unordered_map<int, std::vector<TAttribution>> LireAttributions(TDataModule1& base);

/// What the payment groups have received is read again, as a payment to that one has come or gone; 0 for
/// none.
void RelireGroupes(int groupeFraisId);

/// Gives a stored movement to a pupil of the year on display: one payment of its whole amount, saved at
/// once. Nothing without such a pupil, and for a movement that some pupil has already. Raises Exception when
/// it cannot be saved.
void CrediterEleve(const TAttribution& attribution, const TExtrait& extrait);
