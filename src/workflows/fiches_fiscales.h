#pragma once
#include <set>

#include "application/donnees_annee.h"
#include "workflows/annee_revenus.h"
#include "workflows/garde_payee.h"
#include "workflows/regles_fiscales.h"

/// Days of care that were paid, of one quarter.
struct TPeriodeGarde {
  TDateTime Debut = 0.0;  ///< the first day
  TDateTime Fin = 0.0;    ///< the last day
  int Jours = 0;
  Currency Montant;  ///< whole cents

  /// Of a day, on average, in whole cents.
  Currency Tarif() const;
};

/// A tax sheet to be: the care of a pupil that one responsible person paid.
struct TFicheFiscale {
  TEleve* Eleve = nullptr;
  int Responsable = 0;                  ///< 1 or 2
  std::vector<TPeriodeGarde> Periodes;  ///< one to four, in their order
  Currency Montant;                     ///< the sum of the periods
};

/// What the office has to look at before the sheets are printed.
struct TManqueFiche {
  TEleve* Eleve = nullptr;
  QString Champ;          ///< of the record, where it is mended: "edNumNational"; "" when it is a payment
  QString Texte;          ///< French
  bool SansFiche = true;  ///< there is no sheet until then; else it leaves something out
};

/// The tax sheets of a year of income, whose spring belongs to one school year and its autumn to the next.
/// Both are read, whichever is on display.
class TFichesFiscales {
 public:
  /// `eleves` is the year on display. All must outlive it. Raises Exception.
  TFichesFiscales(const TEleves& eleves, const TParametres& parametres, int anneeRevenus);

  /// These pupils, then those of the other school years with these keys, who last as long as the sheets.
  std::vector<TEleve*> AvecHorsAnnee(std::vector<TEleve*> eleves, std::set<int> cles) const;
  /// The sheets of these pupils in their order, two of parents who live apart when both have paid; and what
  /// is missing, in the same order.
  std::vector<TFicheFiscale> Fiches(const std::vector<TEleve*>& eleves);
  const std::vector<TManqueFiche>& Manques() const { return manques_; }

  const int Annee;
  const TReglesFiscales& Regles;

 private:
  /// One of the two school years.
  const TEleves& Eleves(int ecole) const;
  void LirePayeurs();
  std::vector<TJourGarde> Jours(const TEleve& eleve) const;
  TDateTime DernierJour(const TEleve& eleve) const;
  void Ajouter(TEleve& eleve, std::vector<TFicheFiscale>& fiches);
  bool Complet(TEleve& eleve, const std::vector<TFicheFiscale>& fiches);
  void DireImpayes(TEleve& eleve, const std::vector<TJourGarde>& jours);
  void Manque(TEleve& eleve, const QString& champ, const QString& texte, bool sansFiche = true);

  const TEleves& eleves_;
  std::unique_ptr<TDonneesAnnee> lues_[2];  ///< of the spring, of the autumn; null: it is on display
  TPayeurs payeurs_;
  std::vector<TManqueFiche> manques_;
};
