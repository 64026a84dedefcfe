#pragma once
#include "core/currency.h"
#include "report/noeud_rapport.h"

class TEleve;

/// The node of a pupil, under the full name: `NomEleve`, `PrenomEleve` and `Classe`.
TNoeudRapport NoeudEleve(const TEleve& eleve);

/// A section of a pupil while it is being filled: its node and the sum of its lines. Each way of ending
/// it gives the node; the section is not used afterwards.
class TSection {
 public:
  TSection(const QString& texte, const QString& typeFrais);
  /// Both texts are the same.
  explicit TSection(const QString& texte) : TSection(texte, texte) {}

  /// A line `NomService`, `Total` whose amount counts in the sum.
  void Ajouter(const QString& nomService, Currency montant) { Ajouter(nomService, nomService, montant); }
  void Ajouter(const QString& texte, const QString& nomService, Currency montant);
  /// A line that shows a text for its amount and counts for nothing.
  void Montrer(const QString& texte, const QString& nomService, const QString& total);

  /// `TotalFrais` is the sum.
  TNoeudRapport Terminer();
  /// The same in italics under `TitreTotal`; without lines there is one that says so.
  TNoeudRapport TerminerSousTotal();
  /// The same in bold, as the balance of an account.
  TNoeudRapport TerminerSolde();

  TNoeudRapport Noeud;
  Currency Total;

 private:
  TNoeudRapport Terminer(const QString& titre, QStringView balise);
};
