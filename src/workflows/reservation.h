#pragma once
#include <QStringList>

#include "core/dates.h"
#include "meals/commande.h"

class IDialogues;
class TClasse;
class TEleve;
struct TGenerationRepas;

/// What a click on the grid of orders did.
enum class TEffetClic {
  Marque,
  Efface,
  Verrou,       ///< nothing: an incomplete order holds the grid
  Insuffisant,  ///< nothing: the meal account does not cover it
  Ignore,       ///< nothing: no such column, or the name, which only takes the row in hand
  AutrePoste    ///< nothing: another workstation has ordered meanwhile, and its order has been read
};

/// Ordering meals on the grid of a class and a day, where each click is stored at once (`Globals`). In the
/// first generation an incomplete order holds the grid, its class and its day until it is completed.
class TGrilleCommandes {
 public:
  TGrilleCommandes(IDialogues& dialogues, const TGenerationRepas& generation);

  /// A click on a column (1 on) of a pupil's row, and what is to be said of it. Raises EConvertError for a
  /// price that is no amount, and EDistributor.
  TEffetClic Cliquer(TEleve& eleve, TDateTime jour, int colonne);
  /// The same without a word: for many clicks, which are told of together.
  TEffetClic CliquerSansDire(TEleve& eleve, TDateTime jour, int colonne);
  /// The row in hand may be left; else the user is told why not.
  bool PeutQuitter();
  /// The row in hand holds the grid.
  bool EstVerrouillee() const;
  /// Another pupil's row, or day, comes into hand; false, after a message, when it may not.
  bool Selectionner(TEleve* eleve, TDateTime jour);
  /// Forgets the row in hand: the orders have been read again.
  void Oublier() { courant_ = nullptr; }

  const TGenerationRepas& Generation() const { return generation_; }

 private:
  bool PeutPasser(const TEleve* eleve, TDateTime jour) const;
  TEffetClic Appliquer(TEleve& eleve, TDateTime jour, int colonne);

  IDialogues& dialogues_;
  const TGenerationRepas& generation_;
  TEleve* courant_ = nullptr;  // pupil and day of the row in hand
  TDateTime jour_ = 0.0;
};

/// The day before; on a Monday the Friday. What lies inside a weekend goes day by day.
TDateTime JourPrecedent(TDateTime jour);
/// The day after; on a Friday the Monday.
TDateTime JourSuivant(TDateTime jour);

/// What the panel says of a pupil's tickets: "2 tickets manquants".
QString TexteSoldeTickets(int solde);

/// What came of orders that were taken over from another day.
struct TBilanReprise {
  int Reprises = 0;
  int Incompletes = 0;       ///< left out: what they want on their bread was not said
  QStringList Insuffisants;  ///< pupils whose account does not cover it
  QStringList AutresPostes;  ///< pupils for whom another workstation has ordered meanwhile

  /// "12 commandes reprises · 1 incomplète"
  QString Texte() const;
};

/// Orders for the pupils of the class who eat nothing yet on that day what they ordered on another one, click
/// by click under the rules of a click.
TBilanReprise RepeterCommandes(TGrilleCommandes& grille, const TClasse& classe, TDateTime source,
                               TDateTime jour);
