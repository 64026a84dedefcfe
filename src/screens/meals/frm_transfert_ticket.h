#pragma once
#include "forms/form.h"
#include "forms/grille.h"

class TEleve;

/// "Transférer un ticket": to which pupil of the year.
class TFrmTransfertTicket : public TForm {
 public:
  TFrmTransfertTicket();

  TGrille Eleves;  ///< by name; the object of a row is its pupil
  /// "Classe de l'élève : P3 A"; "" without a choice.
  QString Classe() const;
  /// The pupil that was validated; null for none.
  TEleve* Choisi() const { return choisi_; }
  void btnValiderClick();

 private:
  TEleve* choisi_ = nullptr;
  TLiens liens_;
};
