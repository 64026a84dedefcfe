#pragma once
#include <QStringList>

#include "application/donnees_annee.h"
#include "payments/extraits.h"
#include "workflows/calcul_attestation.h"

/// A tax attestation to be: a pupil, or one of the two entries of a pupil whose parents live apart.
struct TFeuilleAttestation {
  TEleve* Eleve = nullptr;
  int Responsable = 0;   ///< whose payments it counts: 0 the family, 1 or 2
  bool Seconde = false;  ///< the second entry: the second responsible person is named
  TMontantAttestation Detail;
  Currency Montant;       ///< exactly 0: there is no sheet
  QString DateDebut;      ///< "01/09/2017"
  QString DateFin;        ///< of the sentence of the form
  QString DateFinReel;    ///< the same cut at the twelfth birthday, day and month as short as they are
  bool SansDate = false;  ///< a pupil had care in the tax year, but no date of birth tells how much of it
  QStringList Remarques;  ///< what the office has to look at; French
};

/// The attestations of a list of pupils. It opens the school year before, with everything that its
/// amounts need, and frees it at its end.
class TAttestations {
 public:
  /// `eleves` is the year on display, `anneeTravail` the year open in the system. All must outlive it.
  /// Raises Exception.
  TAttestations(const TEleves& eleves, const TParametres& parametres, int anneeTravail);

  /// An entry for each pupil in order, two together of parents who live apart. What the computation tells
  /// the user is added to `messages`.
  std::vector<TFeuilleAttestation> Feuilles(const std::vector<TEleve*>& eleves, QStringList& messages);

 private:
  TFeuilleAttestation Feuille(TEleve& eleve, int responsable, QStringList& messages);
  Currency Mouvements(const TEleve& eleve, int responsable);
  void Dater(TFeuilleAttestation& feuille) const;

  const TEleves& eleves_;
  const QString parametre_;
  const int anneeTravail_;
  std::unique_ptr<TDonneesAnnee> precedente_;
  std::unique_ptr<TExtraits> extraits_;  ///< of the year on display; null until they are asked for
};
