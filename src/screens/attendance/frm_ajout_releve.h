#pragma once
#include "attendance/presence.h"
#include "screens/contexte_ecran.h"

/// "Ajout de relevé": one presence entered or corrected by hand. Modal.
class TFrmAjoutReleve : public TForm {
 public:
  explicit TFrmAjoutReleve(TContexteEcran& contexte);

  enum TMode { Nouveau = 0, Correction = 1 };
  enum class TChamp { Date, Type, Debut, Fin, Implantation };

  /// What the dialog starts with; a time of 0 leaves its field empty.
  void Charger(TTypePresence type, TDateTime sortie, TDateTime entree, TDateTime date);
  int Mode = Nouveau;
  /// Where the dialog starts.
  TChamp PremierChamp() const;

  /// "Valider": true when the dialog is closed. An empty time becomes "00:00", and the other one, if it
  /// is empty too, is asked for first. A date or time that cannot be read raises EConvertError.
  bool BitBtn1Click();
  /// "Annuler"
  void BitBtn2Click();
  /// Where the hand has to go after a "Valider" that did not close.
  TChamp ChampAttendu() const { return champAttendu_; }

  // What the fields hold, as typed.
  QString Date;   ///< "dd/mm/yyyy"
  QString Debut;  ///< "hh:mm" or ""
  QString Fin;
  int IndexType = 0;           ///< into TextesTypePresence; -1 for none
  int IndexImplantation = -1;  ///< into the sites; -1 for none

  /// The site is asked for (parameter 113).
  bool AvecImplantation() const { return avecImplantation_; }
  /// The sites to choose from, in the order of the list.
  QStringList Implantations() const;

  // What was entered; for a dialog that was closed by "Valider".
  TTypePresence TypePresence() const { return static_cast<TTypePresence>(IndexType + 1); }
  TDateTime DateReleve() const { return date_; }
  TDateTime HeureEntree() const { return entree_; }
  TDateTime HeureSortie() const { return sortie_; }
  /// "" when no site is asked for.
  QString CodeImplantation() const;

 protected:
  bool FormCloseQuery() override;

 private:
  bool Refuser(TChamp champ);
  TDateTime Lire(TChamp champ, const QString& texte, TDateTime (*lire)(const QString&));

  TContexteEcran& contexte_;
  bool avecImplantation_;
  TChamp champAttendu_ = TChamp::Type;
  TDateTime date_ = 0.0;
  TDateTime entree_ = 0.0;
  TDateTime sortie_ = 0.0;
};
