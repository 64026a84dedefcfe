#include "meals/tickets.h"

#include <algorithm>
#include <functional>
#include <span>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TTicket> kColonnes[] = {
    Entier<&TTicket::EleveId>("ELEVE_ID"),
    Date<&TTicket::DateAchat>("DATE_ACHAT"),
    Date<&TTicket::DateUtilisation>("DATE_UTILISATION"),
    Montant<&TTicket::Valeur>("VALEUR"),
    Entier<&TTicket::TypePaiement>("TYPE_PAIEMENT"),
};

/// So many keys fit one statement; the database takes 1,500.
constexpr std::size_t kClesParLecture = 1000;

QString Enumerer(std::span<const int> cles) {
  QStringList textes;
  for (const int cle : cles) textes += QString::number(cle);
  return textes.join(u',');
}

/// Reads a statement on those keys ("%1"), in as many runs as it takes.
void LireParCles(TDataModule1& base, const std::vector<int>& eleves, QStringView sql,
                 const std::function<void(TCurseur&)>& lire) {
  try {
    for (std::size_t i = 0; i < eleves.size(); i += kClesParLecture) {
      const std::span cles(eleves.data() + i, std::min(kClesParLecture, eleves.size() - i));
      TCurseur ligne(base, sql.toString().arg(Enumerer(cles)));
      while (ligne.Suivant()) lire(ligne);
    }
  } catch (const EDistributor&) {
    throw;
  } catch (const Exception& e) {
    throw EDistributor(e.Message);
  }
}

/// The order of the list.
bool Avant(const TTicket* a, const TTicket* b) {
  if ((a->DateAchat == 0.0) != (b->DateAchat == 0.0)) return b->DateAchat == 0.0;
  if (a->DateAchat != b->DateAchat) return a->DateAchat > b->DateAchat;
  return a->Id < b->Id;
}

bool Memes(const TTicket* a, const TTicket* b) {
  return a->Id == b->Id && a->DateAchat == b->DateAchat && a->DateUtilisation == b->DateUtilisation &&
         a->Valeur == b->Valeur && a->TypePaiement == b->TypePaiement;
}

}  // namespace

bool MemesTickets(const TTickets& a, const TTickets& b) {
  return std::ranges::equal(a.Liste(), b.Liste(), Memes);
}

TTickets::TTickets(TDataModule1& base, int eleve) : TCollection(base), eleve_(eleve) {
  Charger();
  Ranger();
}

TTickets::TTickets(TDataModule1& base, int eleve, TSansLire) : TCollection(base), eleve_(eleve) {
  DefineQuery();
}

std::unordered_map<int, std::unique_ptr<TTickets>> TTickets::LireEnsemble(TDataModule1& base,
                                                                          const std::vector<int>& eleves) {
  std::unordered_map<int, std::unique_ptr<TTickets>> ensemble;
  for (const int eleve : eleves)
    ensemble.try_emplace(eleve, std::make_unique<TTickets>(base, eleve, TSansLire{}));
  LireParCles(base, eleves, u"SELECT * FROM TICKET WHERE ELEVE_ID IN (%1)",
              [&](TCurseur& ligne) { ensemble.at(ligne.Entier("ELEVE_ID"))->LoadItems(ligne); });
  for (auto& [eleve, tickets] : ensemble) tickets->Ranger();
  return ensemble;
}

// The first day of the calendar is no date in memory. Grouped by a sum, so that the index of the pupils finds
// them and is not walked from end to end.
std::unordered_map<int, int> TTickets::LireSoldes(TDataModule1& base, const std::vector<int>& eleves) {
  std::unordered_map<int, int> soldes;
  for (const int eleve : eleves) soldes.emplace(eleve, 0);
  LireParCles(base, eleves,
              u"SELECT ELEVE_ID + 0 ELEVE, SUM(IIF(DATE_ACHAT > DATE '1899-12-30', 1, 0) - "
              "IIF(DATE_UTILISATION > DATE '1899-12-30', 1, 0)) SOLDE FROM TICKET WHERE ELEVE_ID IN (%1) AND "
              "(DATE_ACHAT IS NULL OR DATE_UTILISATION IS NULL OR DATE_ACHAT <= DATE '1899-12-30' OR "
              "DATE_UTILISATION <= DATE '1899-12-30') GROUP BY 1",
              [&](TCurseur& ligne) { soldes[ligne.Entier("ELEVE")] = ligne.Entier("SOLDE"); });
  return soldes;
}

void TTickets::DefineQuery() {
  SelectSql = u"SELECT * FROM TICKET WHERE ELEVE_ID = ? ORDER BY DATE_ACHAT DESC"_s;
  Cles = {eleve_};
  TableName = u"TICKET"_s;
  KeyField = "TICKET_ID";
  CounterName = u"TICKET"_s;
  Colonnes = kColonnes;
}

// Ranks only grow: what is above the last one has just come in.
void TTickets::Indexer(TTicket& ticket) {
  if (ticket.Rang() <= dernierRang_) return;
  dernierRang_ = ticket.Rang();
  liste_.push_back(&ticket);
}

void TTickets::Ranger() { std::ranges::sort(liste_, Avant); }

bool TTickets::Save() {
  const bool enregistre = TCollection::Save();
  Ranger();
  return enregistre;
}

int TTickets::Solde() const {
  int solde = 0;
  for (const TTicket* ticket : liste_) solde += (ticket->DateAchat > 0.0) - (ticket->DateUtilisation > 0.0);
  return solde;
}

std::vector<TDateTime> TTickets::DatesAchat() const {
  std::vector<TDateTime> dates;
  for (const TTicket* ticket : liste_)
    if (std::ranges::find(dates, ticket->DateAchat) == dates.end()) dates.push_back(ticket->DateAchat);
  return dates;
}

std::vector<TTicket*> TTickets::AchetesLe(TDateTime date) const {
  std::vector<TTicket*> achetes;
  for (TTicket* ticket : liste_)
    if (ticket->DateAchat == date) achetes.push_back(ticket);
  return achetes;
}

TTicket* TTickets::PremierManquant() const {
  const auto i = std::ranges::find(liste_, 0.0, &TTicket::DateAchat);
  return i == liste_.end() ? nullptr : *i;
}

int TTickets::NombreManquants() const {
  return static_cast<int>(std::ranges::count(liste_, 0.0, &TTicket::DateAchat));
}

std::map<TDateTime, TVentes> TTickets::Ventes(const TPeriode& periode, TPaiementTicket type) const {
  std::map<TDateTime, TVentes> jours;
  for (const TTicket* ticket : liste_) {
    const TDateTime achat = ticket->DateAchat;
    if (ticket->TypePaiement != type || achat < periode.Premier || achat > periode.Dernier) continue;
    TVentes& ventes = jours[achat];
    ++ventes.Nombre;
    ventes.Montant += ticket->Valeur;
  }
  return jours;
}

TTicket* TTickets::UtiliseLe(TDateTime date) const {
  const auto i = std::ranges::find(liste_, date, &TTicket::DateUtilisation);
  return i == liste_.end() ? nullptr : *i;
}

void TTickets::Consommer(TDateTime date, Currency valeur) {
  if (UtiliseLe(date) != nullptr) return;
  TTicket* libre = UtiliseLe(0.0);
  if (libre == nullptr) {
    AjouterManquant(valeur, date);
    return;
  }
  libre->DateUtilisation = date;
  Add(*libre);
}

void TTickets::Liberer(TDateTime date) {
  TTicket* ticket = UtiliseLe(date);
  if (ticket == nullptr) return;
  if (ticket->DateAchat == 0.0) {
    Remove(*ticket);
    return;
  }
  ticket->DateUtilisation = 0.0;
  Add(*ticket);
}

void TTickets::Acheter(int nombre, TPaiementTicket type, Currency valeur, TDateTime date) {
  for (int i = 0; i < nombre; ++i) {
    TTicket* ticket = PremierManquant();
    if (ticket == nullptr) {
      ticket = &Add(std::make_unique<TTicket>());
      ticket->EleveId = eleve_;
    }
    ticket->DateAchat = date;
    ticket->Valeur = valeur;
    ticket->TypePaiement = type;
    Add(*ticket);
  }
}

void TTickets::AjouterManquant(Currency valeur, TDateTime date) {
  auto manquant = std::make_unique<TTicket>();
  manquant->EleveId = eleve_;
  manquant->DateUtilisation = date;
  manquant->Valeur = valeur;
  Add(std::move(manquant));
}
