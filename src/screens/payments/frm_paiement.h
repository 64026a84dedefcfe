#pragma once
#include "screens/commun/frm_dialogue.h"

struct TFraisEleve;

/// "Général", "Frais", "Services", as they are stored.
QStringList FamillesPaiement();

/// What the dialog holds.
struct TPaiementSaisi {
  QString Libelle;
  Currency Montant;
  int IndexMois = 0;    ///< into the months of school, September first; -1 for none
  int Famille = 0;      ///< general, fees, services, as it is stored
  int IndexGroupe = 0;  ///< into the payment groups, from 1; 0 for none
};

/// A payment by hand on the fees of a pupil: a new one, or one that is there. Modal.
class TFrmPaiement : public TFrmDialogueDe<TPaiementSaisi> {
 public:
  /// "Ajout d'un paiement" of that month, by its place among those of school.
  explicit TFrmPaiement(int indexMois);
  /// "Modification d'un paiement"
  explicit TFrmPaiement(const TFraisEleve& paiement);

  /// Into the payment. What the dialog does not hold stays: the movement of the bank, the date, a group that
  /// is no longer there.
  void EcrireDans(TFraisEleve& paiement) const;

 protected:
  /// No more of a movement of the bank is given than is left of it.
  bool Controler() override;

 private:
  const TFraisEleve* paiement_ = nullptr;  ///< the one that is there
};
