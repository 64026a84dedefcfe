#pragma once
#include "meals/tickets.h"
#include "screens/commun/frm_dialogue.h"

class TEleve;

/// What is sold, or missing.
struct TSaisieTicket {
  bool Manquant = false;
  int Nombre = 1;
  TDateTime Date = 0.0;
  Currency Prix;
  int Paiement = 0;  ///< index of "Virement", "Comptant"; -1 for neither
};

/// "Ajouter des tickets": a sale, or one meal that was eaten without a ticket. It is stored before the dialog
/// closes: what cannot be stays there, as it was entered.
class TFrmAjoutTicket : public TFrmDialogueDe<TSaisieTicket> {
 public:
  TFrmAjoutTicket(TContexteEcran& contexte, TEleve& eleve, Currency prix);

  /// "Ticket manquant" is ticked: the number is 1, and nothing is paid.
  bool Manquant() const;
  /// What the date is called: of the purchase, or of the meal.
  QString LibelleDate() const;
  /// What the sale settles: "2 tickets manquants seront réglés."; "" when it settles none.
  QString Annonce() const;

 protected:
  bool Controler() override;

 private:
  void cbTicketManquantClick();
  void Enregistrer();

  TEleve& eleve_;
  const TChamps& champs_;
  TLiens liens_;
};
