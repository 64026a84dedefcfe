#pragma once
#include "application/controleur.h"
#include "core/exceptions.h"

/// A closing that stopped before the year moved. What was written of it stays.
class ECloture : public Exception {
 public:
  using Exception::Exception;
};

/// The closing of a school year: each pupil's balance is written, and the working year moves on by one.
class TClotureAnnee {
 public:
  explicit TClotureAnnee(TControleur& controleur) : controleur_(controleur) {}

  /// What it will do, in words, for the question that comes before it: `eleves` come with the new year.
  static QString Annonce(int eleves);
  /// The balances are those of the year on display. A second closing of a year meets the rows of the
  /// first, and stops before the year moves: ECloture.
  void Cloturer();

 private:
  void AvancerAnnee();
  void EcrireBalances();
  void EcrireBalance(const TEleve& eleve);

  TControleur& controleur_;
};
