#pragma once
#include "payments/releve.h"

/// What a statement says of itself.
struct TEnteteReleve {
  QString Compte;  ///< of the school
  QString Numero;  ///< as the bank numbers it; "" when it does not
  std::optional<Currency> AncienSolde, NouveauSolde;
  TDateTime DateAncienSolde = 0.0, DateNouveauSolde = 0.0;  ///< 0 when none
};

/// A bank's file that says of itself what it is: the booked movements in the order of the file.
struct TReleveBancaire {
  std::vector<TEnteteReleve> Entetes;
  std::vector<TMouvement> Mouvements;
  QStringList Preuves;  ///< each balance, sum or count that does not fit, in a sentence
};

/// The movements of a CODA file (version 2) or a camt.053 file (001.02 to 001.08), in euros; none when the
/// bytes are neither. Texts are cut to what can be stored. Raises Exception, with the reason, for a file
/// that cannot be taken.
std::optional<TReleveBancaire> LireReleveBancaire(const QByteArray& octets);

// The readers behind it.
bool EstCoda(const QByteArray& octets);
bool EstXml(const QByteArray& octets);
TReleveBancaire LireCoda(const QByteArray& octets);
TReleveBancaire LireCamt(const QByteArray& octets);

/// The sum; raises Exception when it is too large.
Currency Additionner(Currency a, Currency b);
/// What does not fit when the movements do not lead from one balance to the other; "" otherwise.
QString PreuveDesSoldes(const TEnteteReleve& entete, Currency mouvements);
