#pragma once
#include <vector>

#include "core/calendrier_scolaire.h"
#include "core/currency.h"
#include "services/groupes_frais.h"

class TEleve;
class TEleves;
class TListeFrais;
struct TFrais;

// What the lists of the statistics hold: all pupils of a year, those who were struck off too, in the order
// of the collection. Amounts follow the data at each call.

/// A pupil and an amount.
struct TMontantEleve {
  TEleve* Eleve = nullptr;
  Currency Montant;
};

/// The months of a school year that a list of unpaid items is about.
enum class TEtendue { Annee, Mois, Jusque };

/// What counts for a list of unpaid items.
struct TCriteresImpayes {
  bool Frais = true;
  bool Services = true;
  TEtendue Etendue = TEtendue::Annee;
  int Mois = 0;  ///< one of the ten months of the school year, 0 for none: nobody then owes anything
};

/// Who has paid less than is due; the amounts without sign.
std::vector<TMontantEleve> Impayes(const TEleves& eleves, const TCriteresImpayes& criteres);

/// Who has paid more than is due in the year.
std::vector<TMontantEleve> BalancesPositives(const TEleves& eleves, bool frais, bool services);

/// The pupils who have records in the period; the records themselves are `TPresences::PresencesEleve`.
std::vector<TEleve*> ElevesPresents(const TEleves& eleves, const TPeriode& periode);

/// The school's months, September first, their sum, and the meals that are charged in the year.
struct TReleveAnnuel {
  std::vector<std::pair<int, Currency>> Mois;  ///< 9 to 12, then 1 to 6
  Currency Total;
  int RepasMaternelle = 0;
  int RepasPrimaire = 0;
};

/// Of the year on display (`Globals`).
TReleveAnnuel ReleveAnnuel();

/// What a pupil has paid under a payment group, whatever the school year.
struct TPaiementsEleve {
  TEleve* Eleve = nullptr;
  Currency Total;
  TGroupeFrais::TDetails Details;
};

/// The pupils who have payments in the group, which is read at its first use and must outlive the result.
std::vector<TPaiementsEleve> PaiementsDuGroupe(const TEleves& eleves, TGroupeFrais& groupe);

/// What care cost in the period and what was paid for its months.
struct TLigneFiscale {
  TEleve* Eleve = nullptr;
  Currency Du;
  Currency Paye;
};

/// The pupils for whom more was paid than was due.
std::vector<TLigneFiscale> StatistiquesFiscales(const TEleves& eleves, const TPeriode& periode);

/// A fee of the year and what it comes to. The number of pupils is asked of the database.
struct TLigneFrais {
  TFrais* Frais = nullptr;
  int Eleves = 0;
  Currency Total;
};

/// A row for each fee of the year, in the order of the list.
std::vector<TLigneFrais> StatistiqueFrais(const TListeFrais& liste);
