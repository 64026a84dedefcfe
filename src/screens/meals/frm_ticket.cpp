#include "screens/meals/frm_ticket.h"

#include <QScopedValueRollback>

#include "core/accord.h"
#include "core/formats.h"
#include "documents/tickets.h"
#include "pupils/eleves.h"
#include "screens/meals/frm_ajout_ticket.h"
#include "screens/meals/frm_transfert_ticket.h"
#include "screens/meals/jour_ecran.h"
#include "workflows/prix_repas.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kPageDetail = 1;
constexpr int kPageSousTrois = 2;

TColonneGrille ColonneNom() { return {u"Nom prénom"_s, 240}; }
TColonneGrille ColonneTickets() { return {u"Nb tickets"_s, 112, TGenre::Entier, true}; }
TColonneGrille ColonneEtat() { return {u"État"_s, 120, TGenre::Etat}; }

}  // namespace

TFrmTicket::TFrmTicket(TContexteEcran& contexte)
    : LstEleve({ColonneNom(), ColonneTickets(), ColonneEtat()}),
      Detail({{u"Date achat"_s, 200},
              {u"Date utilisation"_s, 150, TGenre::Date},
              {u"Total"_s, 70, TGenre::Entier}}),
      SousTrois({ColonneNom(), {u"Classe"_s, 90}, ColonneTickets(), ColonneEtat()}),
      contexte_(contexte),
      imprimeur_(contexte, TitresOfferts(TListeTitres::Tickets)) {
  LstEleve.Etats = {{QString(), QString()},
                    {u"en négatif"_s, u"data-error"_s, TTon::RougeFonce},
                    {u"sans ticket"_s, u"data-warning"_s, TTon::Rouge},
                    {u"< 3 tickets"_s, u"data-information"_s, TTon::Vert}};
  SousTrois.Etats = LstEleve.Etats;
  liens_ += LstEleve.SurChoix.Suivre([this] { LstEleveClick(); });
  liens_ += SousTrois.SurChoix.Suivre([this] { SousTroisClick(); });
}

void TFrmTicket::FormShow() {
  Globals.Eleves->LibererCommandes();
  page_ = 0;
  PrendreClasse(Globals.ClasseCourante);
}

QString TFrmTicket::NomClasse() const { return classe_ != nullptr ? classe_->Libelle() : QString(); }

QStringList TFrmTicket::Compteurs() const {
  return {QString::number(compteurs_.Negatif) % u" élève(s) en négatif",
          QString::number(compteurs_.Sans) % u" élève(s) sans ticket",
          QString::number(compteurs_.Bas) % u" élève(s) < 3 tickets"};
}

TEleve* TFrmTicket::Courant() const {
  const int ligne = LstEleve.LigneCourante();
  return ligne < 0 ? nullptr : LstEleve.Ligne(ligne).Objet.En<TEleve>();
}

TTicket* TFrmTicket::TicketCourant() const {
  const int ligne = Detail.LigneCourante();
  return ligne < 0 ? nullptr : Detail.Ligne(ligne).Objet.En<TTicket>();
}

QString TFrmTicket::NomEleve() const {
  const TEleve* eleve = Courant();
  return eleve != nullptr ? eleve->NomComplet() : QString();
}

void TFrmTicket::ChoisirPage(int page) {
  page_ = page;
  RemplirSousTrois();
  Annoncer();
}

void TFrmTicket::LstEleveDblClick() { ChoisirPage(kPageDetail); }

void TFrmTicket::PrendreClasse(TClasse* classe) {
  classe_ = classe;
  Remplir(nullptr);
}

void TFrmTicket::PrendreEleve(TEleve* eleve) {
  classe_ = eleve->Classe;
  Remplir(eleve);
}

void TFrmTicket::Remplir(TEleve* choisi) {
  remplit_ = true;
  {
    const TGrille::TLot lot(LstEleve);
    LstEleve.Vider();
    compteurs_ = classe_ != nullptr ? CompterTickets(*classe_) : TCompteursTickets();
    if (classe_ != nullptr)
      for (TEleve* eleve : classe_->ListeEleves) {
        const int solde = eleve->SoldeTickets();
        AjouterEleve(LstEleve, *eleve, {eleve->NomComplet(), solde, {}},
                     static_cast<int>(NiveauTickets(solde)));
      }
    LstEleve.ChoisirLigne(choisi != nullptr ? LstEleve.TrouverObjet(choisi) : -1);
  }
  SousTrois.ChoisirLigne(choisi != nullptr ? SousTrois.TrouverObjet(choisi) : -1);
  remplit_ = false;
  RemplirDetail();
  Annoncer();
}

// The list of the school only changes here: a choice in it must not fill it again.
void TFrmTicket::Relire(TEleve* choisi) {
  RemplirSousTrois();
  Remplir(choisi);
}

void TFrmTicket::RemplirSousTrois() {
  if (page_ != kPageSousTrois) return;
  const QScopedValueRollback pendant(remplit_, true);
  const TGrille::TLot lot(SousTrois);
  SousTrois.Vider();
  for (TEleve* eleve : ElevesSousTrois(*Globals.Eleves))
    AjouterEleve(SousTrois, *eleve,
                 {eleve->NomComplet(), eleve->Classe->Libelle(), eleve->SoldeTickets(), {}},
                 static_cast<int>(NiveauTickets(eleve->SoldeTickets())));
  SousTrois.ChoisirLigne(Courant() != nullptr ? SousTrois.TrouverObjet(Courant()) : -1);
}

QString TFrmTicket::TitreSousTrois() const {
  return CompterEleves(SousTrois.NombreLignes()) % u" avec moins de 3 tickets";
}

void TFrmTicket::RemplirDetail() {
  const TGrille::TLot lot(Detail);
  Detail.Vider();
  const TEleve* eleve = Courant();
  if (eleve == nullptr) return;
  const TTickets& tickets = eleve->GetTickets();
  for (const TDateTime date : tickets.DatesAchat()) AjouterAchat(tickets, date);
}

void TFrmTicket::AjouterAchat(const TTickets& tickets, TDateTime date) {
  const auto achetes = tickets.AchetesLe(date);
  Detail.AjouterTete(
      {date == 0.0 ? u"Tickets manquants"_s : FormatDate(date), {}, static_cast<int>(achetes.size())});
  for (TTicket* ticket : achetes)
    Detail.Ajouter({FormatDate(ticket->DateAchat), TValeurVue(ticket->DateUtilisation), 1}, ticket);
}

// A click makes the pupil the current one of the whole program.
void TFrmTicket::LstEleveClick() {
  if (remplit_) return;
  RemplirDetail();
  Designer(Courant());
  Annoncer();
}

void TFrmTicket::SousTroisClick() {
  const int ligne = SousTrois.LigneCourante();
  if (remplit_ || ligne < 0) return;
  TEleve* eleve = SousTrois.Ligne(ligne).Objet.En<TEleve>();
  PrendreEleve(eleve);
  Designer(eleve);
}

void TFrmTicket::Designer(TEleve* eleve) {
  if (eleve == nullptr || eleve == Globals.EleveCourant) return;
  const QScopedValueRollback pendant(remplit_, true);  // the tree sends the same back
  Globals.EleveCourant = eleve;
  Globals.ClasseCourante = eleve->Classe;
  contexte_.Principal.Envoyer({TCodeMessage::EleveChange, {}});
}

// It comes also when the screen is in front again: another one may have used tickets, and those that are
// listed may be gone.
void TFrmTicket::SuivreEleve() {
  if (remplit_) return;
  if (Globals.EleveCourant == nullptr || Globals.EleveCourant == Courant())
    Relire(Courant());
  else
    PrendreEleve(Globals.EleveCourant);
}

void TFrmTicket::ImprimerSousTrois() {
  TImprimeur(contexte_, {}).Faire([this](const TContexteDocument& contexte) {
    return ListeSousTrois(contexte, SousTrois, contexte_.Controleur.Horloge().Aujourdhui());
  });
}

bool TFrmTicket::ExigeEleve() const {
  if (Courant() != nullptr) return true;
  contexte_.Dialogues().Message(u"Veuillez sélectionner un élève dans la liste."_s);
  return false;
}

bool TFrmTicket::ExigeTicket() const {
  if (!ExigeEleve()) return false;
  if (TicketCourant() != nullptr) return true;
  contexte_.Dialogues().Message(u"Veuillez sélectionner un ticket dans la liste."_s);
  return false;
}

void TFrmTicket::btnEtape1Click() {
  if (!ExigeEleve()) return;
  TEleve& eleve = *Courant();
  TFrmAjoutTicket ajout(contexte_, eleve, PrixSection(eleve.Categorie()));
  Changer(eleve, [&] {  // also when it was given up: a sale that failed had the tickets read again
    if (contexte_.Modale.MontrerModal(ajout) == TResultatModal::Valide)
      contexte_.Principal.Etat(TNiveauEtat::Succes, u"Enregistré pour " % eleve.NomComplet());
  });
}

// What fails has the tickets read again: those that are shown are gone.
void TFrmTicket::Changer(TEleve& eleve, const std::function<void()>& changement) {
  try {
    changement();
  } catch (...) {
    Relire(&eleve);
    throw;
  }
  Relire(&eleve);
}

void TFrmTicket::AdvGlowButton1Click() {
  TEleve* eleve = Courant();
  Globals.Eleves->LibererCommandes();
  Relire(eleve);
}

void TFrmTicket::AdvGlowButton2Click() {
  if (!ExigeTicket()) return;
  TEleve& eleve = *Courant();
  TTicket& ticket = *TicketCourant();
  Changer(eleve, [&] { SupprimerTicket(contexte_.Dialogues(), eleve, ticket); });
}

void TFrmTicket::AdvGlowButton3Click() {
  if (!ExigeTicket()) return;
  TEleve& eleve = *Courant();
  const int ticket = TicketCourant()->Id;
  TFrmTransfertTicket transfert(contexte_.Dialogues());
  if (contexte_.Modale.MontrerModal(transfert) != TResultatModal::Valide || transfert.Choisi() == nullptr)
    return;
  Changer(eleve, [&] {
    Globals.Eleves->DeplacerTicket(eleve.Id, transfert.Choisi()->Id, ticket);
    contexte_.Principal.Etat(TNiveauEtat::Succes, u"Ticket transféré à " % transfert.Choisi()->NomComplet());
  });
}

bool TFrmTicket::RecevoirMessage(const TMessage& message) {
  switch (message.Code) {
    case TCodeMessage::EleveChange:
      SuivreEleve();
      return true;
    case TCodeMessage::ClasseChange:
      PrendreClasse(Globals.ClasseCourante);
      return true;
    case TCodeMessage::Imprimer:
      imprimeur_.Proposer(TitresOfferts(TListeTitres::Tickets));
      return true;
    case TCodeMessage::AssistantConfirme:
      if (const auto* choix = message.En<TChoixDocument>()) imprimeur_.Imprimer(*choix);
      return true;
    default:
      return false;
  }
}
