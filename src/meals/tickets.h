#pragma once
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

#include "core/calendrier_scolaire.h"
#include "core/distributor.h"

/// How a ticket was paid. The numbers are stored.
enum class TPaiementTicket : int { Aucun = 0, Virement = 1, Comptant = 2 };

/// A meal: bought, used, or both. Used without having been bought it is a missing ticket, a meal on credit.
struct TTicket : TBaseObject {
  int EleveId = 0;
  TDateTime DateAchat = 0.0;        ///< 0: not bought
  TDateTime DateUtilisation = 0.0;  ///< 0: not used yet
  Currency Valeur;                  ///< what was paid for it
  TPaiementTicket TypePaiement = TPaiementTicket::Aucun;
};

/// What was sold: how many tickets, and for how much.
struct TVentes {
  int Nombre = 0;
  Currency Montant;
};

/// The tickets of one pupil. The order of the list counts, since the first free ticket is the one that is
/// used: the latest bought first, those of one day by their keys, what was not bought last.
class TTickets : public TCollection<TTicket> {
  struct TSansLire {};

 public:
  TTickets(TDataModule1& base, int eleve);
  /// Not loaded: for `LireEnsemble`.
  TTickets(TDataModule1& base, int eleve, TSansLire);
  /// The lists of many pupils, by key, in one reading. Raises EDistributor.
  static std::unordered_map<int, std::unique_ptr<TTickets>> LireEnsemble(TDataModule1& base,
                                                                         const std::vector<int>& eleves);

  /// Their balances only, by key, of every pupil asked for. What is bought and used counts for nothing, and
  /// is not read. Raises EDistributor.
  static std::unordered_map<int, int> LireSoldes(TDataModule1& base, const std::vector<int>& eleves);

  /// In the order of the list; what was added since the last save stands at the end.
  const std::vector<TTicket*>& Liste() const { return liste_; }
  /// Bought less used: negative when meals were eaten without a ticket.
  int Solde() const;
  /// The distinct dates of purchase, in the order of the list; 0 stands once for the missing tickets.
  std::vector<TDateTime> DatesAchat() const;
  std::vector<TTicket*> AchetesLe(TDateTime date) const;
  /// The first that was not bought, or null.
  TTicket* PremierManquant() const;
  /// How many were used without having been bought.
  int NombreManquants() const;
  /// What was sold on each day of the period, paid in that way.
  std::map<TDateTime, TVentes> Ventes(const TPeriode& periode, TPaiementTicket type) const;

  // None of these saves.
  /// The meal of a day takes the first free ticket, or a missing one of that value; a day takes one only.
  void Consommer(TDateTime date, Currency valeur);
  /// Frees the first ticket of that day; a missing one disappears.
  void Liberer(TDateTime date);
  /// Settles missing tickets first, which keep their day of use.
  void Acheter(int nombre, TPaiementTicket type, Currency valeur, TDateTime date);
  void AjouterManquant(Currency valeur, TDateTime date);

  /// As of every collection; the list is then in its order again.
  bool Save();

 protected:
  void DefineQuery() override;
  void Indexer(TTicket& ticket) override;
  void Desindexer(TTicket& ticket) override { std::erase(liste_, &ticket); }

 private:
  TTicket* UtiliseLe(TDateTime date) const;
  void Ranger();

  int eleve_;
  std::vector<TTicket*> liste_;
  int dernierRang_ = -1;  // of those in the list
};

/// Whether two readings of a pupil's tickets found the same.
bool MemesTickets(const TTickets& a, const TTickets& b);
