#pragma once
#include "core/dialogues.h"
#include "forms/form.h"
#include "forms/grille.h"

/// "Attribution de compte bancaire sur base des virements": which of the accounts that paid for a pupil.
/// Modal.
class TFrmAttributionCompte : public TForm {
 public:
  /// Numbers and payers, in step.
  TFrmAttributionCompte(IDialogues& dialogues, const QStringList& numeros, const QStringList& noms);

  TGrille Comptes;  ///< "Numéro de compte", "Donneur d'ordre"
  /// The place of what was chosen.
  int Choisi() const { return Comptes.LigneCourante(); }
  /// "Sélectionner": false after a message when no row is chosen, and the dialog stays.
  bool btnSelectionnerClick();

 private:
  IDialogues& dialogues_;
};
