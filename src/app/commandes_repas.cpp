// Meals: tickets, orders, kitchen, meal accounts, and the tablet of the canteen.
#include "app/commandes.h"
#include "app/csv.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/texte_separe.h"
#include "meals/commandes.h"
#include "meals/generation_repas.h"
#include "meals/repas_paiements.h"
#include "workflows/jour_cuisine.h"
#include "workflows/prix_repas.h"
#include "workflows/reservation.h"
#include "workflows/vente_tickets.h"
#include "workflows/ventes_tickets.h"

using namespace Qt::StringLiterals;

namespace {

/// The day at work: of --jour, else today.
TDateTime Jour(const TSession& session) { return session.Controleur.Horloge().Aujourdhui(); }

const TGenerationRepas& GenerationDe(const TSession& session) {
  return GenerationRepas(session.A(u"nouvelle"_s));
}

/// Every pupil of the year; their tickets are read in one statement.
std::vector<TEleve*> ElevesAvecTickets() {
  std::vector<TEleve*> eleves = Globals.Eleves->Tous();
  Globals.Eleves->LireTickets(eleves);
  return eleves;
}

int Tickets(TSession& session) {
  session.Ouvrir();
  TCsv csv(u"ticket_id;eleve_id;date_achat;date_utilisation;valeur;type_paiement"_s.split(u';'));
  for (const TEleve* eleve : ElevesAvecTickets())
    for (const TTicket* t : eleve->GetTickets().Liste())
      csv.Ligne({Nombre(t->Id), Nombre(t->EleveId), DateIso(t->DateAchat), DateIso(t->DateUtilisation),
                 FormatQuatreDecimales(t->Valeur), Nombre(static_cast<int>(t->TypePaiement))});
  return 0;
}

int TicketsSoldes(TSession& session) {
  session.Ouvrir();
  TCsv csv({u"eleve_id"_s, u"solde"_s});
  for (const TEleve* eleve : ElevesAvecTickets())
    csv.Ligne({Nombre(eleve->Id), Nombre(eleve->GetTickets().Solde())});
  return 0;
}

int TicketsClasses(TSession& session) {
  session.Ouvrir();
  ElevesAvecTickets();
  TCsv csv(u"classe;negatif;sans;bas"_s.split(u';'));
  for (const auto& classe : Globals.Eleves->Classes()) {
    const TCompteursTickets compteurs = CompterTickets(*classe);
    csv.Ligne({classe->Libelle(), Nombre(compteurs.Negatif), Nombre(compteurs.Sans), Nombre(compteurs.Bas)});
  }
  return 0;
}

QStringList Chiffres(bool montres, TCategorie section, const TVentes& ventes) {
  if (!montres) return QStringList(3, QString());
  return {Nombre(ventes.Nombre), TextePrixSection(section), FormatQuatreDecimales(ventes.Montant)};
}

void EcrireVentes(TCsv& csv, const TVentesJour& jour, const QString& type) {
  const QStringList debut{type, DateIso(jour.Jour)};
  const bool chiffres = jour.AvecChiffres();
  csv.Ligne(debut + QStringList(QString()) + Chiffres(chiffres, TCategorie::Maternelle, jour.Maternelle) +
            Chiffres(chiffres, TCategorie::Primaire, jour.Primaire) +
            QStringList(chiffres ? FormatQuatreDecimales(jour.Total()) : QString()));
  for (const TVenteEleve& vente : jour.Eleves) {
    QStringList ligne = debut + QStringList(Nombre(vente.Eleve->Id));
    for (const TCategorie section : {TCategorie::Maternelle, TCategorie::Primaire})
      ligne += Chiffres(vente.Section == section, section, vente.Ventes);
    csv.Ligne(ligne + QStringList(QString()));
  }
}

int TicketsVentes(TSession& session) {
  const TPeriode periode = session.LirePeriode();
  session.Ouvrir();
  TCsv csv(
      u"type;date;eleve_id;nombre_maternelle;prix_maternelle;montant_maternelle;nombre_primaire;"
      "prix_primaire;montant_primaire;total"_s.split(u';'));
  for (const TPaiementTicket type : {TPaiementTicket::Virement, TPaiementTicket::Comptant})
    for (const TVentesJour& jour : VentesDeTickets(*Globals.Eleves, periode, type))
      EcrireVentes(csv, jour, Nombre(static_cast<int>(type)));
  return 0;
}

/// --prix, with a comma or a dot, else the price of the pupil's section.
Currency Prix(const TSession& session, const TEleve& eleve) {
  const Currency prix = session.A(u"prix"_s) ? StrToCurr(session.Option(u"prix"_s).replace(u'.', u','))
                                             : PrixSection(eleve.Categorie());
  if (const QString refus = RefusPrixTicket(prix); !refus.isEmpty()) throw Exception(refus);
  return prix;
}

int TicketAcheter(TSession& session) {
  const int paiement = StrToInt(session.Option(u"paiement"_s));
  if (paiement < 0 || paiement > 2) throw Exception(u"Le paiement est 0, 1 (virement) ou 2 (comptant)."_s);
  const int nombre = LireNombreTickets(session.Arguments[1]);
  session.Ouvrir();
  TEleve& eleve = session.Eleve(session.Arguments[0]);
  eleve.AcheterTickets(nombre, static_cast<TPaiementTicket>(paiement), Prix(session, eleve), Jour(session));
  return 0;
}

int TicketManquant(TSession& session) {
  session.Ouvrir();
  TEleve& eleve = session.Eleve(session.Arguments[0]);
  eleve.AjouterCredit(Prix(session, eleve), Jour(session));
  return 0;
}

struct TTicketTrouve {
  TEleve& Eleve;
  TTicket& Ticket;
};

/// Raises Exception when no pupil of the year has it.
TTicketTrouve ChercherTicket(const QString& numero) {
  const int id = StrToInt(numero);
  for (TEleve* eleve : ElevesAvecTickets())
    for (TTicket* ticket : eleve->GetTickets().Liste())
      if (ticket->Id == id) return {*eleve, *ticket};
  throw Exception(u"Aucun élève de cette année-là n'a de ticket n° %1."_s.arg(numero));
}

int TicketSupprimer(TSession& session) {
  session.Ouvrir();
  const auto [eleve, ticket] = ChercherTicket(session.Arguments[0]);
  return SupprimerTicket(session.Dialogues, eleve, ticket) ? 0 : 1;
}

int TicketTransferer(TSession& session) {
  session.Ouvrir();
  const auto [eleve, ticket] = ChercherTicket(session.Arguments[0]);
  const TEleve& destination = session.Eleve(session.Arguments[1]);
  Globals.Eleves->DeplacerTicket(eleve.Id, destination.Id, ticket.Id);
  return 0;
}

QStringList Drapeaux(const TCommande* commande) {
  QStringList drapeaux;
  for (const TColonneCommande& colonne : ColonnesCommande())
    drapeaux += commande != nullptr && commande->*colonne.Flag ? u"1"_s : u"0"_s;
  return drapeaux;
}

struct TClic {
  TDateTime Jour;
  TEleve* Eleve;
  int Colonne;
};

/// All clicks of a file; a line that names what is not there raises Exception before any is made.
std::vector<TClic> LireClics(const TSession& session, const QString& chemin) {
  const TTexteSepare fichier = TTexteSepare::Lire(chemin);
  std::vector<TClic> clics;
  for (int i = 0; i < fichier.NombreLignes(); ++i) {
    try {
      clics.push_back({StrToDate(fichier.Cellule(i, 0)), &session.Eleve(fichier.Cellule(i, 1)),
                       StrToInt(fichier.Cellule(i, 2))});
    } catch (const Exception& e) {
      throw Exception(u"Ligne %1 : %2\nRien n'a été enregistré."_s.arg(i + 1).arg(e.Message));
    }
  }
  return clics;
}

const char* TexteEffet(TEffetClic effet) {
  switch (effet) {
    case TEffetClic::Marque:
      return "marque";
    case TEffetClic::Efface:
      return "efface";
    case TEffetClic::Verrou:
      return "verrou";
    case TEffetClic::Insuffisant:
      return "insuffisant";
    default:
      return "ignore";
  }
}

int Reservation(TSession& session) {
  session.Ouvrir();
  const std::vector<TClic> clics = LireClics(session, session.Arguments[0]);
  TGrilleCommandes grille(session.Dialogues, GenerationDe(session));
  TCsv csv(u"rang;effet;repas;dago;sandwich;jambon;fromage;jambon_fromage;beurre;mayonnaise"_s.split(u';'));
  int rang = 0;
  for (const TClic& clic : clics) {
    const TEffetClic effet = grille.Cliquer(*clic.Eleve, clic.Jour, clic.Colonne);
    csv.Ligne(QStringList{Nombre(++rang), QString::fromLatin1(TexteEffet(effet))} +
              Drapeaux(clic.Eleve->GetCommande(clic.Jour)));
  }
  return 0;
}

/// Orders of the pupils of the year, by day, then in the order of the pupils.
std::vector<TCommande*> CommandesTriees(const TPeriode& periode) {
  std::unordered_map<int, int> rangs;
  for (const TEleve& eleve : *Globals.Eleves) rangs.emplace(eleve.Id, static_cast<int>(rangs.size()));
  std::vector<TCommande*> commandes = Globals.Eleves->Commandes().Periode(periode);
  std::erase_if(commandes, [&](const TCommande* c) { return !rangs.contains(c->EleveId); });
  std::ranges::stable_sort(
      commandes, {}, [&](const TCommande* c) { return std::pair(c->DateCommande, rangs.at(c->EleveId)); });
  return commandes;
}

int ListeCommandes(TSession& session) {
  const TPeriode periode = session.LirePeriode();
  session.Ouvrir();
  TCsv csv(
      u"commande_id;eleve_id;date;repas;dago;sandwich;jambon;fromage;jambon_fromage;beurre;mayonnaise;"
      "complet"_s.split(u';'));
  for (const TCommande* c : CommandesTriees(periode))
    csv.Ligne(QStringList{Nombre(c->Id), Nombre(c->EleveId), DateIso(c->DateCommande)} + Drapeaux(c) +
              QStringList(c->EstComplete() ? u"1"_s : u"0"_s));
  return 0;
}

int Compteurs(TSession& session) {
  session.Ouvrir();
  const TDateTime jour = Jour(session);
  TCsv csv(u"classe;repas;sandwichs;sans_repas"_s.split(u';'));
  for (const auto& classe : Globals.Eleves->Classes())
    csv.Ligne({classe->Libelle(), Nombre(classe->NombreRepas(jour)), Nombre(classe->NombreSandwichs(jour)),
               Nombre(classe->NombreSansCommande(jour))});
  return 0;
}

int Cuisine(TSession& session) {
  session.Ouvrir();
  const TJourCuisine jour = JourDeCuisine(*Globals.Eleves, Jour(session));
  TCsv csv(u"classe;libelle;nombre"_s.split(u';'));
  for (const TClasseDuJour& classe : jour.Classes)
    for (const TLigneCuisine& ligne : LignesDeClasse(classe, GenerationDe(session)))
      csv.Ligne({classe.Classe->Libelle(), QString::fromUtf16(ligne.Libelle),
                 ligne.AvecNombre ? Nombre(ligne.Nombre) : QString()});
  csv.Ligne({QString(), u"lblRepas"_s, Nombre(jour.Repas)});
  csv.Ligne({QString(), u"lblSandwiches"_s, Nombre(jour.Sandwichs)});
  csv.Ligne({QString(), u"lblDagobert"_s, Nombre(jour.Dagos)});
  return 0;
}

int Comptes(TSession& session) {
  session.Ouvrir();
  TCsv csv(u"eleve_id;solde;recu"_s.split(u';'));
  for (const TEleve& eleve : *Globals.Eleves)
    csv.Ligne({Nombre(eleve.Id), FormatQuatreDecimales(eleve.SoldeRepas()),
               FormatQuatreDecimales(eleve.RecuLe(Jour(session)))});
  return 0;
}

int Compte(TSession& session) {
  const QStringList champs = session.Arguments[1].split(u',');
  if (champs.size() != static_cast<qsizetype>(kNombreCoupures))
    throw Exception(u"Donnez %1 nombres, de 100 euros à 1 cent."_s.arg(kNombreCoupures));
  TComptage comptage{};
  for (std::size_t i = 0; i < kNombreCoupures; ++i)
    comptage[i] = LireNombreCoupures(champs[static_cast<qsizetype>(i)]);
  session.Ouvrir();
  session.Eleve(session.Arguments[0]).EncaisserRepas(Jour(session), comptage);
  return 0;
}

}  // namespace

std::span<const TCommandeLot> CommandesRepas() {
  static constexpr TCommandeLot commandes[] = {
      {"tickets", "", 0, 0, Tickets},
      {"tickets-soldes", "", 0, 0, TicketsSoldes},
      {"tickets-classes", "", 0, 0, TicketsClasses},
      {"tickets-ventes", "--du jj/mm/aaaa --au jj/mm/aaaa", 0, 0, TicketsVentes},
      {"ticket acheter", "ELEVE NOMBRE --paiement 0|1|2 [--prix P] [--jour jj/mm/aaaa]", 2, 2, TicketAcheter},
      {"ticket manquant", "ELEVE [--prix P] [--jour jj/mm/aaaa]", 1, 1, TicketManquant},
      {"ticket supprimer", "TICKET [--jour jj/mm/aaaa]", 1, 1, TicketSupprimer},
      {"ticket transferer", "TICKET ELEVE [--jour jj/mm/aaaa]", 2, 2, TicketTransferer},
      {"reservation", "FICHIER [--nouvelle]", 1, 1, Reservation},
      {"commandes", "--du jj/mm/aaaa --au jj/mm/aaaa", 0, 0, ListeCommandes},
      {"compteurs", "[--jour jj/mm/aaaa]", 0, 0, Compteurs},
      {"cuisine", "[--jour jj/mm/aaaa] [--nouvelle]", 0, 0, Cuisine},
      {"comptes", "[--jour jj/mm/aaaa]", 0, 0, Comptes},
      {"compte", "ELEVE N,N,...   (treize nombres, de 100 euros à 1 cent) [--jour jj/mm/aaaa]", 2, 2, Compte},
  };
  return commandes;
}
