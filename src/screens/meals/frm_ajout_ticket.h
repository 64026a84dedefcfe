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

/// "Ajouter des tickets": a sale, or one meal that was eaten without a ticket.
class TFrmAjoutTicket : public TFrmDialogueDe<TSaisieTicket> {
 public:
  TFrmAjoutTicket(TContexteEcran& contexte, TEleve& eleve, Currency prix);

  /// What was entered goes into the pupil's tickets. Raises EDistributor.
  void Enregistrer();

 protected:
  bool Controler() override;

 private:
  TEleve& eleve_;
};
