// The meals of a pupil, of a class and of the school.
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "core/transaction_commune.h"
#include "meals/commandes.h"
#include "meals/repas_paiements.h"
#include "pupils/eleves.h"
#include "pupils/reserver.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// The meal account counts from the year before to the year after.
TPeriode PeriodeSolde(int annee) { return {EncodeDate(annee - 1, 9, 1), EncodeDate(annee + 2, 6, 30)}; }

/// What is written for the pupil stands together or not at all, and nobody else writes in between; false from
/// it leaves everything as it was. Raises EDistributor.
bool Ensemble(const TEleve& eleve, const std::function<bool()>& ecrire) {
  try {
    TTransactionCommune ensemble(eleve.Eleves->BaseDeDonnees());
    Reserver(eleve);
    if (!ecrire()) return false;
    ensemble.Valider();
    return true;
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
}

QString TicketsChanges(const TEleve& eleve) {
  return u"Un autre poste a changé les tickets de %1 : ils sont relus, et rien n'a été enregistré. Recommencez."_s
      .arg(eleve.NomComplet());
}

template <class Condition>
int Compter(const TClasse& classe, TDateTime jour, Condition condition) {
  TCommandes& commandes = classe.Eleves.Commandes();
  return static_cast<int>(std::ranges::count_if(classe.ListeEleves, [&](const TEleve* eleve) {
    return condition(commandes.Trouver(eleve->Id, jour));
  }));
}

}  // namespace

TTickets& TEleve::GetTickets() const {
  if (!tickets_) tickets_ = std::make_unique<TTickets>(Base(), Id);
  return *tickets_;
}

int TEleve::SoldeTickets() const {
  if (!tickets_ && soldeTickets_) return *soldeTickets_;
  return GetTickets().Solde();
}

void TEleve::ClearTickets() const {
  tickets_.reset();
  soldeTickets_.reset();
}

// What is sold, deleted or handed on was decided on the tickets that were shown.
void TEleve::RefuserTicketsChanges() const {
  if (!tickets_ || MemesTickets(*tickets_, TTickets(Base(), Id))) return;
  ClearTickets();
  throw EDistributor(TicketsChanges(*this));
}

// A ticket that another workstation has deleted meanwhile would take a sale with it.
void TEleve::EcrireTickets(const std::function<void(TTickets&)>& changement) {
  TTickets& tickets = GetTickets();
  changement(tickets);
  tickets.Save();
  for (const TTicket* ticket : tickets.Liste())
    if (ticket->Status == TStatus::Nouveau)
      throw EDistributor(u"Les tickets n'ont pas pu être enregistrés."_s);
  if (!tickets.RangeesDisparues().empty()) throw EDistributor(TicketsChanges(*this));
}

void TEleve::ModifierTickets(const std::function<void(TTickets&)>& changement) {
  Base();
  try {
    Ensemble(*this, [&] {
      RefuserTicketsChanges();
      return EcrireTickets(changement), true;
    });
  } catch (const EDistributor&) {
    ClearTickets();
    throw;
  }
}

void TEleve::AcheterTickets(int nombre, TPaiementTicket type, Currency valeur, TDateTime date) {
  ModifierTickets([&](TTickets& tickets) { tickets.Acheter(nombre, type, valeur, date); });
}

void TEleve::AjouterCredit(Currency valeur, TDateTime date) {
  ModifierTickets([&](TTickets& tickets) { tickets.AjouterManquant(valeur, date); });
}

void TEleve::SupprimerTicket(TTicket& ticket) {
  ModifierTickets([&](TTickets& tickets) { tickets.Remove(ticket); });
}

TCommande* TEleve::GetCommande(TDateTime date) const {
  Base();
  return Eleves->Commandes().Trouver(Id, date);
}

bool TEleve::CommandeValide(TDateTime date) const {
  const TCommande* commande = GetCommande(date);
  return commande == nullptr || commande->EstComplete();
}

bool TEleve::SetCommande(TDateTime date, Currency valeurTicket,
                         const std::function<void(TCommande&)>& changement) {
  TCommande* commande = GetCommande(date);
  TCommandes& commandes = Eleves->Commandes();
  if (commande == nullptr) commande = &commandes.Add(std::make_unique<TCommande>());
  commande->EleveId = Id;
  commande->DateCommande = date;
  changement(*commande);
  commandes.Add(*commande);
  try {
    return Ensemble(*this, [&] { return EcrireCommande(*commande, valeurTicket); });
  } catch (const EDistributor&) {
    Eleves->LibererCommandes();
    throw;
  }
}

// The order, then the ticket that pays it, of those that the pupil has by now.
bool TEleve::EcrireCommande(TCommande& commande, Currency valeurTicket) {
  const TDateTime date = commande.DateCommande;
  if (Eleves->Commandes().Enregistrer(commande) != nullptr) return false;
  if (commande.Status != TStatus::Inchange)  // without a key, or its row is gone
    throw EDistributor(u"La commande n'a pas pu être enregistrée : elle est relue. Recommencez."_s);
  ClearTickets();
  EcrireTickets([&](TTickets& tickets) {
    commande.EstUnRepas() ? tickets.Consommer(date, valeurTicket) : tickets.Liberer(date);
  });
  return true;
}

Currency TEleve::SoldeRepas() const {
  Base();
  return Eleves->RepasPaiements().Recu(Id, PeriodeSolde(Eleves->AnneeScolaire));
}

Currency TEleve::RecuLe(TDateTime jour) const {
  Base();
  return Eleves->RepasPaiements().RecuLe(Id, jour);
}

void TEleve::EncaisserRepas(TDateTime jour, const TComptage& comptage) {
  Base();
  TRepasPaiements& paiements = Eleves->RepasPaiements();
  try {
    Ensemble(*this, [&] {
      if (paiements.EstDepasse(Id, jour))
        throw EDistributor(
            u"Un autre poste a changé le paiement du jour pour %1 : il est relu, et rien n'a été "
            u"enregistré. "
            "Relisez ce que vous avez compté : le valider prendrait sa place."_s.arg(NomComplet()));
      paiements.Encaisser(Id, jour, comptage);
      return true;
    });
  } catch (const EDistributor&) {
    Eleves->LibererRepasPaiements();
    throw;
  }
}

int TClasse::NombreRepas(TDateTime jour) const {
  return Compter(*this, jour, [](const TCommande* c) { return c != nullptr && c->FlgRepas; });
}

int TClasse::NombreSandwichs(TDateTime jour) const {
  return Compter(*this, jour,
                 [](const TCommande* c) { return c != nullptr && (c->FlgSandwich || c->FlgDago); });
}

int TClasse::NombreSansCommande(TDateTime jour) const {
  return Compter(*this, jour, [](const TCommande* c) { return c == nullptr || !c->EstUnRepas(); });
}

TEleves::~TEleves() = default;

TCommandes& TEleves::Commandes() const {
  if (!commandes_) commandes_ = std::make_unique<TCommandes>(BaseDeDonnees());
  return *commandes_;
}

TRepasPaiements& TEleves::RepasPaiements() const {
  if (!repasPaiements_)
    repasPaiements_ = std::make_unique<TRepasPaiements>(
        BaseDeDonnees(), TPeriode{EncodeDate(AnneeScolaire, 8, 1), EncodeDate(AnneeScolaire + 1, 6, 30)});
  return *repasPaiements_;
}

void TEleves::LibererCommandes() {
  for (const TEleve& eleve : *this) eleve.ClearTickets();
  commandes_.reset();
}

void TEleves::LibererRepasPaiements() { repasPaiements_.reset(); }

namespace {

/// Those whose tickets are still to be read, by key.
std::unordered_map<int, TEleve*> SansTickets(const std::vector<TEleve*>& eleves,
                                             const std::function<bool(const TEleve&)>& connus) {
  std::unordered_map<int, TEleve*> aLire;
  for (TEleve* eleve : eleves)
    if (eleve->Id != -1 && !connus(*eleve)) aLire.emplace(eleve->Id, eleve);
  return aLire;
}

std::vector<int> ClesDe(const std::unordered_map<int, TEleve*>& eleves) {
  std::vector<int> cles;
  for (const auto& [cle, _] : eleves) cles.push_back(cle);
  return cles;
}

}  // namespace

void TEleves::LireTickets(const std::vector<TEleve*>& eleves) const {
  const auto aLire = SansTickets(eleves, [](const TEleve& e) { return e.tickets_ != nullptr; });
  if (aLire.empty()) return;
  for (auto& [cle, tickets] : TTickets::LireEnsemble(BaseDeDonnees(), ClesDe(aLire)))
    aLire.at(cle)->tickets_ = std::move(tickets);
}

void TEleves::LireSoldesTickets(const std::vector<TEleve*>& eleves) const {
  const auto aLire =
      SansTickets(eleves, [](const TEleve& e) { return e.tickets_ != nullptr || e.soldeTickets_; });
  if (aLire.empty()) return;
  const auto soldes = TTickets::LireSoldes(BaseDeDonnees(), ClesDe(aLire));
  for (const auto& [cle, eleve] : aLire) eleve->soldeTickets_ = soldes.at(cle);
}

void TEleves::DeplacerTicket(int ancienEleveId, int nouvelEleveId, int ticketId) {
  TTransactionCommune ensemble(BaseDeDonnees());
  if (const TEleve* eleve = TrouverParId(ancienEleveId)) {
    Reserver(*eleve);
    eleve->RefuserTicketsChanges();
  }
  const int deplaces =
      TQueryInternal(BaseDeDonnees(), u"UPDATE TICKET SET ELEVE_ID = " % QString::number(nouvelEleveId) %
                                          u" where ELEVE_ID=" % QString::number(ancienEleveId) %
                                          u" AND TICKET_ID=" % QString::number(ticketId))
          .Executer();
  ensemble.Valider();
  for (const int id : {ancienEleveId, nouvelEleveId})
    if (const TEleve* eleve = TrouverParId(id)) eleve->ClearTickets();
  if (deplaces == 0)
    throw Exception(u"Ce ticket n'existe plus : un autre poste l'a supprimé ou transféré."_s);
}
