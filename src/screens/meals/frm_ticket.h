#pragma once
#include "forms/grille.h"
#include "meals/tickets.h"
#include "screens/documents/imprimeur.h"
#include "workflows/vente_tickets.h"

/// "Gestion des tickets": the tickets of the pupils of a class, and of one of them in detail.
class TFrmTicket : public TForm {
 public:
  explicit TFrmTicket(TContexteEcran& contexte);

  /// "P3 A"; "" without a class.
  QString NomClasse() const;
  /// "2 élève(s) en négatif" and so on, in the order of the states of the list.
  QStringList Compteurs() const;
  /// "Nom prénom", "Nb tickets"; the object of a row is its pupil, its state a TNiveauTickets.
  TGrille LstEleve;
  QString NomEleve() const;
  /// "Date achat", "Date utilisation", "Total": a head a purchase, its tickets below. The object of a row is
  /// its TTicket.
  TGrille Detail;
  /// The pupils of the school with less than three tickets, those who owe most first; who has left stands
  /// among them with a debt only. Filled while its page is shown.
  TGrille SousTrois;
  /// "12 élèves avec moins de 3 tickets"
  QString TitreSousTrois() const;
  /// "Aperçu classe", "Détail de l'élève", "Moins de 3 tickets".
  int Page() const { return page_; }
  void ChoisirPage(int page);

  void LstEleveClick();
  /// Makes the pupil and his class those in hand.
  void SousTroisClick();
  /// To the detail of the pupil.
  void LstEleveDblClick();
  /// The list of the school on paper.
  void ImprimerSousTrois();
  /// "Ajouter des tickets"
  void btnEtape1Click();
  /// "Actualiser"
  void AdvGlowButton1Click();
  /// "Supprimer un ticket"
  void AdvGlowButton2Click();
  /// "Transférer un ticket"
  void AdvGlowButton3Click();

  bool RecevoirMessage(const TMessage& message) override;
  bool Accepte(TCodeMessage code) const override { return code == TCodeMessage::Imprimer; }

 protected:
  void FormShow() override;

 private:
  TEleve* Courant() const;
  TTicket* TicketCourant() const;
  /// False, after a message, without a pupil, or without a ticket.
  bool ExigeEleve() const;
  bool ExigeTicket() const;
  void Changer(TEleve& eleve, const std::function<void()>& changement);
  void PrendreClasse(TClasse* classe);
  void PrendreEleve(TEleve* eleve);
  void SuivreEleve();
  void Remplir(TEleve* choisi);
  /// Both lists, after tickets have changed.
  void Relire(TEleve* choisi);
  void RemplirSousTrois();
  void Designer(TEleve* eleve);
  void RemplirDetail();
  void AjouterAchat(const TTickets& tickets, TDateTime date);

  TContexteEcran& contexte_;
  TImprimeur imprimeur_;
  TClasse* classe_ = nullptr;
  TCompteursTickets compteurs_;
  int page_ = 0;
  bool remplit_ = false;
  TLiens liens_;
};
