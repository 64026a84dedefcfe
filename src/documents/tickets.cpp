#include "documents/tickets.h"

#include "core/accord.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "documents/sections.h"
#include "forms/grille.h"
#include "meals/commandes.h"
#include "pupils/eleves.h"
#include "workflows/ventes_tickets.h"

using namespace Qt::StringLiterals;

namespace {

TResultat Message(const QString& texte) {
  TResultat resultat;
  resultat.Messages += texte;
  return resultat;
}

TResultat SansSelection() { return Message(u"Veuillez sélectionner des élèves dans la liste."_s); }

/// What the order of a day was; of several the last one. "" without an order.
QString TypeRepas(const TCommande* commande) {
  if (commande == nullptr) return {};
  if (commande->FlgRepas) return u"Repas complet"_s;
  if (commande->FlgDago) return u"Dagobert"_s;
  return commande->FlgSandwich ? u"Sandwich"_s : QString();
}

QString TitreAchat(TDateTime date, int nombre) {
  if (date == 0.0) return u"Tickets manquants"_s;
  return FormatDate(date) % u" : Achat de " % Compter(nombre, u"ticket"_s, u"tickets"_s);
}

void AjouterTicket(TNoeudRapport& achat, const TEleve& eleve, const TTicket& ticket) {
  const bool utilise = ticket.DateUtilisation > 0.0;
  const QString jour = utilise ? FormatJourLong(ticket.DateUtilisation) : u"Non utilisé"_s;
  TValeurs& valeurs = achat.Ajouter(jour).Valeurs;
  valeurs.Ecrire(u"DateUtilisationTicket", jour);
  valeurs.Ecrire(u"TypeRepas", utilise ? TypeRepas(eleve.GetCommande(ticket.DateUtilisation)) : QString());
}

void EcrireAdresse(const TEleve& eleve, TValeurs& valeurs) {
  const std::pair<const char16_t*, QString> lignes[] = {
      {u"NomResponsable", eleve.NomResponsable},
      {u"PrenomResponsable", eleve.PrenomResponsable},
      {u"AdresseResponsable", eleve.Adresse},
      {u"NumeroResponsable", eleve.Numero},
      {u"CPResponsable", IntOuVide(eleve.CodePostal)},
      {u"LocaliteResponsable", eleve.Localite},
      {u"PaysResponsable", QString()},  // no address of the register has one
  };
  for (const auto& [nom, valeur] : lignes) valeurs.Ecrire(nom, valeur);
}

TNoeudRapport NoeudTickets(const TEleve& eleve, TDateTime jour) {
  TNoeudRapport noeud = NoeudEleve(eleve);
  const TTickets& tickets = eleve.GetTickets();
  noeud.Valeurs.Ecrire(u"DateJour", FormatDateLongue(jour));
  noeud.Valeurs.Ecrire(u"SoldeTicket", QString::number(tickets.Solde()));
  EcrireAdresse(eleve, noeud.Valeurs);
  for (const TDateTime date : tickets.DatesAchat()) {
    const auto achetes = tickets.AchetesLe(date);
    const QString titre = TitreAchat(date, static_cast<int>(achetes.size()));
    TNoeudRapport& achat = noeud.Ajouter(titre);
    achat.Valeurs.Ecrire(u"DateAchatTicket", titre);
    for (const TTicket* ticket : achetes) AjouterTicket(achat, eleve, *ticket);
  }
  return noeud;
}

/// All orders that the tickets of these pupils paid, in one reading.
void LireCommandes(const TContexteDocument& contexte, const TElevesChoisis& eleves) {
  TPeriode periode{};
  for (const TEleve* eleve : eleves)
    for (const TTicket* ticket : eleve->GetTickets().Liste()) {
      const TDateTime jour = ticket->DateUtilisation;
      if (jour <= 0.0) continue;
      periode.Premier = periode.Premier == 0.0 ? jour : qMin(periode.Premier, jour);
      periode.Dernier = qMax(periode.Dernier, jour);
    }
  if (periode.Premier > 0.0) contexte.Eleves.Commandes().Lire(periode);
}

/// As the paper shows a figure of the sales: without the spaces of the screen.
QString TexteVente(const TValeurVue& valeur) {
  const auto* montant = std::get_if<Currency>(&valeur);
  return montant != nullptr ? QString(FormatDeuxDecimales(*montant) % u" €")
                            : TexteDe(TGenre::Entier, valeur);
}

TGrille GrilleVentes(const std::vector<TVentesJour>& jours) {
  std::vector<TColonneGrille> colonnes;
  for (const QString& titre : ColonnesVentes()) colonnes.push_back({titre, colonnes.empty() ? 110 : 90});
  TGrille grille(colonnes);
  for (const TVentesJour& jour : jours) {
    TCellules textes;
    for (const TValeurVue& valeur : LigneVentesJour(jour)) textes.emplace_back(TexteVente(valeur));
    grille.Ajouter(std::move(textes));
  }
  return grille;
}

TRapport RapportVentes(const TContexteDocument& contexte, const QString& titre, const TPeriode& periode,
                       const std::vector<TVentesJour>& jours) {
  TRapport rapport(titre, u"RepDynamicFromListviewPortrait"_s);
  QString sousTitre = u"Relevé du " % FormatDateLongue(periode.Premier);
  if (periode.Dernier > periode.Premier) sousTitre += u" au " % FormatDateLongue(periode.Dernier);
  rapport.AjouterVariable(u"NomRapportSSTitre", sousTitre);
  rapport.AjouterVariable(u"NomEcole", NomEcoleEtSite(contexte.Parametres));
  rapport.AjouterVariable(u"AnneeScolaire", AnneeCompacte(contexte.Eleves.AnneeScolaire));
  rapport.ChargerColonnesListe(GrilleVentes(jours));
  return rapport;
}

}  // namespace

TResultat TicketsParClasse(const TContexteDocument& contexte, const TElevesChoisis& choisis, TDateTime jour) {
  if (choisis.empty()) return SansSelection();
  const TElevesChoisis eleves = SansRadies(choisis);
  contexte.Eleves.LireTickets(eleves);
  TRapport rapport(u"Récapitulatif des tickets disponibles par classe"_s, u"TicketsParClasse"_s);
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  rapport.AjouterVariable(u"DateJour", FormatDateLongue(jour));
  TArbreRapport arbre;
  const TClasse* classe = nullptr;
  for (const TEleve* eleve : eleves) {
    if (arbre.empty() || eleve->Classe != classe)
      arbre.emplace_back(eleve->LibelleClasse()).Valeurs.Ecrire(u"Classe", eleve->LibelleClasse());
    classe = eleve->Classe;
    TValeurs& valeurs = arbre.back().Ajouter(eleve->NomComplet()).Valeurs;
    valeurs.Ecrire(u"NomEleve", eleve->NomComplet());
    valeurs.Ecrire(u"TotalTicket", QString::number(eleve->GetTickets().Solde()));
  }
  return Presenter(std::move(rapport), std::move(arbre), u"Aucun relevé à imprimer."_s);
}

TResultat TicketsParents(const TContexteDocument& contexte, const TElevesChoisis& choisis, TDateTime jour) {
  if (choisis.empty()) return SansSelection();
  const TElevesChoisis eleves = SansRadies(choisis);
  contexte.Eleves.LireTickets(eleves);
  LireCommandes(contexte, eleves);
  TRapport rapport(u"Détails des tickets repas"_s, u"TicketsParents"_s);
  AjouterEnteteEcole(rapport, contexte.Parametres);
  TArbreRapport arbre;
  for (const TEleve* eleve : eleves) arbre.push_back(NoeudTickets(*eleve, jour));
  SupprimerNoeudsVides(arbre);
  return Presenter(std::move(rapport), std::move(arbre), u"Aucun relevé à imprimer."_s);
}

TResultat ListeSousTrois(const TContexteDocument& contexte, const TGrille& liste, TDateTime jour) {
  TRapport rapport(u"Élèves avec moins de 3 tickets"_s, u"RepDynamicFromListviewPortrait"_s);
  rapport.AjouterVariable(u"NomRapportSSTitre", u"Situation au " % FormatDateLongue(jour));
  rapport.AjouterVariable(u"NomEcole", contexte.Parametres.GetParametre(TParam::NomEcole));
  rapport.ChargerColonnesListe(liste);
  TResultat resultat;
  resultat.Rapports.push_back(std::move(rapport));
  return resultat;
}

TResultat TicketsVendus(const TContexteDocument& contexte, const TPeriode& periode) {
  static constexpr struct {
    const char16_t* Titre;
    TPaiementTicket Type;
  } kListes[] = {{u"Tickets payés via le compte bancaire", TPaiementTicket::Virement},
                 {u"Tickets payés au comptant", TPaiementTicket::Comptant}};
  TResultat resultat;
  for (const auto& [titre, type] : kListes) {
    const auto jours = VentesDeTickets(contexte.Eleves, periode, type);
    if (!jours.empty())
      resultat.Rapports.push_back(RapportVentes(contexte, QString::fromUtf16(titre), periode, jours));
  }
  if (resultat.Rapports.empty()) return Message(u"Il n'y a aucune information à imprimer"_s);
  return resultat;
}

TResultat TicketsParClasse(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return TicketsParClasse(contexte, demande.Eleves, demande.Jour);
}

TResultat TicketsParents(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return TicketsParents(contexte, demande.Eleves, demande.Jour);
}

TResultat TicketsVendus(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  return TicketsVendus(contexte, TPeriode{demande.Periode.DateDebut, demande.Periode.DateFin});
}
