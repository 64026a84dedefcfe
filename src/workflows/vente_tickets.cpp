#include "workflows/vente_tickets.h"

#include <algorithm>

#include "core/accord.h"
#include "core/conversions.h"
#include "core/dialogues.h"
#include "core/exceptions.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTicketsMaximum = 999;
constexpr int kTicketsBas = 2;

}  // namespace

TNiveauTickets NiveauTickets(int solde) {
  if (solde < 0) return TNiveauTickets::Negatif;
  if (solde == 0) return TNiveauTickets::Sans;
  return solde <= kTicketsBas ? TNiveauTickets::Bas : TNiveauTickets::Suffisant;
}

TCompteursTickets CompterTickets(const TClasse& classe) {
  classe.Eleves.LireSoldesTickets(classe.ListeEleves);
  TCompteursTickets compteurs;
  for (const TEleve* eleve : classe.ListeEleves) {
    const TNiveauTickets niveau = NiveauTickets(eleve->SoldeTickets());
    compteurs.Negatif += niveau == TNiveauTickets::Negatif;
    compteurs.Sans += niveau == TNiveauTickets::Sans;
    compteurs.Bas += niveau == TNiveauTickets::Bas;
  }
  return compteurs;
}

std::vector<TEleve*> ElevesSousTrois(const TEleves& eleves) {
  eleves.LireSoldesTickets(eleves.Tous());
  std::vector<TEleve*> trouves;
  for (const auto& classe : eleves.Classes())
    for (TEleve* eleve : classe->ListeEleves) {
      const TNiveauTickets niveau = NiveauTickets(eleve->SoldeTickets());
      if (niveau == TNiveauTickets::Negatif || (niveau != TNiveauTickets::Suffisant && !eleve->FlgRadie))
        trouves.push_back(eleve);
    }
  std::ranges::stable_sort(trouves, {}, &TEleve::SoldeTickets);
  return trouves;
}

bool EstNombreTickets(int nombre) { return nombre >= 1 && nombre <= kTicketsMaximum; }

QString RefusNombreTickets() { return u"Le nombre de tickets va de 1 à %1."_s.arg(kTicketsMaximum); }

int LireNombreTickets(const QString& texte) {
  const int nombre = StrToInt(texte);
  if (!EstNombreTickets(nombre)) throw EConvertError(RefusNombreTickets());
  return nombre;
}

QString RefusPrixTicket(Currency prix) {
  return prix < Currency() ? u"Le prix d'un ticket ne peut pas être négatif."_s : QString();
}

QString AnnonceVente(const TEleve& eleve, int nombre) {
  const int regles = qMin(nombre, eleve.GetTickets().NombreManquants());
  if (regles <= 0) return {};
  return Compter(regles, u"ticket manquant sera réglé."_s, u"tickets manquants seront réglés."_s);
}

bool SupprimerTicket(IDialogues& dialogues, TEleve& eleve, TTicket& ticket) {
  if (!dialogues.ConfirmerGrave(u"Confirmez-vous la suppression définitive de ce ticket ?"_s)) return false;
  eleve.SupprimerTicket(ticket);
  return true;
}
