#include "screens/meals/frm_reservation.h"

#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "documents/cuisine.h"
#include "meals/commandes.h"
#include "pupils/eleves.h"
#include "screens/documents/imprimeur.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLargeurNom = 240;
constexpr int kLargeurColonne = 84;
constexpr int kJoursSemaine = 7;

std::vector<TColonneGrille> Colonnes(const TGenerationRepas& generation) {
  std::vector<TColonneGrille> colonnes{{u"Nom de l'élève"_s, kLargeurNom}};
  for (int c = 0; c < generation.NombreColonnes; ++c)
    colonnes.push_back(
        {QString::fromUtf16(generation.Colonnes[static_cast<std::size_t>(c)]), kLargeurColonne});
  return colonnes;
}

/// One letter for a day of the month: the first flag that makes a meal of it.
QString Lettre(const TCommande* commande, const TGenerationRepas& generation) {
  if (commande == nullptr) return {};
  const auto colonnes = ColonnesCommande().first(3);
  for (std::size_t c = 0; c < colonnes.size(); ++c)
    if (commande->*colonnes[c].Flag) return QString(QString::fromUtf16(generation.Colonnes[c])[0]);
  return {};
}

}  // namespace

TFrmReservation::TFrmReservation(TContexteEcran& contexte, const TGenerationRepas& generation)
    : Grille(Colonnes(generation)),
      contexte_(contexte),
      generation_(generation),
      commandes_(contexte.Dialogues(), generation) {}

void TFrmReservation::FormShow() {
  jour_.Definir(contexte_.Controleur.Horloge().Aujourdhui());
  classe_ = 0;
  Actualiser();
}

bool TFrmReservation::DatesVisibles() const { return !Globals.ModeProfesseur; }

TClasse* TFrmReservation::Classe() const {
  return classe_ > 0 ? &Globals.Eleves->GetClasse(classe_ - 1) : nullptr;
}

TEleve* TFrmReservation::Courant() const {
  const int ligne = Grille.LigneCourante();
  return ligne < 0 ? nullptr : Grille.Ligne(ligne).Objet.En<TEleve>();
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
    if (const TClasse* classe = Classe()) {
      Globals.Eleves->LireTickets(classe->ListeEleves);
      for (TEleve* eleve : classe->ListeEleves) Grille.Ajouter(Cellules(*eleve), eleve);
    }
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

void TFrmReservation::EcrireLigne(int ligne) {
  Grille.EcrireLigne(ligne, Cellules(*Grille.Ligne(ligne).Objet.En<TEleve>()));
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
  const int nombre = RepeterCommandes(commandes_, *classe, source, jour_.Jour());
  Remplir();
  contexte_.Principal.Etat(nombre > 0 ? TNiveauEtat::Succes : TNiveauEtat::Neutre,
                           u"%1 commande(s) reprise(s) du %2"_s.arg(nombre).arg(FormatJour(source)));
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
  for (const TDateTime j : jours) colonnes.push_back({QString::number(DecodeDate(j).Jour), 28});
  const TGrille::TLot lot(mois);
  mois.DefinirColonnes(std::move(colonnes));
  const TClasse* classe = Classe();
  if (classe == nullptr) return;
  Globals.Eleves->Commandes().Lire({jours.front(), jours.back()});
  for (TEleve* eleve : classe->ListeEleves) {
    TCellules cellules{eleve->NomComplet()};
    for (const TDateTime j : jours) cellules.push_back(Lettre(eleve->GetCommande(j), generation_));
    mois.Ajouter(std::move(cellules), eleve);
  }
}

std::vector<TFrmReservation::TCompteur> TFrmReservation::Compteurs() const {
  const TClasse* classe = Classe();
  const TDateTime jour = jour_.Jour();
  const auto compteur = [](const char16_t* libelle, int nombre) {
    return TCompteur{QString::fromUtf16(libelle), nombre};
  };
  return {compteur(generation_.CompteurRepas, classe != nullptr ? classe->NombreRepas(jour) : 0),
          compteur(generation_.CompteurSandwichs, classe != nullptr ? classe->NombreSandwichs(jour) : 0),
          compteur(generation_.CompteurSansRepas, classe != nullptr ? classe->NombreSansCommande(jour) : 0)};
}

QString TFrmReservation::NomEleve() const {
  const TEleve* eleve = Courant();
  return eleve != nullptr ? eleve->NomComplet() : QString();
}

QString TFrmReservation::TexteSolde() const {
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return {};
  if (generation_.AvecSolde) return u"Solde disponible : " % FormatDeuxDecimales(eleve->SoldeRepas()) % u" €";
  return TexteSoldeTickets(eleve->GetTickets().Solde());
}

bool TFrmReservation::SoldeSuffit() const {
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return true;
  return generation_.AvecSolde ? eleve->SoldeRepas() > Currency() : eleve->GetTickets().Solde() > 0;
}

bool TFrmReservation::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  Imprimer();
  return true;
}

void TFrmReservation::Imprimer() {
  const TClasse* classe = Classe();
  if (classe == nullptr) {
    contexte_.Dialogues().Message(u"Veuillez choisir une classe dans la liste"_s);
    return;
  }
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return ChoixDeRepas(contexte, *classe, jour_.Jour());
  });
}

QString TFrmReservation::EnSuspens() const {
  return EstVerrouillee() ? u"la commande incomplète de " % NomEleve() : QString();
}

bool TFrmReservation::FormCloseQuery() {
  return !EstVerrouillee() ||
         contexte_.Dialogues().ConfirmerGrave(
             u"La commande de %1 est incomplète. Quitter tout de même cet écran ?"_s.arg(NomEleve()));
}
