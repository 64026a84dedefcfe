#include "screens/meals/frm_reservation.h"

#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "meals/commandes.h"
#include "pupils/eleves.h"
#include "screens/commun/nom_de_liste.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurNom = 240;
constexpr int kLargeurColonne = 84;
constexpr int kLargeurJour = 36;
constexpr int kJoursSemaine = 7;

std::vector<TColonneGrille> Colonnes(const TGenerationRepas& generation) {
  std::vector<TColonneGrille> colonnes{{u"Nom de l'élève"_s, kLargeurNom}};
  for (int c = 0; c < generation.NombreColonnes; ++c)
    colonnes.push_back(
        {QString::fromUtf16(generation.Colonnes[static_cast<std::size_t>(c)]), kLargeurColonne});
  return colonnes;
}

/// The order cannot be made as it is.
bool Manque(const TCommande* commande, const TGenerationRepas& generation) {
  return generation.AvecVerrou && commande != nullptr && !commande->EstComplete();
}

/// A day of the month: the first flag that makes a meal of it, and "!" when it cannot be made.
QString Abrege(const TCommande* commande, const TGenerationRepas& generation) {
  if (commande == nullptr) return {};
  const QString defaut = Manque(commande, generation) ? u"!"_s : QString();
  for (std::size_t c = 0; c < generation.Abreges.size(); ++c)
    if (commande->*ColonnesCommande()[c].Flag) return QString::fromUtf16(generation.Abreges[c]) % defaut;
  return defaut;
}

}  // namespace

TFrmReservation::TFrmReservation(TContexteEcran& contexte, const TGenerationRepas& generation)
    : TFrmClasseJour(contexte, generation, Colonnes(generation)),
      commandes_(contexte.Dialogues(), generation) {
  Grille.Etats = {{}, {u"incomplète"_s, u"data-warning"_s}};
}

void TFrmReservation::FormShow() {
  jour_.Definir(Aujourdhui());
  classe_ = 0;
  Relire();
}

void TFrmReservation::cmbClasseChange(int indice) {
  if (!commandes_.PeutQuitter()) return Annoncer();
  classe_ = indice;
  Remplir();
}

void TFrmReservation::ChangerJour(void (TJourEcran::*pas)()) {
  if (!commandes_.PeutQuitter()) return;
  (jour_.*pas)();
  Remplir();
}

void TFrmReservation::Actualiser() {
  if (commandes_.PeutQuitter()) Relire();
}

void TFrmReservation::Relire() {
  commandes_.Oublier();
  Globals.Eleves->LibererCommandes();
  if (generation_.AvecSolde) Globals.Eleves->LibererRepasPaiements();
  Remplir();
}

void TFrmReservation::Remplir() {
  commandes_.Oublier();
  {
    const TGrille::TLot lot(Grille);
    Grille.Vider();
    if (const TClasse* classe = Classe())
      for (TEleve* eleve : classe->ListeEleves) AjouterEleve(Grille, *eleve, Cellules(*eleve), Etat(*eleve));
  }
  Annoncer();
}

TCellules TFrmReservation::Cellules(const TEleve& eleve) const {
  TCellules cellules{eleve.NomComplet()};
  const TCommande* commande = eleve.GetCommande(jour_.Jour());
  for (int c = 0; c < generation_.NombreColonnes; ++c) {
    const auto rang = static_cast<std::size_t>(c);
    const bool marque = commande != nullptr && commande->*ColonnesCommande()[rang].Flag;
    cellules.push_back(marque ? TValeurVue(QString::fromUtf16(generation_.Colonnes[rang]))
                              : TValeurVue(QString()));
  }
  return cellules;
}

int TFrmReservation::Etat(const TEleve& eleve) const {
  return Manque(eleve.GetCommande(jour_.Jour()), generation_) ? 1 : 0;
}

void TFrmReservation::EcrireLigne(int ligne) {
  const TEleve& eleve = *Grille.Ligne(ligne).Objet.En<TEleve>();
  Grille.ChangerEtat(ligne, Etat(eleve));
  Grille.EcrireLigne(ligne, Cellules(eleve));
}

bool TFrmReservation::grdEleveRowChanging(int ligne) {
  if (ligne < 0 || ligne >= Grille.NombreLignes()) return true;
  if (!commandes_.Selectionner(Grille.Ligne(ligne).Objet.En<TEleve>(), jour_.Jour())) return false;
  Grille.ChoisirLigne(ligne);
  Annoncer();
  return true;
}

// What fails leaves memory to be read again: the row shows what is stored.
void TFrmReservation::grdEleveClickCell(int ligne, int colonne) {
  if (ligne < 0 || ligne >= Grille.NombreLignes()) return;
  TEleve* eleve = Grille.Ligne(ligne).Objet.En<TEleve>();
  if (eleve == nullptr) return;
  try {
    if (commandes_.Cliquer(*eleve, jour_.Jour(), colonne) == TEffetClic::Verrou) return;
  } catch (...) {
    Remplir();
    throw;
  }
  Grille.ChoisirLigne(ligne);
  EcrireLigne(ligne);
  Annoncer();
}

void TFrmReservation::Repeter(TDateTime source) {
  const TClasse* classe = Classe();
  if (classe == nullptr || !commandes_.PeutQuitter()) return;
  try {
    const TBilanReprise bilan = RepeterCommandes(commandes_, *classe, source, jour_.Jour());
    const bool toutes = bilan.Reprises > 0 && bilan.Insuffisants.isEmpty() && bilan.AutresPostes.isEmpty();
    contexte_.Principal.Etat(toutes ? TNiveauEtat::Succes : TNiveauEtat::Alerte,
                             u"Du " % FormatJour(source) % u" : " % bilan.Texte());
  } catch (...) {
    Remplir();
    throw;
  }
  Remplir();
}

void TFrmReservation::CommeLaVeille() { Repeter(JourPrecedent(jour_.Jour())); }

void TFrmReservation::CommeLaSemainePassee() { Repeter(jour_.Jour() - kJoursSemaine); }

void TFrmReservation::RemplirMois(TGrille& mois) const {
  const TJour jour = DecodeDate(jour_.Jour());
  const TDateTime premier = EncodeDate(jour.Annee, jour.Mois, 1);
  std::vector<TDateTime> jours;
  for (TDateTime j = premier; DecodeDate(j).Mois == jour.Mois; ++j)
    if (JourLundi1(j) <= 5) jours.push_back(j);
  std::vector<TColonneGrille> colonnes{{u"Nom de l'élève"_s, kLargeurNom}};
  for (const TDateTime j : jours)
    colonnes.push_back({QString::number(DecodeDate(j).Jour), kLargeurJour, TGenre::Texte, false, true});
  const TGrille::TLot lot(mois);
  mois.DefinirColonnes(std::move(colonnes));
  const TClasse* classe = Classe();
  if (classe == nullptr) return;
  Globals.Eleves->Commandes().Lire({jours.front(), jours.back()});
  for (TEleve* eleve : classe->ListeEleves) {
    TCellules cellules{eleve->NomComplet()};
    for (const TDateTime j : jours) cellules.push_back(Abrege(eleve->GetCommande(j), generation_));
    AjouterEleve(mois, *eleve, std::move(cellules));
  }
}

QStringList TFrmReservation::NomMois() const { return NomDeListeDu(NomClasse(), jour_.Jour()); }

QString TFrmReservation::LegendeMois() const {
  QStringList textes;
  for (std::size_t c = 0; c < generation_.Abreges.size(); ++c)
    textes +=
        QString::fromUtf16(generation_.Abreges[c]) % u" : " % QString::fromUtf16(generation_.Colonnes[c]);
  if (generation_.AvecVerrou) textes += u"! : commande incomplète"_s;
  return textes.join(u"  ·  ");
}

QString TFrmReservation::TexteSolde() const {
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return {};
  if (generation_.AvecSolde) return u"Solde disponible : " % FormatDeuxDecimales(eleve->SoldeRepas()) % u" €";
  return TexteSoldeTickets(eleve->SoldeTickets());
}

bool TFrmReservation::SoldeSuffit() const {
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return true;
  return generation_.AvecSolde ? eleve->SoldeRepas() > Currency() : eleve->SoldeTickets() > 0;
}

QString TFrmReservation::EnSuspens() const {
  return EstVerrouillee() ? u"la commande incomplète de " % NomEleve() : QString();
}

bool TFrmReservation::FormCloseQuery() {
  return !EstVerrouillee() ||
         contexte_.Dialogues().ConfirmerGrave(
             u"La commande de %1 est incomplète. Quitter tout de même cet écran ?"_s.arg(NomEleve()));
}
