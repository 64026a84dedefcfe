#include "screens/meals/frm_comptabilite.h"

#include "documents/periode.h"
#include "documents/tickets.h"
#include "screens/commun/refus.h"
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

TTableChamps<TPeriode> ChampsPeriode() {
  const auto date = [](const QString& nom, const QString& libelle) {
    return TChamp{.Nom = nom, .Libelle = libelle, .Genre = TGenreChamp::Date, .Obligatoire = true};
  };
  return {{date(u"dtDebut"_s, u"Début de la période"_s), Membre(&TPeriode::Premier)},
          {date(u"dtFin"_s, u"Fin de la période"_s), Membre(&TPeriode::Dernier)}};
}

}  // namespace

TFrmComptabilite::TFrmComptabilite(TContexteEcran& contexte)
    : Versements(Colonnes()),
      Comptant(Colonnes()),
      contexte_(contexte),
      champs_(ChampsPeriode(), TChamps::Aussitot) {}

void TFrmComptabilite::FormShow() {
  lien_ = AnnoncerRefus(champs_, contexte_.Principal);
  champs_.SurEnregistrer = [this](const TChamp&) { Actualiser(); };
  const TDateTime jour = contexte_.Controleur.Horloge().Aujourdhui();
  dtChange(jour, jour);
}

void TFrmComptabilite::dtChange(TDateTime debut, TDateTime fin) {
  periode_ = {debut, fin};
  champs_.Montrer(&periode_);
  Actualiser();
}

void TFrmComptabilite::Actualiser() {
  Remplir(Versements, TPaiementTicket::Virement);
  Remplir(Comptant, TPaiementTicket::Comptant);
  Annoncer();
}

void TFrmComptabilite::Remplir(TGrille& grille, TPaiementTicket type) const {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const TVentesJour& jour : VentesDeTickets(*Globals.Eleves, periode_, type)) {
    grille.AjouterTete(LigneVentesJour(jour));
    for (const TVenteEleve& vente : jour.Eleves) grille.Ajouter(LigneVenteEleve(vente));
  }
}

bool TFrmComptabilite::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  if (!LaisserChamp()) return true;
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return TicketsVendus(contexte, periode_);
  });
  return true;
}

QString TFrmComptabilite::Vide() const {
  const QString faute = FautePeriode(periode_);
  return faute.isEmpty() ? u"Changez les dates pour voir d'autres ventes."_s : faute;
}
