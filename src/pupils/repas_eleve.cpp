// The meals of a pupil, of a class and of the school.
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "meals/commandes.h"
#include "meals/repas_paiements.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// The meal account counts from the year before to the year after.
TPeriode PeriodeSolde(int annee) { return {EncodeDate(annee - 1, 9, 1), EncodeDate(annee + 2, 6, 30)}; }

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

void TEleve::ModifierTickets(const std::function<void(TTickets&)>& changement) {
  try {
    TTickets& tickets = GetTickets();
    changement(tickets);
    tickets.Save();
    for (const TTicket* ticket : tickets.Liste())
      if (ticket->Status == TStatus::Nouveau)
        throw EDistributor(u"Tous les tickets n'ont pas pu être enregistrés."_s);
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
  const bool repas = commande->EstUnRepas();
  try {
    if (commandes.Enregistrer(*commande) != nullptr) return false;
  } catch (const EDistributor&) {
    Eleves->LibererCommandes();
    throw;
  }
  ModifierTickets([&](TTickets& tickets) {
    if (repas)
      tickets.Consommer(date, valeurTicket);
    else
      tickets.Liberer(date);
  });
  return true;
}

Currency TEleve::SoldeRepas() const {
  Base();
  return Eleves->RepasPaiements().Recu(Id, PeriodeSolde(Eleves->AnneeScolaire));
}

Currency TEleve::RecuLe(TDateTime jour) const {
  Base();
  return Eleves->RepasPaiements().Recu(Id, {jour, jour});
}

void TEleve::EncaisserRepas(TDateTime jour, const TComptage& comptage) {
  Base();
  try {
    Eleves->RepasPaiements().Encaisser(Id, jour, comptage);
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

void TEleves::LireTickets(const std::vector<TEleve*>& eleves) const {
  std::vector<int> cles;
  for (const TEleve* eleve : eleves)
    if (!eleve->tickets_ && eleve->Id != -1) cles.push_back(eleve->Id);
  if (cles.empty()) return;
  auto ensemble = TTickets::LireEnsemble(BaseDeDonnees(), cles);
  for (TEleve* eleve : eleves)
    if (!eleve->tickets_ && eleve->Id != -1) eleve->tickets_ = std::move(ensemble[eleve->Id]);
}

void TEleves::DeplacerTicket(int ancienEleveId, int nouvelEleveId, int ticketId) {
  TQueryInternal(BaseDeDonnees(), u"UPDATE TICKET SET ELEVE_ID = " % QString::number(nouvelEleveId) %
                                      u" where ELEVE_ID=" % QString::number(ancienEleveId) %
                                      u" AND TICKET_ID=" % QString::number(ticketId))
      .Executer();
  for (const int id : {ancienEleveId, nouvelEleveId})
    if (const TEleve* eleve = TrouverParId(id)) eleve->ClearTickets();
}
