#pragma once
#include <memory>
#include <span>

#include "core/currency.h"
#include "forms/grille.h"

class TEleve;
struct TPaiement;

/// How a row of the list stands: the index of its state in the grid.
enum TEtatFrais { EtatPaye, EtatDu, EtatPartiel, EtatRecu, EtatPrevision };

/// "Frais et paiements": the fees of the catalogue, the months whose services cost something, the free
/// payments. The object of a row is its TFraisEleve, or the TPaiement of a month: of type 0, and held here,
/// while the month is not paid. What can be marked as paid has a box.
class TFraisPaiements {
 public:
  enum TColonne { Libelle, Mois, MontantDu, MontantVerse };

  TFraisPaiements();
  ~TFraisPaiements();
  TFraisPaiements(const TFraisPaiements&) = delete;
  TFraisPaiements& operator=(const TFraisPaiements&) = delete;

  void Remplir(const TEleve& eleve);
  void Vider();

  /// The object that stands for an unpaid month, which is given away; null for another one.
  std::unique_ptr<TPaiement> PrendreImpaye(const TPaiement& paiement);

  TGrille Grille;
  /// The rows that end the list, always in sight: "Total", which like the account leaves the forecast
  /// fees out, and "Balance".
  std::vector<QStringList> Pied;
  /// Of the whole account; positive when the family has paid more than it owes.
  Currency Solde;

 private:
  void AjouterFrais(const TEleve& eleve);
  void AjouterServices(const TEleve& eleve, std::span<const Currency> couts);
  void AjouterPaiementsLibres(const TEleve& eleve);
  TPaiement& Impaye(const TEleve& eleve, int mois, Currency du);
  void Compter(Currency du, Currency verse);
  void EcrirePied(bool provision);

  Currency totalDu_;
  Currency totalVerse_;
  std::vector<std::unique_ptr<TPaiement>> impayes_;
};
