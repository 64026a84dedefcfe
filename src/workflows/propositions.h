#pragma once
#include <QSet>
#include <unordered_map>

#include "payments/extraits.h"
#include "pupils/eleves.h"

/// A pupil to whom a movement may belong.
struct TProposition {
  TEleve* Eleve = nullptr;
  QString Raison;  ///< "a déjà payé par ce compte, doit 84,00 €"
  int Force = 0;   ///< the stronger one first; two of one force cannot be told apart
};

/// Whose payment an unknown movement may be: by the account of the pupil, by earlier movements of that
/// account, by what is owed, which is
/// compared with what is left of the movement, by the name of an adult. It reads the school once and is meant
/// for a short time.
class TPropositions {
 public:
  /// The pupils of the year on display; they outlive it. Raises Exception.
  explicit TPropositions(TEleves& eleves);

  /// The strongest first. None for what the school pays, for what was given whole, and for an account of more
  /// than four pupils: that is a public service, which pays for anybody.
  std::vector<TProposition> Pour(const TExtrait& extrait);
  /// The pupil has just been given something of that movement.
  void Apprendre(const TExtrait& extrait, const TEleve& eleve);
  /// The one that may be taken without choosing; null when there is none, or two of one force.
  static const TProposition* Evidente(const std::vector<TProposition>& propositions);
  /// Those of whom the account itself tells: the children of one family, mostly.
  static std::vector<TEleve*> DuCompte(const std::vector<TProposition>& propositions);

 private:
  struct TConnu {
    TEleve* Eleve;
    QString Compte;                      ///< of the record, as it is compared
    std::vector<QSet<QString>> Adultes;  ///< the words of each name; a first name may be an initial
    Currency Du;
  };
  using TPayes = std::unordered_map<int, int>;  ///< payments by pupil

  void LireComptes();
  bool Public(const QString& compte) const;
  int Force(const TConnu& connu, const TExtrait& extrait, Currency reste, QStringList& raisons) const;

  TEleves& eleves_;
  std::vector<TConnu> connus_;
  std::unordered_map<QString, TPayes> comptes_;
};
