#pragma once
#include "application/controleur.h"

/// The teachers, who are pupils of a class of their own.
class TProfesseurs {
 public:
  explicit TProfesseurs(TControleur& controleur) : controleur_(controleur) {}

  static bool EstProfesseur(const TEleve& eleve);
  /// Enrols a teacher in the working year, which comes on display, and gives the full name; "" when no key
  /// could be had, which the user has been told. Raises Exception; nothing of the teacher stays then.
  QString Ajouter(const QString& nom, const QString& prenom);
  /// Its rows in other tables stay. The pupil on display is let go of before by the caller. Raises Exception.
  void Supprimer(TEleve& professeur);

 private:
  void Inscrire(TEleve& professeur);

  TControleur& controleur_;
};
