#include "screens/meals/frm_comptabilite.h"

#include "documents/tickets.h"
#include "screens/documents/imprimeur.h"
#include "workflows/ventes_tickets.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<TColonneGrille> Colonnes() {
  constexpr int largeurs[] = {180, 148, 108, 160, 132, 108, 140, 112};
  std::vector<TColonneGrille> colonnes;
  for (const QString& titre : ColonnesVentes()) colonnes.push_back({titre, largeurs[colonnes.size()]});
  return colonnes;
}

TCellules Cellules(const QStringList& textes) { return {textes.begin(), textes.end()}; }

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
    grille.AjouterTete(Cellules(LigneVentesJour(jour)));
    for (const TVenteEleve& vente : jour.Eleves) grille.Ajouter(Cellules(LigneVenteEleve(vente)));
  }
}

bool TFrmComptabilite::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return TicketsVendus(contexte, {dtDebut, dtFin});
  });
  return true;
}
