#pragma once
#include <QStringList>
#include <vector>

#include "core/dates.h"
#include "forms/grille.h"

class TClasse;
class TEleve;
struct TGenerationRepas;

/// The day that a meal screen shows, and its two steps over the weekends.
class TJourEcran {
 public:
  void Definir(TDateTime jour) { jour_ = jour; }
  TDateTime Jour() const { return jour_; }
  /// To the school day before, or after.
  void Reculer();
  void Avancer();
  /// "lundi 3 octobre"
  QString Titre() const;

 private:
  TDateTime jour_ = 0.0;
};

/// A counter of a class and a day.
struct TCompteurRepas {
  QString Libelle;
  int Nombre = 0;
};
/// In order: hot meals, sandwiches, pupils without a meal. Zeros without a class.
std::vector<TCompteurRepas> CompteursRepas(const TClasse* classe, TDateTime jour,
                                           const TGenerationRepas& generation);

/// A row for a pupil, who is its object; crossed out for one who has left.
int AjouterEleve(TGrille& grille, TEleve& eleve, TCellules cellules, int etat = 0);

/// "Choisissez votre classe", then every class of the year on display.
QStringList ChoixDeClasses();
