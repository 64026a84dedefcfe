#include "workflows/vente_tickets.h"

#include "core/conversions.h"
#include "core/dialogues.h"
#include "core/exceptions.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTicketsMaximum = 999;
constexpr int kTicketsBas = 2;

}  // namespace

TCompteursTickets CompterTickets(const TClasse& classe) {
  classe.Eleves.LireTickets(classe.ListeEleves);
  TCompteursTickets compteurs;
  for (const TEleve* eleve : classe.ListeEleves) {
    const int solde = eleve->GetTickets().Solde();
    compteurs.Negatif += solde < 0;
    compteurs.Sans += solde == 0;
    compteurs.Bas += solde > 0 && solde <= kTicketsBas;
  }
  return compteurs;
}

int LireNombreTickets(const QString& texte) {
  const int nombre = StrToInt(texte);
  if (nombre < 1 || nombre > kTicketsMaximum)
    throw EConvertError(u"Le nombre de tickets va de 1 à %1."_s.arg(kTicketsMaximum));
  return nombre;
}

QString AnnonceVente(const TEleve& eleve, int nombre) {
  const int regles = qMin(nombre, eleve.GetTickets().NombreManquants());
  if (regles <= 0) return {};
  return regles == 1 ? u"1 ticket manquant sera réglé."_s
                     : u"%1 tickets manquants seront réglés."_s.arg(regles);
}

bool SupprimerTicket(IDialogues& dialogues, TEleve& eleve, TTicket& ticket) {
  if (!dialogues.ConfirmerGrave(u"Confirmez-vous la suppression définitive de ce ticket ?"_s)) return false;
  eleve.SupprimerTicket(ticket);
  return true;
}
