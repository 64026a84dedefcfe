#pragma once
#include "attendance/presence.h"
#include "screens/commun/frm_dialogue.h"

/// What the dialog holds; a time of 0 is none.
struct TReleveSaisi {
  TDateTime Date = 0.0;
  TDateTime Entree = 0.0;
  TDateTime Sortie = 0.0;
  int IndexType = 0;           ///< into TextesTypePresence; -1 for none
  int IndexImplantation = -1;  ///< into the sites; -1 for none
};

/// "Ajout de relevé": one presence entered or corrected by hand. Modal.
class TFrmAjoutReleve : public TFrmDialogueDe<TReleveSaisi> {
 public:
  explicit TFrmAjoutReleve(const TContexteEcran& contexte);

  enum TMode { Nouveau = 0, Correction = 1 };

  /// What the dialog starts with; a time of 0 leaves its field empty, a site that is not known the list.
  void Charger(TTypePresence type, TDateTime sortie, TDateTime entree, TDateTime date,
               const QString& codeImplantation = {});
  int Mode = Nouveau;
  int PremierChamp() override;

  /// "Valider": true when the dialog is closed. An empty time becomes "00:00", and the other one, if it is
  /// empty too, is asked for first.
  bool BitBtn1Click() { return Valider(); }

  // What was entered; for a dialog that was closed by "Valider".
  TTypePresence TypePresence() const { return static_cast<TTypePresence>(Saisi.IndexType + 1); }
  TDateTime DateReleve() const { return Saisi.Date; }
  TDateTime HeureEntree() const { return Saisi.Entree; }
  TDateTime HeureSortie() const { return Saisi.Sortie; }
  /// "" when no site is asked for.
  QString CodeImplantation() const;

 protected:
  bool Preparer() override;

 private:
  bool avecImplantation_;
};
