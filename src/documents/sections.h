#pragma once
#include "core/currency.h"
#include "report/noeud_rapport.h"

class TEleve;

/// The node of a pupil, under the full name: `NomEleve`, `PrenomEleve` and `Classe`.
TNoeudRapport NoeudEleve(const TEleve& eleve);

/// A section of a pupil while it is being filled: its node and the sum of its lines.
class TSection {
 public:
  TSection(const QString& texte, const QString& typeFrais);

  /// A line `NomService`, `Total` whose amount counts in the sum.
  void Ajouter(const QString& nomService, Currency montant);
  /// A line that shows a text for its amount and counts for nothing.
  void Montrer(const QString& texte, const QString& nomService, const QString& total);
  /// Gives the node, `TotalFrais` being the sum. The section is not used afterwards.
  TNoeudRapport Terminer();

  TNoeudRapport Noeud;
  Currency Total;
};
