#pragma once
#include "forms/form.h"
#include "forms/grille.h"

class IDialogues;
class TEleve;

/// "Transférer un ticket": to which pupil of the year.
class TFrmTransfertTicket : public TForm {
 public:
  /// The dialogues outlive it.
  explicit TFrmTransfertTicket(IDialogues& dialogues);

  TGrille Eleves;  ///< by name; the object of a row is its pupil
  /// "Classe de l'élève : P3 A"; no class without a choice.
  QString Classe() const;
  /// The pupil that was validated; null for none.
  TEleve* Choisi() const { return choisi_; }
  /// False, after a message, without a choice: the dialog stays.
  bool btnValiderClick();

 private:
  IDialogues& dialogues_;
  TEleve* choisi_ = nullptr;
  TLiens liens_;
};
