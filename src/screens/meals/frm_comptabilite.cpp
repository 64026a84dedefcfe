#include "screens/meals/frm_comptabilite.h"

#include "documents/tickets.h"
#include "screens/documents/imprimeur.h"
#include "workflows/ventes_tickets.h"

using namespace Qt::StringLiterals;

namespace {

/// Names first, then numbers and amounts, as they are printed.
std::vector<TColonneGrille> Colonnes() {
  using enum TGenre;
  constexpr std::pair<int, TGenre> colonnes[] = {{128, Texte},   {160, Entier}, {124, Montant},
                                                 {180, Montant}, {148, Entier}, {124, Montant},
                                                 {164, Montant}, {128, Montant}};
  std::vector<TColonneGrille> rendues;
  for (const QString& titre : ColonnesVentes()) {
    const auto& [largeur, genre] = colonnes[rendues.size()];
    rendues.push_back({titre, largeur, genre});
  }
  return rendues;
}

}  // namespace

TFrmComptabilite::TFrmComptabilite(TContexteEcran& contexte)
    : Versements(Colonnes()), Comptant(Colonnes()), contexte_(contexte) {}

void TFrmComptabilite::FormShow() {
  const TDateTime jour = contexte_.Controleur.Horloge().Aujourdhui();
  dtChange(jour, jour);
}

void TFrmComptabilite::dtChange(TDateTime debut, TDateTime fin) {
  dtDebut = debut;
  dtFin = fin;
  Remplir(Versements, TPaiementTicket::Virement);
  Remplir(Comptant, TPaiementTicket::Comptant);
  Annoncer();
}

void TFrmComptabilite::Remplir(TGrille& grille, TPaiementTicket type) const {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const TVentesJour& jour : VentesDeTickets(*Globals.Eleves, {dtDebut, dtFin}, type)) {
    grille.AjouterTete(LigneVentesJour(jour));
    for (const TVenteEleve& vente : jour.Eleves) grille.Ajouter(LigneVenteEleve(vente));
  }
}

bool TFrmComptabilite::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return TicketsVendus(contexte, {dtDebut, dtFin});
  });
  return true;
}
